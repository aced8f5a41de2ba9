#include "data/engine/Faults.h"

#include <QStringList>

namespace orvane {

namespace {

enum class Kind { Busy, Full, ReadOnly, Disk, Damaged, Other };

/// PostgreSQL gives five characters, of which the first two tell the class; SQLite and SQL Server give numbers.
struct KnownFault {
    Engine engine;
    const char* code;
    Kind kind;
};

constexpr KnownFault knownFaults[] = {
    {Engine::Sqlite, "5", Kind::Busy},
    {Engine::Sqlite, "6", Kind::Busy},
    {Engine::Sqlite, "8", Kind::ReadOnly},
    {Engine::Sqlite, "10", Kind::Disk},
    {Engine::Sqlite, "11", Kind::Damaged},
    {Engine::Sqlite, "13", Kind::Full},
    {Engine::Sqlite, "14", Kind::Disk},
    {Engine::Sqlite, "26", Kind::Damaged},
    {Engine::Postgresql, "55P03", Kind::Busy},
    {Engine::Postgresql, "40001", Kind::Busy},
    {Engine::Postgresql, "40P01", Kind::Busy},
    {Engine::Postgresql, "53100", Kind::Full},
    {Engine::Postgresql, "25006", Kind::ReadOnly},
    {Engine::Postgresql, "58", Kind::Disk},
    {Engine::Postgresql, "XX001", Kind::Damaged},
    {Engine::Postgresql, "XX002", Kind::Damaged},
    {Engine::SqlServer, "1222", Kind::Busy},
    {Engine::SqlServer, "1205", Kind::Busy},
    {Engine::SqlServer, "1105", Kind::Full},
    {Engine::SqlServer, "9002", Kind::Full},
    {Engine::SqlServer, "3906", Kind::ReadOnly},
    {Engine::SqlServer, "823", Kind::Disk},
    {Engine::SqlServer, "824", Kind::Damaged},
};

struct Words {
    Kind kind;
    const char* what;
    const char* advice;
};

constexpr Words words[] = {
    {Kind::Busy, "The database is in use by another workstation.", "Please try again."},
    {Kind::Full, "The disk of the database is full.",
     "Please tell the administrator, and try again when there is room."},
    {Kind::ReadOnly, "The database cannot be written to at present.",
     "Please tell the administrator, and try again later."},
    {Kind::Disk, "The disk of the database cannot be read or written.",
     "Please tell the administrator before you go on."},
    {Kind::Damaged, "The database is damaged.", "Please tell the administrator before you go on."},
};

constexpr Words lostWords = {Kind::Other, "The connection to the database server is lost.", "Please try again."};

Kind kindOf(Engine engine, const QString& code) {
    // SQLite packs finer reasons above the low byte.
    const QString plain = engine == Engine::Sqlite ? QString::number(code.toInt() & 0xff) : code;
    for (const KnownFault& known : knownFaults) {
        const QLatin1StringView its(known.code);
        if (known.engine == engine &&
            (plain == its || (engine == Engine::Postgresql && its.size() == 2 && plain.startsWith(its))))
            return known.kind;
    }
    return Kind::Other;
}

const Words* wordsFor(Engine engine, const QSqlError& error, bool lost) {
    if (lost)
        return &lostWords;
    const Kind kind = kindOf(engine, error.nativeErrorCode());
    for (const Words& one : words)
        if (one.kind == kind)
            return &one;
    return nullptr;
}

} // namespace

QString engineWords(const QSqlError& error) {
    QString text = error.databaseText().trimmed();
    if (text.isEmpty())
        text = error.driverText().trimmed();
    // The driver puts the server's error code in brackets behind its text, and a lost server has none.
    if (text.endsWith("()"))
        text = text.chopped(2).trimmed();
    if (text.startsWith("ERROR:"))
        text = text.mid(6).trimmed().section("\nLINE ", 0, 0);
    return text;
}

QString faultText(Engine engine, const QSqlError& error, bool lost, bool saving) {
    const Words* told = wordsFor(engine, error, lost);
    const QString own = engineWords(error);
    if (!told)
        return own;
    QStringList sentences = {QLatin1StringView(told->what)};
    if (saving)
        sentences += "Nothing was saved.";
    sentences += QLatin1StringView(told->advice);
    return sentences.join(u' ') + QStringLiteral("\n(%1)").arg(own);
}

bool isReadOnly(Engine engine, const QSqlError& error) {
    return kindOf(engine, error.nativeErrorCode()) == Kind::ReadOnly;
}

bool endsConnection(const QSqlError& error) {
    const QString code = error.nativeErrorCode();
    return code.startsWith("57P0") || code.startsWith("08") || code == "25P03";
}

bool mayBeSentAgain(const QSqlError& error) {
    const QString code = error.nativeErrorCode();
    return code == "40001" || code == "40P01";
}

} // namespace orvane
