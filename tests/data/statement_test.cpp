#include "ScreenStatements.h"
#include "data/DataError.h"
#include "data/dialect/Statement.h"
#include "data/dialect/Translator.h"
#include "data/rows/Recordset.h"
#include "support/Hospital.h"
#include "support/TestHome.h"

#include <QRegularExpression>
#include <QSqlDatabase>
#include <QSqlDriver>
#include <cmath>
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
                                     "O''Neill",
                                     "''",
                                     "''''",
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

const QStringList& numbers() {
    static const QStringList list = {
        "7", "0", "12.5", "-3", "- 4.25", "5.", ".5", "1e5", "1e", "007", "1.2.3", "123456789012345678", "0x1F"};
    return list;
}

/// The statement with other values: each of its texts and each number behind "=" gives way to the next one of the list.
QString withOtherValues(const QString& tsql, qsizetype first) {
    static const QRegularExpression value("'(?:[^']|'')*'|(?<==) *-?\\d[\\d.]*");
    QString result;
    qsizetype from = 0;
    for (auto values = value.globalMatch(tsql); values.hasNext(); ++first) {
        const QRegularExpressionMatch match = values.next();
        result += QStringView(tsql).mid(from, match.capturedStart() - from);
        result += match.captured().startsWith(u'\'') ? u'\'' + texts().at(first % texts().size()) + u'\''
                                                     : numbers().at(first % numbers().size());
        from = match.capturedEnd();
    }
    result += QStringView(tsql).mid(from);
    return result;
}

std::string textOrFault(const std::function<QString()>& translated) {
    try {
        return translated().toStdString();
    } catch (const DataError& fault) {
        return fault.what() + (": " + fault.statement().toStdString());
    }
}

QStringList rowsOf(Connection& connection, const QString& tsql) {
    Recordset rows = connection.run(tsql);
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
        "select 'a' as b, N'x' + 'y', [a b], \"c]d\" from T where e='f'and g=-12.5where h = +3 and i in ('j', 'k ')",
        "update hPatients set psurname='a', DebtBF=-1.5where PNo=2 and pfirstname like 'Ab%'",
        "select top 5 PNo, convert(varchar(10), recDate, 103) from hRecords where consultID=5 and SNo not in (select "
        "SNo from BillAccum where drgName='x') and right('a', 2)='b' and charindex('c', Remarks)=1",
        "select cast('a' as int), case PNo when 'P1' then 'Yes' else 'No' end as k from T where 'a'+PNo='b'",
        "select 1 where a='b' -- c='d'",
        "select top 'x' y from T where z='a'",
    };
    for (qsizetype round = 0; round < texts().size(); ++round) {
        for (const QString& statement : screenStatements() + more) {
            const QString tsql = withOtherValues(statement, round);
            for (const Engine engine : engines) {
                ASSERT_EQ(textOrFault([&] { return statementOf(tsql, engine).text; }),
                          textOrFault([&] { return translate(tsql, engine); }))
                    << tsql.toStdString();
            }
        }
    }
}

TEST(Statement, IsTranslatedOnceForValuesThatNoRuleTellsApart) {
    const struct {
        const char* one;
        const char* other;
        bool alike;
    } cases[] = {
        {"select a from T where b='x' and c=1", "select a from T where b='O''Neill' and c=12.5", true},
        {"select [a'b], \"c'd\" from T where e='x'", "select [a'b], \"c'd\" from T where e='y'", true},
        {"update T set a=1where b='x'", "update T set a=-1where b='x'", false},
        {"update T set a='x'", "update T set a=''", false},
        {"update T set a='x'", "update T set a='x '", false},
        {"update T set a='x'", "update T set a='2026-03-14'", false},
        {"select a from T where b like 'x%'", "select a from T where b like 'y%'", false},
        {"select top 1 a from T", "select top 2 a from T", false},
    };
    for (const auto& one : cases) {
        for (const Engine engine : engines) {
            const Statement first = statementOf(QString::fromUtf8(one.one), engine);
            const Statement second = statementOf(QString::fromUtf8(one.other), engine);
            EXPECT_EQ(first.facts == second.facts, one.alike) << one.one << " / " << one.other;
            EXPECT_EQ(second.text, translate(QString::fromUtf8(one.other), engine));
        }
    }
}

class Compiled : public EngineTest {};

/// A comment keeps a statement from being compiled with marks for its values: it goes to the engine as it stands.
TEST_P(Compiled, StatementsFindAndPlanTheSameAsThoseWithTheirValuesInTheText) {
    Connection accounting = data.open(TestHome::accounting());
    layHospital(billing, accounting);
    data.setServerClock(QDateTime(QDate(2026, 3, 14), QTime(9, 30)));
    makePatient(billing);
    for (const char* visit : {"001OFL0000001", "001OFL0000002"}) {
        makeVisit(billing, {.consultID = QString::fromUtf8(visit)});
        makeItem(billing, {.consultID = QString::fromUtf8(visit)});
    }
    int found = 0, compiled = 0;
    for (const QString& statement : screenStatements()) {
        if (!statement.startsWith("select", Qt::CaseInsensitive))
            continue;
        for (const char* visit : {"001OFL0000001", "001OFL0000002", "none"}) {
            const QString tsql = QString(statement).replace("001OFL0000001", QString::fromUtf8(visit));
            const QStringList rows = rowsOf(billing, tsql);
            EXPECT_EQ(rows, rowsOf(billing, tsql + " -- as it stands")) << tsql.toStdString();
            found += rows.size() > 1;
        }
        const Statement known = statementOf(statement, GetParam());
        if (known.marked.isNull() || known.bound.isEmpty())
            continue;
        ++compiled;
        const QStringList plan = planOf(known.marked);
        EXPECT_FALSE(plan.isEmpty());
        EXPECT_EQ(plan, planOf(known.text)) << statement.toStdString();
    }
    EXPECT_GT(found, 60);
    EXPECT_EQ(compiled > 60, GetParam() == Engine::Sqlite) << compiled;
}

TEST_P(Compiled, StatementsStoreAndFindAnAmountToItsLastDigit) {
    makePatient(billing);
    double amount = 0.1;
    for (int i = 0; i < 300; ++i, amount = std::fmod(amount * 7.3 + 0.07, 9e7)) {
        for (const double value : {amount, -amount, std::round(amount * 100) / 100}) {
            billing.execute(Sql("update hPatients set DebtBF=") << value << "where pno = 'P/0001'");
            const Recordset row(billing, Sql("select DebtBF from hPatients where pno='P/0001' and DebtBF=") << value);
            ASSERT_FALSE(row.eof()) << value;
            EXPECT_EQ(row.number("DebtBF"), value);
        }
    }
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
