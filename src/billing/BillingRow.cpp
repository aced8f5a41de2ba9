#include "billing/BillingRow.h"

namespace orvane {

void addBillingRow(Connection& connection, const NewBill& bill) {
    Recordset row(connection, Sql("select * from Billing where 1=2"));
    row.addNew();
    row.set("bdate", bill.date);
    row.set("billNo", bill.billNo);
    row.set("PNo", bill.pno);
    row.set("clientID", bill.clientID);
    row.set("Amountbilled", bill.amount);
    row.set("AmountBIlledInWord", bill.words);
    row.set("AmountPaid", 0);
    row.set("profFee", 0);
    row.set("billingMonth", QLocale::c().standaloneMonthName(bill.date.month()));
    row.set("billingYear", QString::number(bill.date.year()));
    row.set("diagnosis", "");
    row.set("billType", QVariant());
    row.update();
}

std::optional<double> billDetailsTotal(Connection& connection, const QString& billNo) {
    const Recordset total(connection, Sql("select  PNo,Subtotal from vwBillingProcessDetailsGrouped where billno='")
                                          << billNo << "'");
    if (total.eof())
        return {};
    return total.number("SubTotal");
}

QString getValInWord(Program& program, double amount) {
    program.session.dBillTotal = amount;
    program.amountToUpperWords();
    return program.session.sAmountWords;
}

void updateBillAmount(Connection& connection, const QString& billNo, double amount, const QString& words) {
    connection.execute(Sql("update  billing set AmountBilledInWord='")
                       << words << "', amountBilled= " << amount << " where billno = '" << billNo << "'");
}

} // namespace orvane
