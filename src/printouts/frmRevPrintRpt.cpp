#include "printouts/frmRevPrintRpt.h"

namespace orvane {

frmRevPrintRpt::frmRevPrintRpt(Program& owner) : ReportScreen(owner, "frmRevPrintRpt", "Revenue Report") {}

Layout frmRevPrintRpt::layout() const {
    using namespace orvane::layout;
    return column({cell(crViewer1), buttons({}, {&CancelButton})});
}

/// Nobody has asked for a report where it is opened by itself.
void frmRevPrintRpt::Form_Activate() {
    if (session.sRevRptSQL.text().isEmpty())
        return;
    static const QHash<QString, QString> files = {
        {"DETAIL", "rptRevenue2.rpt"}, {"CONS-DETAIL", "rptRevenueCons.rpt"}, {"CASH", "rptRevenueCash.rpt"}};
    showReport({.file = files.value(session.sRevRptMode, "rptRevenue.rpt"),
                .rows = Recordset::paged(program.openBilling(), session.sRevRptSQL),
                .nothing = "No Report for the specified Clients"});
}

} // namespace orvane
