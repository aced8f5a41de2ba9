#include "books/Collate.h"

#include "books/Bill.h"
#include "books/BillItem.h"
#include "books/BillLine.h"
#include "data/words/Money.h"

#include <algorithm>

namespace orvane {

namespace {

/// The names under which a statement gives an item's columns.
struct ItemColumns {
    const char *date, *name, *price, *dosage;
};

constexpr ItemColumns ofView{"Date", "Service", "UnitPrice", "Dosage"}; ///< qryBillAccum
constexpr ItemColumns ofTable{"dtDate", "drgName", "Price", "usage"};   ///< BillAccum itself

BillLine lineOf(const Books& books, const BillInHand& bill, const Recordset& item, const ItemColumns& columns) {
    return {.sno = item.integer("SNo"),
            .billNo = bill.consultID,
            .date = item.date(columns.date),
            .pno = bill.pno,
            .name = item.text(columns.name),
            .price = item.number(columns.price),
            .qty = item.number("Qty"),
            .subTotal = round2(item.number("SubTotal")),
            .billType = item.text("billType"),
            .conID = item.value("conID"),
            .dosage = item.text(columns.dosage),
            .coyName = item.text("coyName"),
            .billTo = item.text("billTo"),
            .revType = item.text("revType"),
            .billBy = books.actor().user};
}

/// One pass over items of the visit: which it takes, and how they leave the waiting state.
struct Pass {
    Sql items;
    const ItemColumns& columns;
    SqlLiteral leave;          ///< up to the visit
    bool takesCarried = false; ///< a carried balance is billed whatever its sign
};

Pass cashAndCompany(const BillInHand& bill) {
    return {Sql("select * from qryBillAccum where attendedTo=0  and  consultID='")
                << bill.consultID
                << "'  and ClientCat not in ('HMO','PHIS','NHIS')  and SNo not in (Select SNo from BillingDetails)",
            ofView, "update BillAccum set attendedTo=1,isBilled=1,capitated='NO' where consultID = '"};
}

Pass released(const BillInHand& bill) {
    return {Sql("select * from billAccum where attendedTo=1 and capitated='NO' and  consultID='")
                << bill.consultID << "' and SNo not in (Select SNo from BillingDetails)",
            ofTable, "update BillAccum set attendedTo=1,isBilled=1 where consultID = '"};
}

Pass leftAtTheSave(const BillInHand& bill) {
    return {Sql("select * from qryBillAccum where AttendedTo=0 and consultID='")
                << bill.consultID
                << "' and (capitated='NO' or Service in ('PREVIOUS CREDIT','PREVIOUS DEBT')) and SNo not in (Select "
                   "SNo from BillingDetails)",
            ofView, "update BillAccum set attendedTo=1,isBilled=1,capitated='NO' where consultID = '", true};
}

/// Gives the naira that it billed.
double runPass(Books& books, const BillInHand& bill, const Pass& pass) {
    QVector<BillLine> lines;
    double billed = 0;
    for (Recordset items(books.connection, pass.items); !items.eof(); items.moveNext()) {
        const BillLine line = lineOf(books, bill, items, pass.columns);
        if (line.subTotal <= 0 && !(pass.takesCarried && isCarriedBalance(line.name)))
            continue;
        lines.append(line);
        billed += line.subTotal;
    }
    addLines(books, lines);
    for (const BillLine& line : lines) {
        books.connection.execute(Sql(pass.leave) << bill.consultID << "' and SNo='" << line.sno << "'");
        books.audit({"insert Bill Item for " + bill.patient, bill.consultID,
                     line.name + ": " + formatTwoDecimals(line.subTotal)});
    }
    return billed;
}

/// Rows that lack what a line of the bill needs.
void repairItems(Connection& connection, const BillInHand& bill) {
    connection.execute(Sql("update billingDetails set BillType ='SERVICE' where billtype='' and BillNo='")
                       << bill.consultID << "'");
    connection.execute(Sql("update hrecords set CoyName ='")
                       << bill.retainID << "' where CoyName is null and consultID='" << bill.consultID << "'");
    connection.execute(Sql("update BillAccum set CoyName='")
                       << bill.retainID << "' where coyName is null and consultID = '" << bill.consultID << "'");
    connection.execute(Sql("update BillAccum set BillTo='")
                       << bill.retainCode << "' where BillTo is null and consultID = '" << bill.consultID << "'");
}

/// A fee-for-service patient of a capitated client pays item by item: the items become eligible for the bill.
void releaseFeeForService(Connection& connection, const BillInHand& bill) {
    for (Recordset rows(connection,
                        Sql("select * from qryBillAccum where referal = 'YES' and AttendedTo=0 and consultID='")
                            << bill.consultID << "' and SNo not in (Select SNo from BillingDetails)");
         !rows.eof(); rows.moveNext())
        connection.execute(Sql("update BillAccum set attendedTo=1,isBilled=1,capitated='NO' where SNo = '")
                           << rows.integer("SNo") << "'");
}

/// Whether a pass takes the item, which is not on a bill.
bool isToBeBilled(const Recordset& item) {
    const bool hasPrice = item.number("SubTotal") > 0;
    if (item.integer("AttendedTo") == 1)
        return hasPrice && item.text("Capitated") == "NO";
    return item.text("Referal") == "YES" || (hasPrice && !isCapitatedCategory(item.text("ClientCat")));
}

bool lacksSomething(Connection& connection, const BillInHand& bill) {
    const Sql questions[] = {
        Sql("select detID from BillingDetails where (billtype='' or subtotal=0) and billNo='") << bill.consultID << "'",
        Sql("select SNo from BillAccum where (coyName is null or BillTo is null) and consultID='")
            << bill.consultID << "'",
        Sql("select consultID from hrecords where CoyName is null and consultID='") << bill.consultID << "'"};
    return std::any_of(std::begin(questions), std::end(questions),
                       [&](const Sql& question) { return !Recordset(connection, question).eof(); });
}

} // namespace

bool needsCollation(Connection& connection, const BillInHand& bill) {
    for (Recordset items(connection, Sql("select * from qryBillAccum where consultID='")
                                         << bill.consultID << "' and SNo not in (Select SNo from BillingDetails)");
         !items.eof(); items.moveNext())
        if (isToBeBilled(items))
            return true;
    return lacksSomething(connection, bill);
}

Given<double> collateBillItems(Books& books, const BillInHand& bill) {
    if (const auto refusal = whyNotBilled(books.connection, bill))
        return *refusal;
    repairItems(books.connection, bill);
    double billed = runPass(books, bill, cashAndCompany(bill));
    releaseFeeForService(books.connection, bill);
    billed = round2(billed + runPass(books, bill, released(bill)));
    removeEmptyLines(books, bill.consultID);
    // In the same step, so that a bill never stands beside lines of another amount.
    refreshBillTotal(books, bill.consultID);
    if (billed != 0)
        books.record(bill.consultID, billed);
    return billed;
}

void billWaitingItems(Books& books, const BillInHand& bill) {
    runPass(books, bill, leftAtTheSave(bill));
    removeEmptyLines(books, bill.consultID);
    books.connection.execute(Sql("update BillAccum set attendedTo=1,isbilled=1 where consultID = '")
                             << bill.consultID << "'");
}

} // namespace orvane
