// Any bytes are loaded into a table of an embedded database whole, or refused whole with one line that says where.
// The first line of the input names the table.
#include "Demand.h"
#include "data/rows/Recordset.h"
#include "data/rows/Schema.h"
#include "data/words/Csv.h"
#include "tool/CsvLoad.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <cstdint>

namespace orvane {

namespace {

constexpr qsizetype longestMessage = 400;

QString connectionString(const char* database) {
    return QStringLiteral("Server=SERVER;Database=%1").arg(QLatin1StringView(database));
}

/// Empty databases, made once; each load is taken out again.
struct Home {
    QTemporaryDir folder;
    DataSource source{folder.path()};
    std::optional<Connection> billing;

    Home() {
        source.setDisposable();
        createDatabases(source, connectionString("Dunmarch"), connectionString("Accounting"));
        billing = source.open(connectionString("Dunmarch"));
    }
};

int countRows(Connection& billing, const Table& table) {
    return billing.run(QStringLiteral("select count(*) as n from [%1]").arg(table.name)).value(0).toInt();
}

void demandClearLine(const QString& message) {
    demand(message.startsWith(QStringLiteral("fuzz.csv:")), "a refusal says where", message);
    demand(message.size() <= longestMessage, "a refusal is short", message);
    demand(std::none_of(message.begin(), message.end(), [](QChar c) { return c.category() == QChar::Other_Control; }),
           "a refusal is one line without control characters", message);
}

/// Each text of the file stands in its row as the file has it.
void demandTexts(Connection& billing, const Table& table, const QByteArray& content) {
    CsvReader reader(content);
    const auto heads = reader.next();
    Recordset rows = billing.run(QStringLiteral("select * from [%1]").arg(table.name));
    QStringList stored, given;
    for (; !rows.eof(); rows.moveNext()) {
        for (const CsvField& head : heads->fields) {
            const QString name = head.text.trimmed();
            if (table.column(name)->kind == ColumnKind::Text && !rows.isNull(name))
                stored += name.toLower() + u'=' + rows.text(name);
        }
    }
    while (const auto record = reader.next()) {
        for (qsizetype i = 0; i < record->fields.size(); ++i) {
            const QString name = heads->fields.at(i).text.trimmed();
            if (table.column(name)->kind == ColumnKind::Text && !record->fields.at(i).isNoValue())
                given += name.toLower() + u'=' + record->fields.at(i).text;
        }
    }
    // A column that the file leaves out of a row may have a default.
    for (const QString& text : std::as_const(given))
        demand(stored.removeOne(text), "a text is stored as it is given", text);
}

void fuzzLoad(const Table& table, const QByteArray& content) {
    static Home home;
    Connection& billing = *home.billing;
    // A new database has rows of its own, such as its counters.
    billing.run(QStringLiteral("delete from [%1]").arg(table.name));
    try {
        const int loaded = loadCsv(billing, table, QStringLiteral("fuzz.csv"), content);
        demand(countRows(billing, table) == loaded, "a file is loaded whole");
        demandTexts(billing, table, content);
        billing.run(QStringLiteral("delete from [%1]").arg(table.name));
    } catch (const DataError& fault) {
        demandClearLine(fault.description());
    }
    demand(!billing.inTransaction() && countRows(billing, table) == 0, "a refused file leaves nothing");
}

} // namespace

} // namespace orvane

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static int count = 0;
    static QCoreApplication application(count, nullptr);
    const QByteArray input(reinterpret_cast<const char*>(data), qsizetype(size));
    const qsizetype end = input.indexOf('\n');
    const QString name = QString::fromLatin1(input.left(std::max<qsizetype>(end, 0)));
    const auto tables = orvane::Catalog::instance().tables(QStringLiteral("billing"));
    for (const orvane::Table* table : tables)
        if (table->name == name)
            orvane::fuzzLoad(*table, input.mid(end + 1));
    return 0;
}
