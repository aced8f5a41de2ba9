#include "data/DataError.h"
#include "data/dialect/Sql.h"
#include "data/rows/Recordset.h"
#include "support/Print.h"
#include "support/TestHome.h"

#include <cmath>
#include <limits>

namespace orvane {

TEST(SqlBuilder, PutsValuesIntoTheStatement) {
    const QString name = "O'NEILL", none, dashes = "--";
    const QDate day(2026, 3, 4);
    const std::pair<Sql, QString> cases[] = {
        {Sql("select * from T where a='") << name << "' and b=" << 7 << " and c=" << -12.5 << "and d='" << day << "'",
         "select * from T where a='O''NEILL' and b=7 and c=-12.5and d='2026-03-04'"},
        {Sql("a='") << QDateTime(day, QTime(5, 6, 7)) << "'", "a='2026-03-04 05:06:07'"},
        {Sql("a='") << none << "', b='" << QDate() << "' where c='" << QDateTime() << "'",
         "a='', b= null  where c= null "},
        {Sql("d between '") << QDate() << "' and '" << QDate() << " ' and a='x'",
         "d between  null  and  null  and a='x'"},
        {Sql("select ") << Sql("a, b") << " from T", "select a, b from T"},
        // A negative amount behind a minus sign must not begin a comment.
        {Sql("set debt=debt-") << -5.5 << ",n=n-" << -1, "set debt=debt- -5.5,n=n- -1"},
        {Sql("a='x''y' and b='") << dashes << "'", "a='x''y' and b='--'"}};
    for (const auto& [sql, text] : cases)
        EXPECT_EQ(sql.text(), text);
}

TEST(SqlBuilder, RefusesWhatNoColumnMayHold) {
    for (const QString& text : {QString(QChar(0)), "a" + QString(QChar(0xD83D)), QChar(0xDE00) + QString("a")})
        EXPECT_THROW(Sql("'") << text, DataError);
    for (const double number : {std::nan(""), std::numeric_limits<double>::infinity()})
        EXPECT_THROW(Sql() << number, DataError);
}

TEST(SqlBuilderDeathTest, RefusesATextOutsideQuotes) {
    EXPECT_DEATH(Sql("select * from T where a=") << QStringLiteral("1 or 1=1"), "assertion failed");
    EXPECT_DEATH((Sql("select '") << 1).text(), "assertion failed");
}

class Amounts : public EngineTest {};

TEST_P(Amounts, ComeBackAsTheyWent) {
    QList<double> amounts = {0, 999999999999.99, -1234567.005, 1e15 / 3, 1e-7, 1e308, -1e308, 5e-324};
    for (double amount = 0.1; amounts.size() < 100; amount = std::fmod(amount * 7.3 + 0.07, 9e7))
        amounts << amount << -amount << std::round(amount * 100) / 100;
    billing.execute(Sql("insert into hPatients (PNo, psurname) values ('1', 'A')"));
    for (const double amount : amounts) {
        billing.execute(Sql("update hPatients set DebtBF=") << amount << "where pno = '1'");
        const Recordset row(billing, Sql("select DebtBF from hPatients where pno='1' and DebtBF=") << amount);
        ASSERT_FALSE(row.eof()) << amount;
        EXPECT_EQ(row.number("debtbf"), amount);
    }
}

ORVANE_ON_EACH_ENGINE(Amounts);

} // namespace orvane
