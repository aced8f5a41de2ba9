#include "books/BillDate.h"

namespace orvane {

namespace {

QDate firstOfNextMonth(QDate date) {
    return QDate(date.year(), date.month(), 1).addMonths(1);
}

int yearMonth(QDate date) {
    return date.year() * 100 + date.month();
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

} // namespace orvane
