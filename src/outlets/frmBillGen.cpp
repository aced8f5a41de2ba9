#include "outlets/frmBillGen.h"

#include "data/words/Money.h"

namespace orvane {

frmBillGen::frmBillGen(Program& owner) : Screen(owner, "frmBillGen", "Income and Collated Bill") {
    for (const char* column : {"AmountGenerated", "AmountPaid", "AmountBilled", "AmtCF", "Balance"})
        grdData.setFormat(column, "#,###.00");
    for (const char* column : {"UnitPrice", "SubTotal"})
        grdData2.setFormat(column, "#,###.00");
    grdData2.hide({"SNo", "BillNo"});
    DTPicker1.setRangeEnd(&DTPicker2);
    grdData.onClick = [this] { showItems(); };
}

Layout frmBillGen::layout() const {
    using namespace orvane::layout;
    return column({row({field("Date between", DTPicker1), field("and", DTPicker2), cell(cmdLoad), stretch(),
                        cell(lblCount), large("Income:", lblAmt)}),
                   row({field("Bill", cboVehNo), cell(cmdShow)}), growing(cell(grdData)), cell(lblHead),
                   growing(cell(grdData2)), buttons({}, {&CancelButton})});
}

void frmBillGen::Form_Load() {
    DTPicker1.setDate(session.gServerDate);
    DTPicker2.setDate(session.gServerDate);
    cmdLoad_Click();
}

bool frmBillGen::hasDates() {
    return passes({{DTPicker1.isEmpty(), "Please specify Date", &DTPicker1},
                   {DTPicker2.isEmpty(), "Please specify Date", &DTPicker2}});
}

void frmBillGen::cmdLoad_Click() {
    if (!hasDates())
        return;
    load();
    Connection connection = program.openBilling();
    fillBills(connection);
}

/// The same bills as they stand now; the row that its user has chosen stays chosen. A date that he is just changing is
/// left alone, and so is a bill that he has picked.
void frmBillGen::tmrLoad_Timer() {
    if (DTPicker1.isEmpty() || DTPicker2.isEmpty() || cboVehNo.listIndex() > 0)
        return;
    const QString chosen = grdData.text("BillNo");
    load();
    const int row = chosen.isEmpty() ? -1 : grdData.findRow("BillNo", chosen);
    if (row >= 0)
        grdData.selectRow(row);
}

void frmBillGen::load() {
    Connection connection = program.openBilling();
    grdData.load(Recordset(connection, Sql("select * from vwBillAccumUnionRpt where date between '")
                                           << DTPicker1.date() << "' and '" << DTPicker2.date()
                                           << " ' ORDER BY Date desc,[time]"));
    lblCount.setText(QString::number(grdData.rowCount()) + " records found");
    showIncome(connection);
}

void frmBillGen::showIncome(Connection& connection) {
    const Recordset income(connection, Sql("select sum(amountpaid) as totAmt from payments where receiptdate between '")
                                           << DTPicker1.date() << "' and '" << DTPicker2.date() << "'");
    lblAmt.setText(formatTwoDecimals(income.eof() ? 0 : income.number("totAmt")));
}

void frmBillGen::fillBills(Connection& connection) {
    cboVehNo.clear();
    cboVehNo.addItem(QString());
    for (Recordset bill(connection,
                        Sql("select [Date], Fullname,AmountBilled, AmountPaid, AmtCF,  Balance, AmountBilledInWord, "
                            "CoyName, BillNo from vwBilling where date between '")
                            << DTPicker1.date() << "' and '" << DTPicker2.date() << " ' ORDER BY fullname asc");
         !bill.eof(); bill.moveNext())
        cboVehNo.addItem(bill.text("Fullname") + " [" + bill.text("BillNo") + ']', bill.text("BillNo"));
}

void frmBillGen::cboVehNo_Click() {
    const auto billNo = cboVehNo.picked<QString>();
    if (!billNo) {
        load();
        return;
    }
    {
        Connection connection = program.openBilling();
        grdData.load(Recordset(connection, Sql("select [Date], Fullname,AmountBilled, AmountPaid, AmtCF,  Balance, "
                                               "AmountBilledInWord, CoyName, BillNo from vwBilling where billno='")
                                               << *billNo << "' ORDER BY  fullname asc"));
    }
    showItems();
}

void frmBillGen::showItems() {
    const QString billNo = grdData.text("BillNo");
    if (billNo.isEmpty()) {
        program.box("Please select a row ");
        return;
    }
    Connection connection = program.openBilling();
    grdData2.load(Recordset(connection, Sql("select   * from vwBillAccumUnion where billno='")
                                            << billNo << "' ORDER BY date, fullname asc"));
    lblHead.setText("Generated Bill for " + grdData.text("Fullname"));
}

} // namespace orvane
