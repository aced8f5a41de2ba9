#include "books/Period.h"

#include "data/rows/Recordset.h"
#include "data/rows/Transaction.h"

#include <algorithm>

namespace orvane {

namespace {

constexpr int monthsAhead = 12;

/// What may be dated in a period and has to be posted before it closes, by its number and day.
struct Unposted {
    const char* words;
    SqlLiteral from; ///< ends before the first day
};

constexpr Unposted unposted[] = {
    {"receipt %1 of %2 is not posted", "select ReceiptNo,ReceiptDate from Payments where isPost=0 and ReceiptDate "
                                       "between '"},
    {"the way of payment of receipt %1 of %2 is not posted",
     "select ReceiptNo,ReceiptDate from PaymentTypes where isPost=0 and ReceiptDate between '"},
    {"the distribution of receipt %1 of %2 is not posted",
     "select ReceiptNo,ReceiptDate from PaymentDetails where isPost=0 and ReceiptDate between '"},
    {"an item of voucher %1 of %2 is not posted",
     "select vouchNo,PayDate from hExpensePayDetails where isPost=0 and PayDate between '"},
    {"an entry of the supplier's invoice %1 of %2 is not posted",
     "select InvoiceNo,InvoiceDate from StockEntryAcct where isPost=0 and TranID is null and InvoiceDate between '"},
};

QDate dayAfter(const QVector<Period>& periods, QDate otherwise) {
    return periods.isEmpty() ? QDate(otherwise.year(), otherwise.month(), 1) : periods.last().lastDay.addDays(1);
}

void addUnposted(Connection& billing, const Period& period, QStringList& lines) {
    for (const Unposted& one : unposted)
        for (Recordset row(billing, Sql(one.from) << period.firstDay << "' and '" << period.lastDay << "'"); !row.eof();
             row.moveNext())
            lines << QString::fromLatin1(one.words).arg(row.text(0),
                                                        row.date(row.columns().at(1)).toString("dd/MM/yyyy"));
    for (Recordset row(billing, Sql("select InvNo from BillsForClients where isPost=0 and BatchNo='")
                                    << period.name << "'");
         !row.eof(); row.moveNext())
        lines << QStringLiteral("invoice %1 is not posted").arg(row.text("InvNo"));
}

void addUnbalanced(Connection& accounting, const Period& period, QStringList& lines) {
    Recordset row(accounting,
                  Sql("select TranID,sum(Amount) as Total from (select TranID,Amount from Tranxaction where "
                      "Period='")
                      << period.name << "' union all select TranID,Amount from TranxactionTemp where Period='"
                      << period.name << "') t group by TranID having sum(Amount) <> 0");
    for (; !row.eof(); row.moveNext())
        lines << QStringLiteral("transaction %1 makes %2 in this period instead of nothing")
                     .arg(row.text("TranID"), QString::number(row.number("Total"), 'f', 2));
}

/// The legs of a period from one of the two tables to the other.
void moveLegs(Connection& accounting, const QString& period, bool toCurrent) {
    const Sql columns(" (TranID, AccountNo, TranNo, TranDate, CostCenterID, Amount, Description, TranCat, EntryDate, "
                      "Period, userName) select TranID, AccountNo, TranNo, TranDate, CostCenterID, Amount, "
                      "Description, TranCat, EntryDate, Period, userName from ");
    const Sql whole("Tranxaction"), rest("TranxactionTemp");
    const Sql& to = toCurrent ? whole : rest;
    const Sql& from = toCurrent ? rest : whole;
    accounting.execute(Sql("insert into ") << to << columns << from << " where Period='" << period << "' order by SNo");
    accounting.execute(Sql("delete from ") << from << " where Period='" << period << "'");
}

} // namespace

QVector<Period> readPeriods(Connection& accounting) {
    QVector<Period> periods;
    for (Recordset row(accounting, Sql("select Period,PrdClose,isClose from AccountMonthOpen order by PeriodVal"));
         !row.eof(); row.moveNext()) {
        const QDate last = row.date("PrdClose");
        periods.append({row.text("Period"), QDate(last.year(), last.month(), 1), last, row.integer("isClose") != 0});
    }
    return periods;
}

QString currentPeriod(Connection& accounting) {
    const Recordset row(accounting, Sql("select Period from AccountMonth"));
    return row.eof() ? QString() : row.text("Period");
}

void keepPeriodsOpen(Connection& accounting, QDate day) {
    {
        Transaction transaction(accounting);
        if (currentPeriod(accounting).isEmpty())
            accounting.execute(Sql("insert into AccountMonth (Period) values ('") << day.toString("yyyy/MM") << "')");
        transaction.commit();
    }
    openPeriodsUpTo(accounting, day.addMonths(monthsAhead));
}

int openPeriodsUpTo(Connection& accounting, QDate month) {
    Transaction transaction(accounting);
    int opened = 0;
    for (; dayAfter(readPeriods(accounting), month) <= month; ++opened)
        accounting.call("AccountOpenPeriods_Insert");
    transaction.commit();
    return opened;
}

QStringList whyNotClosed(Connection& billing, Connection& accounting, const QString& name) {
    const QVector<Period> periods = readPeriods(accounting);
    const auto found =
        std::find_if(periods.begin(), periods.end(), [&](const Period& one) { return one.name == name; });
    if (found == periods.end())
        return {QStringLiteral("there is no period %1").arg(name)};
    if (found->isClosed)
        return {QStringLiteral("the period %1 is closed already").arg(name)};
    if (currentPeriod(accounting) != name)
        return {QStringLiteral("only the current period, %1, can be closed").arg(currentPeriod(accounting))};
    if (found + 1 == periods.end())
        return {QStringLiteral("no period is open behind %1").arg(name)};
    QStringList lines;
    addUnbalanced(accounting, *found, lines);
    addUnposted(billing, *found, lines);
    return lines;
}

QStringList closePeriod(Connection& billing, Connection& accounting, const QString& name) {
    Transaction transaction(accounting);
    const QStringList lines = whyNotClosed(billing, accounting, name);
    if (!lines.isEmpty())
        return lines;
    const QVector<Period> periods = readPeriods(accounting);
    const auto closed =
        std::find_if(periods.begin(), periods.end(), [&](const Period& one) { return one.name == name; });
    const QString next = (closed + 1)->name;
    accounting.execute(Sql("update AccountMonthOpen set isClose=1 where Period='") << name << "'");
    accounting.execute(Sql("update AccountMonth set Period='") << next << "'");
    moveLegs(accounting, name, false);
    moveLegs(accounting, next, true);
    transaction.commit();
    return {};
}

} // namespace orvane
