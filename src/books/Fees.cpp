#include "books/Fees.h"

#include "books/Bill.h"
#include "books/BillItem.h"
#include "books/BillLine.h"
#include "data/words/Money.h"

namespace orvane {

namespace {

BillItem feeItem(const BillInHand& visit, const PercentFee& fee, double amount) {
    return {.date = fee.date,
            .consultID = visit.consultID,
            .pno = visit.pno,
            .name = fee.item,
            .category = "CONSULTATION",
            .price = amount,
            .subTotal = amount,
            .billType = "SERVICE",
            .billTo = visit.retainCode,
            .coyName = visit.retainID};
}

/// What the fee of the scheme is worked out from, in naira. Capitated items count.
double nhisFeeBase(Books& books, const QString& consultID) {
    const QString& base = books.settings().nhisFeeBase;
    const Recordset sum =
        base.isEmpty() || base == "ALL"
            ? Recordset(books.connection, Sql("select sum(subtotal) as Subtotal from BillAccum where consultid='")
                                              << consultID << "'")
            : Recordset(books.connection,
                        Sql("select sum(isnull(subtotal,0)) as Subtotal from BillAccum where consultid='")
                            << consultID << "' and billtype='DRUG'");
    return sum.number("Subtotal");
}

} // namespace

Given<double> addProfessionalFee(Books& books, const BillInHand& visit, const PercentFee& fee, double bill) {
    if (const auto refusal = whyNotBilled(books.connection, visit))
        return *refusal;
    const double amount = round2(bill * fee.percent / 100);
    addItem(books, feeItem(visit, fee, amount));
    books.record(visit.consultID, amount);
    return amount;
}

QString professionalFeeItem(const QString& percent) {
    return "Prof Fee (" + percent + "%)";
}

double professionalFees(Connection& connection, const QString& billNo) {
    const Recordset sum(connection, Sql("select sum(SubTotal) as Fees from BillingDetails where billNo='")
                                        << billNo << "' and drgName like 'Prof Fee (%'");
    return round2(sum.number("Fees"));
}

Given<double> addNhisFee(Books& books, const BillInHand& visit, const PercentFee& fee) {
    if (const auto refusal = whyNotBilled(books.connection, visit))
        return *refusal;
    const double amount = round2(nhisFeeBase(books, visit.consultID) * fee.percent / 100);
    BillItem item = feeItem(visit, fee, amount);
    item.revType = books.settings().nhisFeeBase == "DRUG" ? "CONSULTATION" : "DRUG";
    item.conID = 0;
    item.billBy = books.actor().user;
    item.billed = true;
    addItem(books, item);
    addLines(books, {{.sno = numberOfAddedItem(books.connection, item),
                      .billNo = visit.consultID,
                      .date = item.date,
                      .pno = item.pno,
                      .name = item.name,
                      .price = amount,
                      .subTotal = amount,
                      .billType = item.billType,
                      .conID = 0,
                      .coyName = item.coyName,
                      .billTo = item.billTo,
                      .revType = item.revType,
                      .capitated = "NO",
                      .billBy = item.billBy}});
    refreshBillTotal(books, visit.consultID);
    books.record(visit.consultID, amount);
    return amount;
}

} // namespace orvane
