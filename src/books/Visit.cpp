#include "books/Visit.h"

#include "books/Bill.h"
#include "books/Consultation.h"
#include "books/Limits.h"

namespace orvane {

namespace {

qlonglong highestSerial(Connection& connection, const Sql& sql) {
    const Recordset highest(connection, sql);
    return highest.eof() ? 0 : highest.integer("ID");
}

/// By items or a bill, without a look at visits.
bool isLeftOver(Connection& connection, const QString& id) {
    return !Recordset(connection, Sql("select SNo from BillAccum where consultID='") << id << "'").eof() ||
           !Recordset(connection, Sql("select billNo from Billing where billNo='") << id << "'").eof();
}

void setColumns(Recordset& row, const Visit& visit) {
    row.set("recDate", visit.date);
    row.set("clientCat", visit.category);
    row.set("clinicType", visit.clinic);
    row.set("Remarks", visit.purpose);
    row.set("referal", visit.referral);
    row.set("PNo", visit.pno);
    row.set("empID", visit.officer);
    row.set("coyName", visit.clientID.isEmpty() ? QVariant() : visit.clientID);
}

void addVisit(Books& books, const Visit& visit, const QString& consultID, QTime at) {
    Recordset row(books.connection, Sql("select  * from hRecords where 1=2"));
    row.addNew();
    setColumns(row, visit);
    row.set("consultID", consultID);
    row.set("htime", at.toString("HH:mm"));
    row.set("attendedto", 0);
    row.update();
}

void joinWhatWaited(Books& books, const Visit& visit, const QString& consultID, const QString& followUpOf) {
    Connection& connection = books.connection;
    connection.execute(Sql("update billaccum set consultID='")
                       << consultID << "' where pno = '" << visit.pno << "' and consultID = ''");
    if (!followUpOf.isEmpty())
        connection.execute(Sql("Update hreferal set attendedTo = 1 where ConsultID = '") << followUpOf << "'");
    connection.execute(Sql("Update hpatients set ") << "clientCatID='" << visit.category << "',"
                                                    << "ref='" << visit.referral << "' "
                                                    << "where pno = '" << visit.pno << "'");
}

Recordset visitRow(Books& books, qlonglong recID) {
    return Recordset(books.connection, Sql("select * from hRecords where recID=") << recID);
}

/// A visit on a bill is its bill's, and an officer changes only what he has seen.
std::optional<Refusal> whyNotChanged(Books& books, const Recordset& row, const Visit& listed) {
    if (row.eof())
        return Refusal::VisitGone;
    if (isBillProcessed(books.connection, row.text("consultID")))
        return Refusal::BillProcessed;
    const bool isAsListed = row.date("recDate") == listed.date && row.text("PNo") == listed.pno &&
                            row.text("clientCat") == listed.category && row.text("clinicType") == listed.clinic &&
                            row.text("Remarks") == listed.purpose && row.text("referal") == listed.referral;
    if (!row.isNull("BillDate") || !isAsListed)
        return Refusal::VisitMoved;
    return std::nullopt;
}

} // namespace

QString genConsultID(Connection& connection, const QString& hospital) {
    qlonglong serial = highestSerial(
        connection, Sql("select MAX(cast(SUBSTRING(consultID, 7, 7)as bigint))  as ID from hRecords WHERE   "
                        "(SUBSTRING(consultID, 4, 3) = 'OFL') and (SUBSTRING(consultID, 1, 3)='")
                        << hospital << " ')");
    if (serial < 1)
        serial = highestSerial(connection, Sql("select MAX(SUBSTRING(consultID, 4, 7)) AS ID From hRecords WHERE     "
                                               "(SUBSTRING(consultID, 1, 3) = 'OFL')"));
    QString id;
    do
        id = hospital + "OFL" + ("0000000" + QString::number(++serial)).right(7);
    while (isLeftOver(connection, id));
    return id;
}

bool hasOpenVisit(Connection& connection, const QString& pno, QDate day) {
    return !Recordset(connection, Sql("select pno from qryhVisitsForToday where recdate='")
                                      << day << "' and pno='" << pno << "' and attendedTo = 0")
                .eof();
}

Given<QString> enterVisit(Books& books, const Visit& visit, const QDateTime& at, const QString& followUpOf) {
    if (const auto refusal = whyNotDated(books, visit.date))
        return *refusal;
    if (hasOpenVisit(books.connection, visit.pno, visit.date))
        return Refusal::VisitOpen;
    const QString consultID = genConsultID(books.connection, books.settings().hospital);
    addVisit(books, visit, consultID, at.time());
    const double fee = postConsultationFee(books, {visit.clinic, visit.purpose, visit.pno, consultID, at.date()});
    joinWhatWaited(books, visit, consultID, followUpOf);
    books.record(consultID, fee);
    return consultID;
}

Given<Saved> changeVisit(Books& books, qlonglong recID, const Visit& listed, const Visit& visit) {
    if (const auto refusal = whyNotDated(books, visit.date))
        return *refusal;
    Recordset row = visitRow(books, recID);
    if (const auto refusal = whyNotChanged(books, row, listed))
        return *refusal;
    setColumns(row, visit);
    row.set("exitDate", visit.date);
    row.update();
    books.record(row.text("consultID"), 0);
    return Saved{};
}

Given<Saved> deleteVisit(Books& books, qlonglong recID, const Visit& listed) {
    const Recordset row = visitRow(books, recID);
    if (const auto refusal = whyNotChanged(books, row, listed))
        return *refusal;
    books.connection.execute(Sql("delete from hrecords where recID = '") << recID << "'");
    books.record(row.text("consultID"), 0);
    return Saved{};
}

bool isVisitNumberInUse(Connection& connection, const QString& id) {
    return isLeftOver(connection, id) ||
           !Recordset(connection, Sql("select recID from hRecords where consultID='") << id << "'").eof();
}

QDate addSplitVisit(Books& books, const QString& consultID, const QString& splitNo, const QString& clientID) {
    const Recordset visit(books.connection, Sql("select  * from hRecords where consultID='") << consultID << "'");
    if (visit.eof())
        throw DataError("The visit of the bill is not there.");
    Recordset row(books.connection, Sql("select  * from hRecords where 1=2"));
    row.addNew();
    for (const char* column : {"recDate", "PNo", "empID", "clinicType", "Remarks", "referal", "suppres", "attendedto",
                               "attendedtoByDoc", "attendedToByNurse"})
        row.set(column, visit.value(column));
    row.set("htime", books.now().toString("HH:mm"));
    row.set("consultID", splitNo);
    row.set("clientCat", "PRIVATE");
    row.set("coyName", clientID);
    row.set("BillDate", visit.date("recDate"));
    row.set("AttndStatus", "SPLIT");
    row.update();
    return visit.date("recDate");
}

} // namespace orvane
