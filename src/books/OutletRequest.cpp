#include "books/OutletRequest.h"

#include "books/BillItem.h"
#include "books/ReceiptNumber.h"
#include "data/words/Money.h"

namespace orvane {

namespace {

const QString category = "PRIVATE";

/// The visit under its number.
struct OutletVisit {
    const OutletRequest& request;
    QString number;
    int serial; ///< of the number, by which the laboratory's rows hang together

    QString customer() const { return request.surname + ' ' + request.firstName; }
};

qlonglong lastSerial(Connection& connection, const QString& hospital) {
    const Recordset own(connection,
                        Sql("select MAX(cast(SUBSTRING(consultID, 8, 6)as bigint))  as ID from hRecordsPublic WHERE  "
                            "(SUBSTRING(consultID, 1, 3)='")
                            << hospital << " ')");
    if (!own.eof() && own.integer("ID") >= 1)
        return own.integer("ID");
    const Recordset any(connection, Sql("select top 1 conIdVal from qryidgenConPublic order by conIDVal desc"));
    return any.eof() ? 0 : any.integer("conIdVal");
}

void addOutletItem(Books& books, const OutletVisit& visit, const OutletItem& item) {
    addItem(books, {.date = visit.request.date,
                    .consultID = visit.number,
                    .pno = visit.number,
                    .name = item.name,
                    .category = item.category,
                    .price = item.price,
                    .qty = item.qty,
                    .subTotal = item.subTotal,
                    .billType = item.kind,
                    .revType = item.revType,
                    .conID = visit.serial});
    books.audit({"Outsider: insert Bill Items for: " + visit.customer(), visit.number,
                 item.name + ": " + formatTwoDecimals(item.subTotal)});
}

/// A row of hInvestigateFindings, for the result to come.
void addFinding(Books& books, const OutletVisit& visit, const OutletItem& item) {
    Recordset row(books.connection, Sql("select * from hInvestigateFindings where 1=2"));
    row.addNew();
    row.set("invDate", visit.request.date);
    row.set("dtDate", visit.request.date);
    row.set("consultID", visit.number);
    row.set("PNo", visit.number);
    row.set("conID", visit.serial);
    for (const char* column : {"sympItem", "drgName"})
        row.set(column, item.name);
    for (const char* column : {"sympItemCat", "Category", "Remarks"})
        row.set(column, item.category);
    row.set("billType", item.kind);
    row.set("revType", item.revType);
    row.set("Result", "XXX");
    row.set("clientCat", category);
    row.set("empID", books.actor().empID);
    row.set("Capitated", "NO");
    row.set("Price", item.price);
    row.set("Qty", item.qty);
    row.set("SubTotal", item.subTotal);
    for (const char* flag : {"attendedto", "attendedTobyLab", "suppres"})
        row.set(flag, 0);
    row.update();
    books.audit({"Outsider: insert Inv. Items for: " + visit.customer(), visit.number, item.name});
}

/// A row of hInvestigate: all that was asked for, under the outlet's own number.
void addInvestigation(Books& books, const OutletVisit& visit) {
    QStringList names;
    for (const OutletItem& item : visit.request.items)
        names << item.name;
    Recordset row(books.connection, Sql("select * from hInvestigate where 1=2"));
    row.addNew();
    row.set("consultID", visit.number);
    row.set("conID", visit.serial);
    row.set("invDate", visit.request.date);
    row.set("PNo", visit.number);
    row.set("investigate", names.join("\r\n"));
    row.set("labnum", visit.request.labNo + '/' + books.settings().hospital);
    row.set("clientCat", category);
    row.set("attendedto", 0);
    row.set("attendedTobyLab", 0);
    row.update();
}

void addOutletVisit(Books& books, const OutletVisit& visit) {
    Recordset row(books.connection, Sql("select * from hRecordsPublic where 1=2"));
    row.addNew();
    row.set("recDate", visit.request.date);
    row.set("PNo", visit.number);
    row.set("consultID", visit.number);
    row.set("coyName", books.settings().privateTariff);
    row.set("clientCat", category);
    row.set("empID", books.actor().empID);
    row.set("clinicType", visit.request.outlet);
    row.set("Remarks", visit.request.maturity);
    row.set("htime", books.now().toString("HH:mm"));
    row.set("referal", "NO");
    row.set("attendedto", 0);
    row.update();
}

void addCustomer(Books& books, const OutletVisit& visit) {
    const OutletRequest& request = visit.request;
    Recordset row(books.connection, Sql("select * from hPatientsPublic where 1=2"));
    row.addNew();
    row.set("PNo", visit.number);
    row.set("pSurname", request.surname);
    row.set("pfirstname", request.firstName);
    row.set("pPhoneNo", nullIfEmpty(request.phone));
    row.set("Maturity", request.maturity);
    row.set("Age", parseAmount(request.age) ? request.age : "0");
    row.set("sex", request.sex);
    row.set("coyName", books.settings().privateTariff);
    row.update();
}

} // namespace

QString genOutletNo(Connection& connection, const QString& hospital, QDate date) {
    return hospital + '/' + date.toString("yy") + '/' + nextDigits(lastSerial(connection, hospital), 6);
}

Given<QString> enterOutletRequest(Books& books, const OutletRequest& request) {
    const QString number = genOutletNo(books.connection, books.settings().hospital, request.date);
    const OutletVisit visit{request, number, number.right(6).toInt()};
    double total = 0;
    for (const OutletItem& item : request.items) {
        addOutletItem(books, visit, item);
        if (item.kind == "INVESTIGATION")
            addFinding(books, visit, item);
        total += item.subTotal;
    }
    addInvestigation(books, visit);
    addOutletVisit(books, visit);
    addCustomer(books, visit);
    if (!request.remarks.trimmed().isEmpty())
        books.audit({"Outsider: Remarks for: " + visit.customer(), number, request.remarks.trimmed()});
    books.record(number, round2(total));
    return number;
}

} // namespace orvane
