#include "books/BillItem.h"

namespace orvane {

void addItem(Books& books, const BillItem& item) {
    Recordset row(books.connection, Sql("select * from billAccum where 1=2"));
    row.addNew();
    row.set("dtDate", item.date);
    row.set("PNo", item.pno);
    row.set("consultID", item.consultID);
    row.set("drgName", item.name);
    row.set("Category", nullIfEmpty(item.category));
    row.set("Price", item.price);
    row.set("Qty", item.qty);
    row.set("SubTotal", item.subTotal);
    row.set("usage", nullIfEmpty(item.usage));
    row.set("billType", item.billType);
    row.set("billTo", nullIfEmpty(item.billTo));
    row.set("coyName", nullIfEmpty(item.coyName));
    row.set("revType", nullIfEmpty(item.revType));
    row.set("conID", item.conID ? QVariant(*item.conID) : QVariant());
    row.set("Capitated", nullIfEmpty(item.capitated));
    row.set("BillBy", nullIfEmpty(item.billBy));
    row.set("attendedto", int(item.billed));
    row.set("isBilled", int(item.billed));
    row.set("suppres", 0);
    row.update();
}

/// Other departments' programs add items at any time, so that the newest of all visits need not be the one just added.
qlonglong numberOfAddedItem(Connection& connection, const BillItem& item) {
    // The name is compared here: a comparison in SQL would miss one that ends in a blank.
    for (Recordset items(connection, Sql("select SNo,drgName from billaccum where consultID='")
                                         << item.consultID << "' order by SNo desc");
         !items.eof(); items.moveNext())
        if (items.text("drgName") == item.name)
            return items.integer("SNo");
    throw DataError("The item that was just added cannot be found.");
}

void moveItem(Books& books, qlonglong sno, const NewPayer& to) {
    books.connection.execute(Sql("update  billAccum set consultID ='")
                             << to.billNo << "',Coyname='" << to.clientID << "',BillTo='" << to.clientCode
                             << "' where sno =" << sno);
}

bool isCarriedBalance(const QString& item) {
    return item == "PREVIOUS CREDIT" || item == "PREVIOUS DEBT";
}

} // namespace orvane
