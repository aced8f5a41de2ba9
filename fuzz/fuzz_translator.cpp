// Any statement is translated for each engine or refused; no text literal breaks out of its quotes or is altered.
#include "Demand.h"
#include "EngineScan.h"
#include "data/DataError.h"
#include "data/dialect/Statement.h"
#include "data/dialect/Translator.h"

#include <QRegularExpression>
#include <cstdint>

namespace orvane {

namespace {

constexpr Engine engines[] = {Engine::Sqlite, Engine::Postgresql, Engine::SqlServer};

const QString lastCharacter = QString::fromUcs4(U"\U0010FFFF");

std::optional<QString> translated(const QString& tsql, Engine engine) {
    try {
        return translate(tsql, engine);
    } catch (const DataError& fault) {
        demand(!fault.description().isEmpty() && !fault.description().contains(u'\n'), "a refusal is one line", tsql);
        return std::nullopt;
    }
}

/// The n-th literal of the statement, harmless and hostile. Both are ordinary texts to every rule of the dialect: not
/// blank, no date, no pattern that begins with a wildcard, no blank at the end.
QString harmless(qsizetype n) {
    return QStringLiteral("zq%1z").arg(n);
}

QString hostile(qsizetype n) {
    return QStringLiteral("h%1' or '';--\n/* %1%2 %3 \\' \\\" ] [ ) ( $$ $1 ? :x @y ` N' É😀\tx").arg(n);
}

/// Where the literal is a pattern, PostgreSQL gets it in lower case and with its backslashes doubled, and what stands
/// in front of its first wildcard as the bounds of a range, of which the upper one ends in the last character there is.
bool isOfPattern(const QString& literal, const QString& given) {
    const QString pattern = given.toLower();
    const QString range = pattern.section(QRegularExpression(QStringLiteral("[%_]")), 0, 0);
    return literal == QString(pattern).replace(u'\\', QStringLiteral("\\\\")) || literal == range ||
           literal == range + lastCharacter;
}

QString withLiterals(const Pieces& pieces, QString (*literal)(qsizetype)) {
    QString tsql = pieces.between.first();
    for (qsizetype i = 1; i < pieces.between.size(); ++i)
        tsql += u'\'' + literal(i).replace(u'\'', QStringLiteral("''")) + u'\'' + pieces.between.at(i);
    return tsql;
}

EngineScan soundScan(const QString& tsql, const QString& text, Engine engine) {
    const EngineScan scan = scanForEngine(text, engine);
    demand(scan.fault.isEmpty(), "the engine reads the statement as it is meant",
           QStringLiteral("%1: %2\n->\n%3").arg(scan.fault, tsql, text));
    return scan;
}

/// The statement as the builder is given it, each literal a value. Nothing where a name or a comment holds a quote,
/// which the builder does not know.
std::optional<SqlParts> partsOf(const QString& tsql) {
    const std::optional<Pieces> pieces = splitAtLiterals(tsql);
    if (!pieces || pieces->between.join(QString()).contains(u'\''))
        return {};
    SqlParts parts;
    for (qsizetype i = 0; i < pieces->between.size(); ++i) {
        parts.addFragment(pieces->between.at(i));
        if (i == pieces->literals.size())
            break;
        parts.addFragment(u"'");
        parts.addText(pieces->literals.at(i));
        parts.addFragment(u"'");
    }
    return parts;
}

/// What is kept of statements alike must make the same of this one as a translation of its own.
void demandKeptAlike(const QString& tsql, const std::optional<QString>& text, Engine engine) {
    Statement kept;
    try {
        const std::optional<SqlParts> parts = partsOf(tsql);
        if (!parts)
            return;
        demand(parts->text() == tsql, "the builder's text is the statement", tsql);
        kept = statementOf(*parts, engine);
    } catch (const DataError&) {
        demand(!text, "a statement that can be translated is not refused", tsql);
        return;
    }
    demand(text == kept.text, "a kept translation is the one that the statement would get",
           QStringLiteral("%1\n->\n%2\ninstead of\n%3").arg(tsql, kept.text, text.value_or(QString())));
    demand(kept.marked.isNull() || tsql.contains(u'?') || kept.marked.count(u'?') == kept.bound.size(),
           "each mark has its value", kept.marked);
}

/// Two statements that differ in nothing but their literals are translated alike, and each literal stands where it
/// belongs.
void demandLiteralsKept(const Pieces& pieces, Engine engine) {
    const QString plainTsql = withLiterals(pieces, harmless), hostileTsql = withLiterals(pieces, hostile);
    const auto plainText = translated(plainTsql, engine), hostileText = translated(hostileTsql, engine);
    demand(plainText.has_value() == hostileText.has_value(), "literals do not decide what is refused", hostileTsql);
    demandKeptAlike(plainTsql, plainText, engine);
    demandKeptAlike(hostileTsql, hostileText, engine);
    if (!plainText)
        return;
    const EngineScan plain = soundScan(plainTsql, *plainText, engine);
    const EngineScan scan = soundScan(hostileTsql, *hostileText, engine);
    demand(plain.skeleton == scan.skeleton, "literals do not change what stands around them", *hostileText);
    for (qsizetype i = 0; i < scan.literals.size(); ++i) {
        QString expected = plain.literals.at(i);
        for (qsizetype n = 1; n < pieces.between.size(); ++n)
            if (plain.literals.at(i) == harmless(n) || plain.literals.at(i) == harmless(n) + lastCharacter)
                expected = hostile(n);
        const bool pattern = engine == Engine::Postgresql && isOfPattern(scan.literals.at(i), expected);
        demand(scan.literals.at(i) == expected || pattern, "a literal is kept", *hostileText);
    }
}

void fuzzTranslator(const QString& tsql) {
    const auto pieces = splitAtLiterals(tsql);
    for (const Engine engine : engines) {
        const auto text = translated(tsql, engine);
        demand(text == translated(tsql, engine), "a statement is always translated alike", tsql);
        demandKeptAlike(tsql, text, engine);
        demand(pieces || !text, "a statement that ends inside quotes is refused", tsql);
        if (text) {
            const EngineScan scan = soundScan(tsql, *text, engine);
            const bool definition = tsql.contains(u"create", Qt::CaseInsensitive);
            demand(engine != Engine::SqlServer || definition || scan.literals == pieces->literals,
                   "the server gets each literal as it is", *text);
        }
        if (pieces)
            demandLiteralsKept(*pieces, engine);
    }
}

} // namespace

} // namespace orvane

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString tsql = QString::fromUtf8(reinterpret_cast<const char*>(data), qsizetype(size));
    orvane::fuzzTranslator(tsql);
    try {
        orvane::splitScript(tsql);
    } catch (const orvane::DataError&) {
        // A script that ends inside quotes.
    }
    return 0;
}
