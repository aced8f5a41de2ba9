#include "data/dialect/Functions.h"

#include <QHash>

namespace orvane {

namespace {

/// The text of a call on SQLite and on PostgreSQL; %1, %2, %3 are the arguments.
struct CallRule {
    const char* name;
    int arguments;
    const char* sqlite;
    const char* postgresql;
};

// On SQLite what a function gives has no collation of its own, so text functions name it: T-SQL compares without regard
// to case.
const CallRule callRules[] = {
    {"isnull", 2, "coalesce(%1, %2) collate nocase", "coalesce(%1, %2)"},
    {"substring", 3, "substr(%1, %2, %3) collate nocase", nullptr},
    {"right", 2, "substr(%1, -(%2)) collate nocase", nullptr},
    {"left", 2, "substr(%1, 1, %2) collate nocase", nullptr},
    {"ltrim", 1, "ltrim(%1) collate nocase", nullptr},
    {"rtrim", 1, "rtrim(%1) collate nocase", nullptr},
    {"replace", 3, "replace(%1, %2, %3) collate nocase", nullptr},
    {"replicate", 2, "replace(hex(zeroblob(%2)), '00', %1)", "repeat(%1, %2)"},
    {"len", 1, "length(rtrim(%1))", "length(rtrim(%1))"},
    {"charindex", 2, "instr(%2, %1)", "strpos(%2, %1)"},
    {"year", 1, "cast(strftime('%Y', %1) as integer)", "cast(extract(year from cast(%1 as timestamp)) as integer)"},
    {"month", 1, "cast(strftime('%m', %1) as integer)", "cast(extract(month from cast(%1 as timestamp)) as integer)"},
    {"day", 1, "cast(strftime('%d', %1) as integer)", "cast(extract(day from cast(%1 as timestamp)) as integer)"},
};

// dateadd(part, n, date); the part is a word of its own.
const CallRule addRules[] = {
    {"day", 2, "date(%2, (%1) || ' days')", "cast(cast(%2 as timestamp) + (%1) * interval '1 day' as date)"},
    {"month", 2, "date(%2, (%1) || ' months')", "cast(cast(%2 as timestamp) + (%1) * interval '1 month' as date)"},
    {"year", 2, "date(%2, (%1) || ' years')", "cast(cast(%2 as timestamp) + (%1) * interval '1 year' as date)"},
};

// datediff(part, from, to) counts the boundaries crossed.
const CallRule differenceRules[] = {
    {"day", 2, "cast(julianday(date(%2)) - julianday(date(%1)) as integer)", "(cast(%2 as date) - cast(%1 as date))"},
    {"month", 2, "((strftime('%Y', %2) - strftime('%Y', %1)) * 12 + strftime('%m', %2) - strftime('%m', %1))",
     "cast((extract(year from cast(%2 as timestamp)) - extract(year from cast(%1 as timestamp))) * 12 + "
     "extract(month from cast(%2 as timestamp)) - extract(month from cast(%1 as timestamp)) as integer)"},
    {"year", 2, "(strftime('%Y', %2) - strftime('%Y', %1))",
     "cast(extract(year from cast(%2 as timestamp)) - extract(year from cast(%1 as timestamp)) as integer)"},
};

// convert(varchar(n), date, style): how the style writes a date.
struct StyleRule {
    int style;
    const char* sqlite;
    const char* postgresql;
};

const StyleRule styleRules[] = {
    {101, "%m/%d/%Y", "MM/DD/YYYY"}, {103, "%d/%m/%Y", "DD/MM/YYYY"},
    {105, "%d-%m-%Y", "DD-MM-YYYY"}, {108, "%H:%M:%S", "HH24:MI:SS"},
    {111, "%Y/%m/%d", "YYYY/MM/DD"}, {112, "%Y%m%d", "YYYYMMDD"},
    {23, "%Y-%m-%d", "YYYY-MM-DD"},  {120, "%Y-%m-%d %H:%M:%S", "YYYY-MM-DD HH24:MI:SS"},
};

/// Puts the arguments in place of %1 to %3; any other percent sign stands.
QString fill(const char* pattern, const QStringList& arguments) {
    const QString text = QLatin1StringView(pattern);
    QString result;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const int argument = text.at(i) == u'%' && i + 1 < text.size() ? text.at(i + 1).digitValue() : -1;
        if (argument >= 1 && argument <= arguments.size()) {
            result += arguments.at(argument - 1);
            ++i;
        } else {
            result += text.at(i);
        }
    }
    return result;
}

template <std::size_t N>
std::optional<QString> apply(const CallRule (&rules)[N], const QString& name, const QStringList& arguments,
                             Engine engine) {
    for (const CallRule& rule : rules) {
        if (name.compare(QLatin1StringView(rule.name), Qt::CaseInsensitive) == 0 &&
            rule.arguments == arguments.size()) {
            const char* pattern = engine == Engine::Sqlite ? rule.sqlite : rule.postgresql;
            return pattern ? std::optional(fill(pattern, arguments)) : std::nullopt;
        }
    }
    return std::nullopt;
}

/// A style is a plain number: one behind a sign is a value like any other, which decides nothing. varchar(7) keeps
/// seven characters of what the style writes: the month of style 111. An index may stand on it.
QString convertWithStyle(const QString& type, const QString& value, const QString& style, Engine engine) {
    for (const StyleRule& rule : styleRules) {
        if (QString::number(rule.style) != style)
            continue;
        const bool sqlite = engine == Engine::Sqlite;
        const QString written = sqlite ? QStringLiteral("strftime('%1', %2)").arg(QLatin1StringView(rule.sqlite), value)
                                       : QStringLiteral("orvane_date(cast(%2 as timestamp), '%1')")
                                             .arg(QLatin1StringView(rule.postgresql), value);
        const int length = type.section(u'(', 1).section(u')', 0, 0).toInt();
        if (length <= 0 || length >= int(qstrlen(rule.postgresql)))
            return written;
        return apply(callRules, "left", {written, QString::number(length)}, engine)
            .value_or(QStringLiteral("\"left\"(%1, %2)").arg(written).arg(length));
    }
    return translateCast(value, "varchar", engine);
}

} // namespace

