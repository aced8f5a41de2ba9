#include "books/MonthRun.h"

#include "books/Batch.h"
#include "books/Bill.h"
#include "books/Client.h"
#include "books/ClientInvoice.h"
#include "books/Debtor.h"
#include "data/words/Money.h"

#include <algorithm>

namespace orvane {

namespace {

constexpr int billsAtOnce = 50; ///< in one message, and between two looks of who watches

/// A client in the run.
struct RunClient {
    QString code, invNo;
};

/// The bills that wait of the client with this id, with what their lines come to: read in one go, for a look at each
/// bill costs as much as its change.
void addWaitingBills(Connection& connection, const MonthRun& run, const QString& code, const QString& clientID,
                     QVector<BillToProcess>& bills) {
    Sql sql = Sql("select distinct BillNo,(select  Subtotal from vwBillingProcessDetailsGrouped where "
                  "billno=vwBillingProcess.BillNo) as Total from vwBillingProcess where batchNo='")
              << run.batchNo << "' and retainCode='" << code << "' and retainID='" << clientID << "'";
    if (!run.takesBillsWithoutLines)
        sql << " and billNO in (Select distinct billNO from BillingDetails )";
    Recordset row(connection, sql);
    for (; !row.eof(); row.moveNext())
        bills.append(
            {row.text("BillNo"), row.isNull("Total") ? std::nullopt : std::optional(round2(row.number("Total")))});
}

/// Asked by the id that a code stands for: an index leads from it to the bills, on a server that has no statistics of
/// the month yet too, while a code is looked for in the whole month.
QVector<BillToProcess> waitingBills(Connection& connection, const MonthRun& run, const QString& code) {
    QVector<BillToProcess> bills;
    Recordset client(connection, Sql("select retainID from hretainership where retainCode='") << code << "'");
    for (; !client.eof(); client.moveNext())
        addWaitingBills(connection, run, code, client.text("retainID"), bills);
    return bills;
}

/// Gives what the bills come to, in naira.
double processBillsOf(Books& books, const RunClient& client, const QVector<BillToProcess>& bills,
                      const RunWatcher& watch, RunStage stage) {
    double total = 0;
    stage.bills = int(bills.size());
    for (; stage.bill < stage.bills; stage.bill = std::min(stage.bill + billsAtOnce, stage.bills)) {
        watch(stage);
        processBills(books, client.invNo, bills.mid(stage.bill, billsAtOnce));
    }
    watch(stage);
    for (const BillToProcess& bill : bills)
        total = round2(total + bill.total.value_or(0));
    return total;
}

/// The client owes what the run has found. One who is not in the list of clients has no debt.
void oweForRun(Books& books, const RunClient& client, const MonthRun& run, double total) {
    const std::optional<QString> name = addClientDebt(books, client.code, total);
    if (!name)
        return;
    books.audit({"Proceess Mthly Bill for " + *name, {}, {}});
    addDebtor(
        books,
        {.date = run.date, .billNo = client.code, .clientNo = client.code, .amount = total, .invNo = client.invNo});
}

} // namespace

Given<int> processMonth(Books& books, const MonthRun& run, const RunWatcher& watch) {
    RunStage stage{.clients = int(run.clients.size())};
    double whole = 0;
    for (const qlonglong number : run.clients) {
        const QString code = paddedClientCode(number);
        const RunClient client{code, invoiceNumber(code, run.batchNo)};
        const double total = processBillsOf(books, client, waitingBills(books.connection, run, code), watch, stage);
        addToInvoice(books, {.date = run.date,
                             .invNo = client.invNo,
                             .coyCode = code,
                             .batchNo = run.batchNo,
                             .month = run.month,
                             .year = run.year,
                             .amount = total});
        oweForRun(books, client, run, total);
        whole = round2(whole + total);
        ++stage.client;
    }
    books.record(run.batchNo, whole);
    return stage.client;
}

} // namespace orvane
