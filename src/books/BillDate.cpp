#include "books/BillDate.h"

#include "books/Batch.h"
#include "books/Bill.h"

namespace orvane {

namespace {

QDate firstOfNextMonth(QDate date) {
    return QDate(date.year(), date.month(), 1).addMonths(1);
}

int yearMonth(QDate date) {
    return date.year() * 100 + date.month();
}

std::optional<Refusal> whyNotShifted(Connection& connection, const QString& billNo) {
    if (isBillProcessed(connection, billNo))
        return Refusal::BillProcessed;
    if (Recordset(connection, Sql("select recID from hRecords where consultID='") << billNo << "'").eof())
        return Refusal::VisitGone;
    return std::nullopt;
}

} // namespace

QDate billDateFor(QDate recDate, QDate discharged, int billEndDay, int newestBatch) {
    QDate date = discharged;
    if (!discharged.isValid())
        date = billEndDay >= recDate.day() ? recDate : firstOfNextMonth(recDate);
    const QDate batchMonth(newestBatch / 100, newestBatch % 100, 1);
    if (date.isValid() && batchMonth.isValid() && yearMonth(date) <= newestBatch)
        date = firstOfNextMonth(batchMonth);
    return date;
}

void settleBillDate(Books& books, const BillInHand& bill, bool isInPatient) {
    Connection& connection = books.connection;
    const Recordset visit(connection, Sql("select recDate,BillDate from vwhrecords where consultID = '")
                                          << bill.consultID << "'");
    if (visit.eof())
        return;
    const Recordset batch(connection,
                          Sql("select  top 1 batchVal,coyCode  from vwBillsForClientsBatchVal where coycode='")
                              << bill.retainCode << "' order by batchval desc ");
    const int newestBatch = batch.eof() ? 0 : int(batch.integer("batchVal"));
    // Until it is settled an out-patient's is the day of the visit.
    const QDate discharged = isInPatient ? visit.date("BillDate") : QDate();
    const QDate date = billDateFor(visit.date("recDate"), discharged, bill.billEndDay, newestBatch);
    connection.execute(Sql("update  hrecords set BillDate='")
                       << date << "'  where consultID = '" << bill.consultID << "'");
}

std::optional<QDate> shiftedBillDate(const QString& batchNo, int months) {
    const int batch = batchValue(batchNo);
    const QDate date = QDate(batch / 100, batch % 100, 1).addMonths(months);
    if (date.year() < firstBatchYear || date.year() > lastBatchYear)
        return std::nullopt;
    return date;
}

Given<int> shiftBills(Books& books, const QVector<ListedBill>& bills, QDate date,
                      const std::function<void(int)>& moving) {
    for (const ListedBill& bill : bills)
        if (const auto refusal = whyNotShifted(books.connection, bill.billNo))
            return *refusal;
    int done = 0;
    for (const ListedBill& bill : bills) {
        books.connection.execute(Sql("update  hrecords set BillDate ='")
                                 << date << "' where consultID = '" << bill.billNo << "'");
        books.audit({"UnProceessed  Bill Shift to Another Period for " + bill.patient, bill.billNo, {}});
        moving(++done);
    }
    books.record(batchNumber(QString::number(date.year()), monthCode(monthName(date.month()))), 0);
    return done;
}

void billOnDayOfVisit(Books& books, QDate from, QDate to) {
    books.connection.execute(Sql("update hrecords set ")
                             << " BillDate=recdate where month(recDate)   <>  month(BillDate) and recdate "
                                "between '"
                             << from << "' and '" << to
                             << "' and consultID not in (select billNo from Billing where isProcess=1)");
    books.record(from.toString(Qt::ISODate), 0);
}

} // namespace orvane
