#include "books/ApprovalCode.h"

namespace orvane {

namespace {

Recordset codesOf(Connection& connection, const QString& consultID) {
    return Recordset(connection, Sql("select * from hApprvCode where consultID='") << consultID << "' order by SNO");
}

void compose(Recordset& row, const ApprovalCode& code) {
    row.set("ApprvDate", code.date);
    row.set("consultID", code.consultID);
    row.set("ApprvCode", code.code);
    row.set("Remarks", nullIfEmpty(code.remarks));
    row.set("billType", nullIfEmpty(code.billType));
    row.set("PNo", code.pno);
    row.update();
}

QString billTypeOf(const BillInHand& visit) {
    if (visit.referal == "YES")
        return "FEE-FOR-SERVICE";
    return isCapitatedCategory(visit.category) ? "CLAIMS" : "COMPANY";
}

} // namespace

void addApprovalCode(Books& books, const ApprovalCode& code) {
    Recordset row(books.connection, Sql("select * from hApprvCode where 1=2"));
    row.addNew();
    compose(row, code);
    books.record(code.consultID, 0);
}

void changeFirstApprovalCode(Books& books, const ApprovalCode& code) {
    Recordset row = codesOf(books.connection, code.consultID);
    if (row.eof())
        return;
    compose(row, code);
    books.record(code.consultID, 0);
}

void deleteApprovalCode(Books& books, const QString& consultID, qlonglong sno) {
    books.connection.execute(Sql("delete from hApprvCode where sno = '") << sno << "'");
    books.record(consultID, 0);
}

bool noteApprovalCode(Books& books, const BillInHand& visit, const QString& code) {
    Recordset row = codesOf(books.connection, visit.consultID);
    if (row.eof()) {
        addApprovalCode(books, {.date = books.today(),
                                .consultID = visit.consultID,
                                .pno = visit.pno,
                                .code = code,
                                .billType = billTypeOf(visit)});
        return true;
    }
    row.set("ApprvCode", code);
    row.update();
    books.record(visit.consultID, 0);
    return false;
}

QString firstApprovalCode(Connection& connection, const QString& consultID) {
    const Recordset row = codesOf(connection, consultID);
    return row.eof() ? QString() : row.text("ApprvCode");
}

} // namespace orvane
