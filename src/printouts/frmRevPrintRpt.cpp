#include "printouts/frmRevPrintRpt.h"

namespace orvane {

frmRevPrintRpt::frmRevPrintRpt(Program& owner) : ReportScreen(owner, "frmRevPrintRpt", "Revenue Report") {}

Layout frmRevPrintRpt::layout() const {
    using namespace orvane::layout;
    return column({cell(crViewer1), buttons({}, {&CancelButton})});
}

/// The template of what was asked for. Receipts that lack their distribution have no revenue type to stand under: they
/// have two of their own, known by their rows.
QString frmRevPrintRpt::fileFor(const Recordset& rows) const {
    const QString& mode = session.sRevRptMode;
    if (rows.columns().contains("paymentFor", Qt::CaseInsensitive))
        return mode == "DETAIL" ? "\\rptRevenueReceipts2.rpt" : "\\rptRevenueReceipts.rpt";
    static const QHash<QString, QString> files = {
        {"DETAIL", "\\rptRevenue2.rpt"}, {"CONS-DETAIL", "\\rptRevenueCons.rpt"}, {"CASH", "\\rptRevenueCash.rpt"}};
    return files.value(mode, "\\rptRevenue.rpt");
}

/// Nobody has asked for a report where it is opened by itself.
void frmRevPrintRpt::Form_Activate() {
    if (session.sRevRptSQL.text().isEmpty())
        return;
    const QString client = session.sRevRptClient == "(ALL)" ? "All clients" : session.sRevRptClient;
    const QString period = periodWords(session.dRevRptFrom, session.dRevRptTo);
    const Recordset rows = Recordset::paged(program.openBilling(), session.sRevRptSQL);
    showReport({.file = fileFor(rows),
                .rows = rows,
                .nothing = "No Report for the specified Clients",
                .textObjects = {{"txtClient", client}, {"txtPeriod", period}},
                .values = {{"Client", client}, {"Period", period}}});
}

} // namespace orvane
