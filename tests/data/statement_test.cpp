#include "RecordedStatements.h"
#include "data/DataError.h"
#include "data/dialect/Statement.h"
#include "data/dialect/Translator.h"
#include "data/rows/Recordset.h"
#include "support/Hospital.h"
#include "support/TestHome.h"

#include <QRegularExpression>
#include <QSqlDatabase>
#include <QSqlDriver>
#include <sqlite3.h>

namespace orvane {

namespace {

constexpr Engine engines[] = {Engine::Sqlite, Engine::Postgresql, Engine::SqlServer};

/// Values on both sides of everything that a rule of the dialect looks at, and what could be taken for something else.
const QStringList& texts() {
    static const QStringList list = {"",
                                     " ",
                                     "YES",
                                     "yes ",
                                     " yes",
                                     "x\t",
                                     "O'Neill",
                                     "'",
                                     "''",
                                     "2026-03-14",
                                     "2026-03-14 ",
                                     "2026-03-14 10:00:00",
                                     "2026-03-1",
                                     "12",
                                     "12.5",
                                     "%a",
                                     "A%",
                                     "_b",
                                     "a\\b",
                                     QString::fromUtf8("Ọlá😀"),
                                     QString(QChar(0xFDD0)),
                                     "730194652810",
                                     "?",
                                     "-- x /*",
                                     "[a] \"b\"",
                                     "null from N"};
    return list;
}

const QList<double>& numbers() {
    static const QList<double> list = {7, 0, 12.5, -3, -4.25, -0.0, 1e17, 1e18, -1e300, 1e-9, 0.1 + 0.2};
    return list;
}

/// The statement as the builder is given it: each of its texts and each number behind "=" is a value. From `first` on
/// the values give way to those of the lists; -1 leaves them as they are.
SqlParts partsOf(const QString& tsql, qsizetype first) {
    static const QRegularExpression value("'(?:[^']|'')*'|(?<==) *\\d[\\d.]*");
    SqlParts parts;
    qsizetype from = 0;
    for (auto values = value.globalMatch(tsql); values.hasNext(); first += first >= 0) {
        const QRegularExpressionMatch match = values.next();
        const bool isText = match.captured().startsWith(u'\'');
        parts.addFragment(QStringView(tsql).mid(from, match.capturedStart() - from));
        if (isText) {
            const QString own = match.captured().mid(1).chopped(1).replace("''", "'");
            parts.addFragment(u"'");
            parts.addText(first < 0 ? own : texts().at(first % texts().size()));
            parts.addFragment(u"'");
        } else {
            parts.addNumber(first < 0 ? match.captured().toDouble() : numbers().at(first % numbers().size()));
        }
        from = match.capturedEnd();
    }
    parts.addFragment(QStringView(tsql).mid(from));
    return parts;
}

std::string textOrFault(const std::function<QString()>& translated) {
    try {
        return translated().toStdString();
    } catch (const DataError& fault) {
        return fault.what() + (": " + fault.statement().toStdString());
    }
}

QStringList rowsOf(Recordset rows) {
    QStringList lines = {rows.columns().join(u'|')};
    for (; !rows.eof(); rows.moveNext()) {
        QStringList cells;
        for (int i = 0; i < rows.columns().size(); ++i)
            cells += QLatin1StringView(rows.value(i).typeName()) + u' ' + rows.text(i);
        lines += cells.join(u'|');
    }
    return lines;
}

/// How SQLite would run a statement in its own words on the billing database.
QStringList planOf(const QString& text) {
    QSqlDatabase database;
    for (const QString& name : QSqlDatabase::connectionNames()) {
        const QSqlDatabase open = QSqlDatabase::database(name, false);
        database = open.databaseName().contains("Dunmarch") ? open : database;
    }
    const QVariant handle = database.driver()->handle();
    sqlite3_stmt* statement = nullptr;
    EXPECT_EQ(sqlite3_prepare_v2(*static_cast<sqlite3* const*>(handle.constData()),
                                 ("explain query plan " + text).toUtf8().constData(), -1, &statement, nullptr),
              SQLITE_OK);
    QStringList steps;
    while (sqlite3_step(statement) == SQLITE_ROW)
        steps += QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(statement, 3)));
    sqlite3_finalize(statement);
    return steps;
}

} // namespace

