#include "RecordedStatements.h"
#include "data/DataError.h"
#include "data/dialect/Statement.h"
#include "data/dialect/Translator.h"
#include "data/rows/Recordset.h"
#include "support/Hospital.h"
#include "support/TestHome.h"

#include <QRegularExpression>

namespace orvane {

namespace {

constexpr Engine engines[] = {Engine::Sqlite, Engine::Postgresql, Engine::SqlServer};

/// The statement as the builder is given it: each of its texts and each number behind "=" is a value.
SqlParts partsOf(const QString& tsql) {
    static const QRegularExpression value("'(?:[^']|'')*'|(?<==) *\\d[\\d.]*");
    SqlParts parts;
    qsizetype from = 0;
    for (auto values = value.globalMatch(tsql); values.hasNext();) {
        const QRegularExpressionMatch match = values.next();
        parts.addFragment(QStringView(tsql).mid(from, match.capturedStart() - from));
        if (match.captured().startsWith(u'\'')) {
            parts.addFragment(u"'");
            parts.addText(match.captured().mid(1).chopped(1).replace("''", "'"));
            parts.addFragment(u"'");
        } else {
            parts.addNumber(match.captured().toDouble());
        }
        from = match.capturedEnd();
    }
    parts.addFragment(QStringView(tsql).mid(from));
    return parts;
}

Sql like(const QString& pattern) {
    return Sql("select a from T where b like '") << pattern << "'";
}
Sql set(const QString& value) {
    return Sql("update T set a='") << value << "'";
}
Sql select(const QString& text, double number) {
    return Sql("select a from T where b='") << text << "' and c=" << number;
}

/// The heads and every value with its type.
QStringList valuesOf(Recordset rows) {
    QStringList values = rows.columns();
    for (; !rows.eof(); rows.moveNext())
        for (int i = 0; i < rows.columns().size(); ++i)
            values += QLatin1StringView(rows.value(i).typeName()) + u' ' + rows.text(i);
    return values;
}

QStringList stepsOf(Recordset plan) {
    QStringList steps;
    for (; !plan.eof(); plan.moveNext())
        steps += plan.text("detail");
    return steps;
}

} // namespace

/// Values on both sides of everything that a rule of the dialect looks at, and what could be taken for something else;
/// the fuzzer finds more of them.
TEST(Statement, IsTranslatedTheSameWhetherKeptOrNot) {
    QList<SqlParts> cases;
    for (const QString& statement : recordedStatements())
        cases << partsOf(statement);
    for (const QString& text :
         QString::fromUtf8("| |YES|yes | yes|x\t|O'Neill|'|''|2026-03-14|2026-03-14 |2026-03-14 "
                           "10:00:00|2026-03-1|12|12.5|%a|A%|_b|a\\b|Ọlá😀|\uFDD0|730194652810|?|-- "
                           "x /*|[a] \"b\"|null from N")
             .split(u'|'))
        cases << set(text).parts() << select(text, 7).parts() << like(text).parts();
    for (const double number : {7.0, 0.0, 12.5, -3.0, -4.25, -0.0, 1e17, 1e18, -1e300, 1e-9, 0.1 + 0.2})
        cases << select("x", number).parts() << (Sql("update T set a=a-") << number).parts();
    for (const SqlParts& parts : cases)
        for (const Engine engine : engines)
            EXPECT_EQ(statementOf(parts, engine).text, translate(parts.text(), engine));
}

TEST(Statement, IsTranslatedOnceForValuesThatNoRuleTellsApart) {
    const QString name = "x", quoted = "O'Neill";
    const struct {
        Sql one, other;
        bool alike;
    } cases[] = {
        {select(name, 1), select(quoted, 12.5), true},
        {set(name), set(quoted), true},
        {set(name), set(""), false},
        {set(name), set("x "), false},
        {set(name), set("2026-03-14"), false},
        {select(name, 1), select(name, -1), false},
        {like("x%"), like("y%"), false},
        {like("x%"), like("x%"), true},
        {Sql("select a from T where b='") << name << " '", Sql("select a from T where b='") << quoted << " '", false},
        {Sql("select top ") << 1 << " a from T", Sql("select top ") << 2 << " a from T", false},
    };
    for (const auto& one : cases) {
        for (const Engine engine : engines) {
            const Statement first = statementOf(one.one.parts(), engine);
            const Statement second = statementOf(one.other.parts(), engine);
            EXPECT_EQ(first.facts == second.facts, one.alike)
                << one.one.text().toStdString() << " / " << one.other.text().toStdString();
            EXPECT_EQ(second.text, translate(one.other.text(), engine));
        }
    }
}

class Compiled : public EngineTest {};

/// What comes as text goes to the engine as it stands.
TEST_P(Compiled, StatementsFindAndPlanTheSameAsThoseWithTheirValuesInTheText) {
    Connection accounting = data.open(TestHome::accounting());
    layHospital(billing, accounting);
    data.setServerClock(QDateTime(QDate(2026, 3, 14), QTime(9, 30)));
    makePatient(billing);
    makeVisit(billing);
    makeItem(billing);
    int found = 0, compiled = 0;
    for (const QString& statement : recordedStatements()) {
        if (!statement.startsWith("select", Qt::CaseInsensitive))
            continue;
        const SqlParts parts = partsOf(statement);
        SCOPED_TRACE(statement.toStdString());
        const Recordset rows(billing, parts);
        EXPECT_EQ(valuesOf(rows), valuesOf(billing.run(parts.text())));
        found += rows.count() > 0;
        if (statementOf(parts, GetParam()).bound.isEmpty())
            continue;
        ++compiled;
        const SqlParts explained = partsOf("explain query plan " + statement);
        const QStringList plan = stepsOf(Recordset(billing, explained));
        EXPECT_FALSE(plan.isEmpty());
        EXPECT_EQ(plan, stepsOf(billing.run(explained.text())));
    }
    EXPECT_GT(found, 30);
    EXPECT_EQ(compiled > 30, GetParam() == Engine::Sqlite) << compiled;
}

/// SQLite reads such a start as the byte order of a bound text; PostgreSQL's driver drops it from what it reads.
TEST_P(Compiled, StatementsStoreAndFindATextThatBeginsWithAByteOrderMark) {
    if (GetParam() != Engine::Sqlite)
        GTEST_SKIP();
    for (const QString& name : {QStringLiteral("\uFEFFADA"), QStringLiteral("\uFEFF\uFEFFADA")}) {
        billing.execute(Sql("insert into hPatients (PNo, psurname) values ('1', '") << name << "')");
        Recordset found(billing, Sql("select PNo, psurname from hPatients where psurname='") << name << "'");
        ASSERT_EQ(found.count(), 1);
        EXPECT_EQ(found.text("psurname"), name);
        found.addNew();
        found.set("PNo", "2");
        found.set("psurname", name);
        found.update();
        found.set("psurname", "OBI");
        EXPECT_NO_THROW(found.update());
        billing.run("delete from hPatients");
    }
    // The bytes of a text behind U+FFFE were swapped.
    billing.execute(Sql("insert into hPatients (PNo, psurname) values ('1', '") << QStringLiteral("\uFFFEADA") << "')");
    EXPECT_TRUE(scalar("select psurname from hPatients").endsWith("ADA"));
}

ORVANE_ON_EACH_ENGINE(Compiled);

} // namespace orvane
