#include "printouts/FrmRptPaymentsByCashier.h"

namespace orvane {

FrmRptPaymentsByCashier::FrmRptPaymentsByCashier(Program& owner)
    : ReportScreen(owner, "FrmRptPaymentsByCashier", "Payments Received by Cashier") {
    DTPicker1.setRangeEnd(&DTPicker2);
}

Layout FrmRptPaymentsByCashier::layout() const {
    using namespace orvane::layout;
    return column({row({field("Payments Between", DTPicker1), field("and", DTPicker2), cell(cmdList),
                        field("Cashier", cboCust, 40), stretch()}),
                   growing(cell(crViewer1)), buttons({}, {&CancelButton, &cmdDetails, &cmdDisplay})});
}

void FrmRptPaymentsByCashier::Form_Load() {
    DTPicker1.setDate(session.gServerDate);
    DTPicker2.setDate(session.gServerDate);
    cmdList_Click();
}

bool FrmRptPaymentsByCashier::isReady() {
    return passes({{DTPicker1.isEmpty() || DTPicker2.isEmpty(), "Please specify Start/End Date", &DTPicker1}});
}

/// Who took a receipt in these days.
void FrmRptPaymentsByCashier::cmdList_Click() {
    if (!isReady())
        return;
    cboCust.clear();
    cboCust.addItem("(ALL)", QString());
    Connection connection = program.openBilling();
    Recordset cashier(connection,
                      Sql("select distinct empID,empName from vwPaymentsByCashier where receiptdate between'")
                          << DTPicker1.date() << "' and '" << DTPicker2.date() << "' order by empName");
    for (; !cashier.eof(); cashier.moveNext())
        cboCust.addItem(cashier.text("empName"), cashier.text("empID"));
    cboCust.setListIndex(0);
}

void FrmRptPaymentsByCashier::cmdDisplay_Click() {
    showPayments("\\rptPaymentsByCashier.rpt", "vwPaymentsByCashier", "ReceiptDate,ReceiptNo");
}

void FrmRptPaymentsByCashier::cmdDetails_Click() {
    showPayments("\\rptPaymentsByCashierTypes.rpt", "vwPaymentsByCashierTypes",
                 "ReceiptDate,EmpName,PayType,ReceiptNo");
}

void FrmRptPaymentsByCashier::showPayments(const QString& file, SqlLiteral view, SqlLiteral order) {
    if (!isReady())
        return;
    const QString cashier = cboCust.picked<QString>().value_or(QString());
    Sql sql = Sql("select * from ") << view << " where ";
    if (!cashier.isEmpty())
        sql << "empID='" << cashier << "' and ";
    sql << "receiptdate between'" << DTPicker1.date() << "' and '" << DTPicker2.date() << "' order by " << order;
    showReport({.file = file,
                .rows = Recordset::paged(program.openBilling(), sql),
                .nothing = "No Report for the specified Cashier",
                .values = {{"Cashier", cashier.isEmpty() ? "All cashiers" : cboCust.text()},
                           {"Period", periodWords(DTPicker1.date(), DTPicker2.date())}}});
}

} // namespace orvane