TEST(Statement, IsTranslatedTheSameWhetherKeptOrNot) {
    const QStringList more = {
        "select 'a' as b, N'x' + 'y', [a b], \"c]d\" from T where e='f'and g=12.5where h = 3 and i in ('j', 'k ')",
        "update hPatients set psurname='a', DebtBF=1.5where PNo=2 and pfirstname not like 'Ab' and x like 'b%'",
        "select top 5 PNo, convert(varchar(10), recDate, 103) from hRecords where consultID=5 and SNo not in (select "
        "SNo from BillAccum where drgName='x') and right('a', 2)='b' and charindex('c', Remarks)=1",
        "select cast('a' as int), case PNo when 'P1' then 'Yes' else 'No' end as k from T where 'a'+PNo='b'",
        "select 1 where a='b' -- c=1",
        "select top 'x' y from T where z='a'",
        "select 1 where a='b''c' and d=1.5e5 and e=\uFDD0100 and f='@orvane_100' and g=7301946528100",
    };
    for (qsizetype round = -1; round < texts().size(); ++round) {
        for (const QString& statement : recordedStatements() + more) {
            const SqlParts parts = partsOf(statement, round);
            for (const Engine engine : engines) {
                ASSERT_EQ(textOrFault([&] { return statementOf(parts, engine).text; }),
                          textOrFault([&] { return translate(parts.text(), engine); }))
                    << parts.text().toStdString();
            }
        }
    }
}

TEST(Statement, IsTranslatedOnceForValuesThatNoRuleTellsApart) {
    const QString name = "x", quoted = "O'Neill";
    const auto like = [](const QString& pattern) { return Sql("select a from T where b like '") << pattern << "'"; };
    const auto set = [](const QString& value) { return Sql("update T set a='") << value << "'"; };
    const struct {
        Sql one, other;
        bool alike;
    } cases[] = {
        {Sql("select a from T where b='") << name << "' and c=" << 1,
         Sql("select a from T where b='") << quoted << "' and c=" << 12.5, true},
        {set(name), set(quoted), true},
        {set(name), set(""), false},
        {set(name), set("x "), false},
        {set(name), set("2026-03-14"), false},
        {Sql("update T set a=") << 1 << "where b=1", Sql("update T set a=") << -1 << "where b=1", false},
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
        const SqlParts parts = partsOf(statement, -1);
        const QStringList rows = rowsOf(Recordset(billing, parts));
        EXPECT_EQ(rows, rowsOf(billing.run(parts.text()))) << statement.toStdString();
        found += rows.size() > 1;
        const Statement known = statementOf(parts, GetParam());
        if (known.marked.isNull() || known.bound.isEmpty())
            continue;
        ++compiled;
        const QStringList plan = planOf(known.marked);
        EXPECT_FALSE(plan.isEmpty());
        EXPECT_EQ(plan, planOf(known.text)) << statement.toStdString();
    }
    EXPECT_GT(found, 30);
    EXPECT_EQ(compiled > 30, GetParam() == Engine::Sqlite) << compiled;
}

/// SQLite reads such a start as the byte order of a bound text; PostgreSQL's driver drops it from what it reads.
TEST_P(Compiled, StatementsStoreAndFindATextThatBeginsWithAByteOrderMark) {
    if (GetParam() != Engine::Sqlite)
        GTEST_SKIP();
    for (const QString& start : {QStringLiteral("\uFEFF"), QStringLiteral("\uFEFF\uFEFF")}) {
        const QString name = start + QStringLiteral("ADA");
        billing.run(QStringLiteral("delete from hPatients"));
        billing.execute(Sql("insert into hPatients (PNo, psurname) values ('1', '") << name << "')");
        Recordset other(billing, Sql("select * from hPatients where 1=2"));
        other.addNew();
        other.set("PNo", "2");
        other.set("psurname", name);
        other.update();
        Recordset found(billing, Sql("select PNo, psurname from hPatients where psurname='") << name << "'");
        ASSERT_EQ(found.count(), 2);
        for (; !found.eof(); found.moveNext()) {
            EXPECT_EQ(found.text("psurname"), name);
            found.set("psurname", "OBI");
            EXPECT_NO_THROW(found.update());
        }
    }
    // The bytes of a text behind U+FFFE were swapped.
    billing.execute(Sql("update hPatients set psurname='") << QStringLiteral("\uFFFEADA") << "' where PNo='1'");
    EXPECT_TRUE(scalar("select psurname from hPatients where PNo='1'").endsWith("ADA"));
}

ORVANE_ON_EACH_ENGINE(Compiled);

} // namespace orvane