std::optional<QString> translateCall(const QString& name, const QStringList& arguments, Engine engine) {
    if (engine == Engine::SqlServer || arguments.isEmpty())
        return std::nullopt;
    if (name.compare(u"dateadd", Qt::CaseInsensitive) == 0 && arguments.size() == 3)
        return apply(addRules, arguments[0], arguments.mid(1), engine);
    if (name.compare(u"datediff", Qt::CaseInsensitive) == 0 && arguments.size() == 3)
        return apply(differenceRules, arguments[0], arguments.mid(1), engine);
    if (name.compare(u"convert", Qt::CaseInsensitive) == 0 && arguments.size() == 2)
        return translateCast(arguments[1], arguments[0], engine);
    if (name.compare(u"convert", Qt::CaseInsensitive) == 0 && arguments.size() == 3)
        return convertWithStyle(arguments[0], arguments[1], arguments[2], engine);
    return apply(callRules, name, arguments, engine);
}

QString translateCast(const QString& value, const QString& type, Engine engine) {
    const QString word = type.section(u'(', 0, 0).trimmed().toLower();
    const bool isText = word.endsWith("char");
    if (engine == Engine::SqlServer)
        return QStringLiteral("cast(%1 as %2)").arg(value, type);
    if (engine == Engine::Postgresql) {
        return word == "bigint" ? QStringLiteral("orvane_bigint(%1)").arg(value)
                                : QStringLiteral("cast(%1 as %2)").arg(value, translateType(type, engine));
    }
    if (word == "date")
        return QStringLiteral("date(%1)").arg(value);
    if (word == "datetime")
        return QStringLiteral("datetime(%1)").arg(value);
    if (isText)
        return QStringLiteral("orvane_text(%1) collate nocase").arg(value);
    // A number has no collation; with one inside, the highest number could not be read off the end of an index.
    QString number = value;
    if (number.endsWith(" collate nocase"))
        number.chop(15);
    return QStringLiteral("cast(%1 as %2)").arg(number, translateType(type, engine));
}

QString translateType(const QString& type, Engine engine) {
    struct TypeRule {
        const char* sqlite;
        const char* postgresql;
    };
    static const QHash<QString, TypeRule> rules = {
        {"varchar", {"text collate nocase", "citext"}},
        {"nvarchar", {"text collate nocase", "citext"}},
        {"char", {"text collate nocase", "citext"}},
        {"nchar", {"text collate nocase", "citext"}},
        {"float", {"real", "double precision"}},
        {"real", {"real", "double precision"}},
        {"money", {"real", "numeric(19,4)"}},
        {"decimal", {"real", "double precision"}},
        {"numeric", {"real", "double precision"}},
        {"int", {"integer", "integer"}},
        {"bigint", {"integer", "bigint"}},
        {"smallint", {"integer", "smallint"}},
        {"bit", {"integer", "smallint"}},
        {"datetime", {"datetime", "timestamp(0)"}},
        {"date", {"date", "date"}},
    };
    const auto rule = rules.constFind(type.section(u'(', 0, 0).trimmed().toLower());
    if (engine == Engine::SqlServer || rule == rules.constEnd())
        return type;
    return QLatin1StringView(engine == Engine::Sqlite ? rule->sqlite : rule->postgresql);
}

} // namespace orvane
