#include "books/Bank.h"

#include "books/NextCode.h"

namespace orvane {

namespace {

Recordset bankOf(Connection& connection, const QString& code) {
    return Recordset(connection, Sql("select * from groupbank where groupCode='") << code << "'");
}

Given<Saved> addRow(Books& books, const BankBranch& branch, const QString& status) {
    const std::optional<QString> code =
        nextCode(books.connection,
                 Sql("select max(branchCode) as ID from vwBanks where bankCode='") << branch.bankCode << "'", 3);
    if (!code)
        return Refusal::NoBranchCode;
    Recordset row(books.connection, Sql("select * from banks where 1=2"));
    row.addNew();
    row.set("bankcode", branch.bankCode);
    row.set("branchcode", *code);
    row.set("Branch", nullIfEmpty(branch.branch));
    row.set("Location", nullIfEmpty(branch.location));
    row.set("Status", status);
    row.update();
    books.record(branch.bankCode + '/' + *code, 0);
    return Saved{};
}

} // namespace

Given<Saved> addBank(Books& books, const BankBranch& own) {
    const std::optional<QString> code =
        nextCode(books.connection, Sql("select max(groupCode) as ID from groupbank "), 3);
    if (!code)
        return Refusal::NoBankCode;
    if (!bankOf(books.connection, *code).eof())
        return Refusal::GroupCodeTaken;
    Recordset row(books.connection, Sql("select * from groupBank where 1=2"));
    row.addNew();
    row.set("groupcode", *code);
    row.set("GroupName", own.bankName);
    row.update();
    BankBranch ofBank = own;
    ofBank.bankCode = *code;
    return addRow(books, ofBank, "PARENT");
}

Given<Saved> addBankBranch(Books& books, const BankBranch& branch) {
    return addRow(books, branch, "BRANCH");
}

void renameBank(Books& books, const QString& code, const QString& name) {
    Recordset row = bankOf(books.connection, code);
    if (row.eof())
        return;
    row.set("GroupName", name);
    row.update();
    books.record(code, 0);
}

void changeBankBranch(Books& books, qlonglong sno, const BankBranch& branch) {
    Recordset row(books.connection, Sql("select * from banks where SNO='") << sno << "'");
    if (row.eof())
        return;
    row.set("Location", nullIfEmpty(branch.location));
    row.set("bankname", branch.bankName);
    row.set("Branch", branch.branch);
    row.update();
    books.record(row.text("bankcode") + '/' + row.text("branchcode"), 0);
}

void deleteBankBranch(Books& books, qlonglong sno) {
    books.connection.execute(Sql("delete from banks where SNO = '") << sno << "'");
    books.record(QString::number(sno), 0);
}

} // namespace orvane
