#include "books/Supplier.h"

#include "books/NextCode.h"

namespace orvane {

namespace {

void compose(Recordset& row, const Supplier& supplier) {
    row.set("SupplierName", supplier.name);
    row.set("Category", supplier.category);
    row.set("ContactName", nullIfEmpty(supplier.contact));
    row.set("Address", supplier.address);
    row.set("Phone", nullIfEmpty(supplier.phone));
    row.set("Email", nullIfEmpty(supplier.email));
    row.set("AccountNo", nullIfEmpty(supplier.accountNo));
    row.update();
}

Recordset supplierOf(Connection& connection, const QString& supplierID) {
    return Recordset(connection, Sql("select * from suppliers where supplierID='") << supplierID << "'");
}

} // namespace

Given<QString> addSupplier(Books& books, const Supplier& supplier) {
    const std::optional<QString> number =
        nextCode(books.connection, Sql("select max(supplierID) as ID from vwSupplierCode "), 4);
    if (!number)
        return Refusal::NoSupplierCode;
    if (!supplierOf(books.connection, *number).eof())
        return Refusal::SupplierCodeTaken;
    Recordset row(books.connection, Sql("select * from suppliers where 1=2"));
    row.addNew();
    row.set("supplierID", *number);
    compose(row, supplier);
    books.record(*number, 0);
    return *number;
}

void changeSupplier(Books& books, const QString& supplierID, const Supplier& supplier) {
    Recordset row = supplierOf(books.connection, supplierID);
    if (row.eof())
        return;
    compose(row, supplier);
    books.record(supplierID, 0);
}

void archiveSupplier(Books& books, const QString& supplierID) {
    books.connection.execute(Sql("insert into SuppliersArchive select * from suppliers where supplierID='")
                             << supplierID << "'");
    books.connection.execute(Sql("delete from suppliers where supplierID = '") << supplierID << "'");
    books.record(supplierID, 0);
}

} // namespace orvane
