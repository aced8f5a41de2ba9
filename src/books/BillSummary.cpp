#include "books/BillSummary.h"

#include "books/Bill.h"
#include "books/BillInHand.h"
#include "data/words/Money.h"

namespace orvane {

namespace {

/// The client of a visit, of the hospital or of an outlet.
QString visitClient(Connection& connection, const QString& consultID) {
    const Recordset visit(connection, Sql("select coyName from hRecords where consultID='") << consultID << "'");
    if (!visit.eof())
        return visit.text("coyName");
    const Recordset outlet(connection, Sql("select coyName from hRecordsPublic where consultID='") << consultID << "'");
    return outlet.eof() ? QString() : outlet.text("coyName");
}

} // namespace

Given<BillFigures> saveBillSummary(Books& books, const QString& billNo, const QString& pno) {
    Connection& connection = books.connection;
    if (!hasBill(connection, billNo))
        addBill(books,
                {.date = books.today(), .billNo = billNo, .pno = pno, .clientID = visitClient(connection, billNo)});
    BillFigures figures;
    figures.billed =
        (isBillProcessed(connection, billNo) ? billDetailsTotal(connection, billNo) : refreshBillTotal(books, billNo))
            .value_or(0);
    refreshBillAmountPaid(books, billNo);
    const Recordset info(connection, Sql("select distinct * from vwbillInfo   where consultID='") << billNo << "'");
    if (!info.eof()) {
        figures.generated = info.number("amountGen");
        figures.paid = info.number("AmountPaid");
        figures.balance = info.number("AmountBal");
    }
    return figures;
}

double itemsTotal(Connection& connection, const QString& consultID) {
    Recordset items(connection,
                    Sql("select distinct ClientCatID,ClientCatID as ClientCat,Referal,billtype,SNo,conID,[Date],"
                        "Capitated ,ConsultID,Service,Dosage,UnitPrice,Qty,Subtotal,CoyName,BillTo,RevType "
                        "from qryBillAccum where consultid='")
                        << consultID << "'");
    const bool chargedOnly =
        !items.eof() && isCapitatedCategory(items.text("ClientCatID")) && items.text("Referal") != "YES";
    double sum = 0;
    for (; !items.eof(); items.moveNext())
        if (!chargedOnly || items.text("Capitated") == "NO")
            sum += items.number("Subtotal");
    return round2(sum);
}

} // namespace orvane
