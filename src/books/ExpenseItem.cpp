#include "books/ExpenseItem.h"

#include "books/NextCode.h"

namespace orvane {

namespace {

Recordset categoryOf(Connection& connection, const QString& code) {
    return Recordset(connection, Sql("select * from hExpenseCat where catCode='") << code << "'");
}

Given<Saved> addRow(Books& books, const ExpenseItem& item, const QString& status) {
    const std::optional<QString> code = nextCode(
        books.connection, Sql("select max(itemcode) as ID from vwItemCode where catCode='") << item.category << "'", 3);
    if (!code)
        return Refusal::NoExpenseItemCode;
    Recordset row(books.connection, Sql("select * from hExpenseItems where 1=2"));
    row.addNew();
    row.set("catcode", item.category);
    row.set("ItemCode", *code);
    row.set("ItemName", nullIfEmpty(item.name));
    row.set("Description", nullIfEmpty(item.description));
    row.set("Status", status);
    row.update();
    books.record(item.category + '/' + *code, 0);
    return Saved{};
}

} // namespace

Given<Saved> addExpenseCategory(Books& books, const QString& name, const ExpenseItem& own) {
    const std::optional<QString> code =
        nextCode(books.connection, Sql("select max(catcode) as ID from hExpenseCat "), 3);
    if (!code)
        return Refusal::NoExpenseCatCode;
    if (!categoryOf(books.connection, *code).eof())
        return Refusal::GroupCodeTaken;
    Recordset row(books.connection, Sql("select * from hExpenseCat where 1=2"));
    row.addNew();
    row.set("catcode", *code);
    row.set("catName", name);
    row.update();
    ExpenseItem ofCategory = own;
    ofCategory.category = *code;
    return addRow(books, ofCategory, "CATEGORY");
}

Given<Saved> addExpenseItem(Books& books, const ExpenseItem& item) {
    return addRow(books, item, "ITEM");
}

void renameExpenseCategory(Books& books, const QString& code, const QString& name) {
    Recordset row = categoryOf(books.connection, code);
    if (row.eof())
        return;
    row.set("catName", name);
    row.update();
    books.record(code, 0);
}

void changeExpenseItem(Books& books, qlonglong sno, const ExpenseItem& item) {
    Recordset row(books.connection, Sql("select * from hExpenseItems where SNO='") << sno << "'");
    if (row.eof())
        return;
    row.set("ItemName", item.name);
    row.set("Description", nullIfEmpty(item.description));
    row.update();
    books.record(row.text("catcode") + '/' + row.text("ItemCode"), 0);
}

} // namespace orvane
