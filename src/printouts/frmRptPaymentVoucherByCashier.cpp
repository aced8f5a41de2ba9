#include "printouts/frmRptPaymentVoucherByCashier.h"

namespace orvane {

frmRptPaymentVoucherByCashier::frmRptPaymentVoucherByCashier(Program& owner)
    : ReportScreen(owner, "frmRptPaymentVoucherByCashier", "Payment Voucher from Cashier") {
    DTPicker1.setRangeEnd(&DTPicker2);
}

Layout frmRptPaymentVoucherByCashier::layout() const {
    using namespace orvane::layout;
    return column({row({field("Payments Between", DTPicker1), field("and", DTPicker2), stretch()}),
                   growing(cell(crViewer1)), buttons({}, {&CancelButton, &cmdDisplay})});
}

void frmRptPaymentVoucherByCashier::Form_Load() {
    DTPicker1.setDate(session.gServerDate);
    DTPicker2.setDate(session.gServerDate);
}

void frmRptPaymentVoucherByCashier::cmdDisplay_Click() {
    if (!passes({{DTPicker1.isEmpty() || DTPicker2.isEmpty(), "Please specify Start/End Date", &DTPicker1}}))
        return;
    const QDate first = DTPicker1.date(), last = DTPicker2.date();
    showReport({.file = "\\rptExpensesPay.rpt",
                .rows = Recordset::paged(program.openBilling(),
                                         Sql("select distinct * from vwhExpensePaySumm where date between'")
                                             << first << "' and '" << last << "' order by date desc"),
                .nothing = "No Report for the specified Expense Date",
                .textObjects = {{"Text7", "Payment Vouchers between " + bothDays(first, last)}},
                .values = {{"Period", periodWords(first, last)}}});
}

} // namespace orvane
