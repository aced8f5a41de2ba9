#include "printouts/frmPrintRpt.h"

namespace orvane {

frmPrintRpt::frmPrintRpt(Program& owner) : ReportScreen(owner, "frmPrintRpt", "Debt Information") {}

Layout frmPrintRpt::layout() const {
    using namespace orvane::layout;
    return column({cell(Label1), cell(crViewer1), buttons({}, {&CancelButton})});
}

/// Nobody has asked for a report where it is opened by itself.
void frmPrintRpt::Form_Activate() {
    if (session.sPrintRptSQL.text().isEmpty())
        return;
    showReport({.file = session.sPrintRptMode == "CLAIMS" ? "rptHmoClaims.rpt" : "rptDebtInfo.rpt",
                .rows = Recordset::paged(program.openBilling(), session.sPrintRptSQL),
                .nothing = "No Report for the specified Item"});
}

} // namespace orvane
