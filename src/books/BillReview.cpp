#include "books/BillReview.h"

#include "books/Bill.h"
#include "books/BillLine.h"
#include "books/PatientAccount.h"

namespace orvane {

namespace {

constexpr int billsBetweenLooks = 500;

void giveChargeBack(Books& books, const QString& billNo, const Recordset& line) {
    const double charged = chargedFor(books, line);
    const std::optional<Bill> bill = readBill(books.connection, billNo);
    if (charged != 0 && bill)
        postPatientTran(books, {bill->pno, billNo, charged, books.settings().privateClient,
                                "Bill Item Removed: " + line.text("drgName")});
}

} // namespace

void removeFromDetails(Books& books, const QString& billNo, qlonglong sno) {
    Connection& connection = books.connection;
    const Recordset line(connection, Sql("select * from BillingDetails where SNO=") << sno);
    if (!line.eof())
        giveChargeBack(books, billNo, line);
    // Sent twice: the second one finds nothing.
    removeLines(books, line.eof() ? billNo : line.text("billNo"), [&] {
        for (int times = 0; times < 2; ++times)
            connection.execute(Sql("delete from billingdetails where SNO = '") << sno << "'");
    });
    connection.execute(Sql("delete from billAccum where SNO = '") << sno << "'");
    refreshBillFromLines(books, billNo);
    books.record(billNo, line.eof() ? 0 : 0 - line.number("SubTotal"));
}

void diagnoseBill(Books& books, const QString& billNo, const QString& diagnosis) {
    books.connection.execute(Sql("update  billing set diagnosis='")
                             << diagnosis << "' where billno = '" << billNo << "'");
    books.record(billNo, 0);
}

void diagnoseBatch(Books& books, const QString& batchNo, const std::function<void()>& moving) {
    int bills = 0;
    // One question for the batch: a question a bill would hold the gate for minutes behind a slow line.
    Recordset row(books.connection,
                  Sql("select v.billNo, c.Diagnosis from vwBillingProcessBatch v inner join hconsulting "
                      "c on c.consultID = v.billNo where v.batchNo='")
                      << batchNo << "' order by v.billNo, c.SNo");
    while (!row.eof()) {
        const QString billNo = row.text("billNo");
        QString diagnosis;
        for (; !row.eof() && row.text("billNo") == billNo; row.moveNext())
            diagnosis += row.text("Diagnosis") + "\r\n";
        books.connection.execute(Sql("update  billing set Diagnosis='")
                                 << diagnosis.toUpper() << "' where billno = '" << billNo << "'");
        if (++bills % billsBetweenLooks == 0)
            moving();
    }
    books.record(batchNo, 0);
}

void assignHeadings(Books& books, const QString& batchNo) {
    books.connection.call("SpRptHeaderCursor", {{"@coyCode", "(ALL)"}, {"@BatchNo", batchNo}});
    books.record(batchNo, 0);
}

} // namespace orvane
