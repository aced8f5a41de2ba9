#include "printouts/FrmRptSummQVR.h"

namespace orvane {

FrmRptSummQVR::FrmRptSummQVR(Program& owner) : ReportScreen(owner, "FrmRptSummQVR", "Lab Result") {
    DTPicker1.setRangeEnd(&DTPicker2);
    cboCust.onClick = [this] { crViewer1.clear(); }; // no page may stand under another's name
}

Layout FrmRptSummQVR::layout() const {
    using namespace orvane::layout;
    return column({row({field("Investigation Between", DTPicker1), field("and", DTPicker2), cell(cmdList),
                        field("Patient", cboCust, 60), stretch()}),
                   growing(cell(crViewer1)), buttons({}, {&CancelButton, &cmdHist, &cmdDisplay})});
}

void FrmRptSummQVR::Form_Load() {
    DTPicker1.setDate(session.gServerDate);
    DTPicker2.setDate(session.gServerDate);
}

void FrmRptSummQVR::cmdList_Click() {
    if (!passes({{DTPicker1.isEmpty() || DTPicker2.isEmpty(), "Please specify Start/End Date", &DTPicker1}}))
        return;
    cboCust.clear();
    crViewer1.clear();
    cboCust.fill(Recordset::paged(program.openBilling(),
                                  Sql("SELECT distinct ConID,fullname,Labno,invDate FROM vwInvResultForRptAlt where "
                                      "invdate between '")
                                      << DTPicker1.date() << "' and '" << DTPicker2.date()
                                      << "' order by fullname,Labno"),
                 [](const Recordset& row) {
                     const Request request{row.text("Labno"), row.text("fullName"), row.integer("conID")};
                     return ComboBox::Entry{request.patient + " @" + row.date("invDate").toString("dd/MM/yyyy") + " [" +
                                                request.labNo + ']',
                                            QVariant::fromValue(request)};
                 });
    cboCust.setFocus();
}

std::optional<FrmRptSummQVR::Request> FrmRptSummQVR::pickedRequest() {
    const auto request = cboCust.picked<Request>();
    passes({{!request, "Please select Patient's Name", &cboCust}});
    return request;
}

namespace {

/// A number of the laboratory may have been given twice, in the hospital and at an outlet: nobody may read of another.
Sql ofPatient(const QString& name) {
    return Sql(" and isnull(fullName, '')='") << name << "'";
}

} // namespace

/// What was found, and behind it the titres of a WIDAL reaction; the outlet's where the hospital has none of this
/// number.
Recordset FrmRptSummQVR::findings(const Request& request) {
    Connection connection = program.openBilling();
    Sql results = Sql("select * from vwInvResultForRpt where LabNo='")
                  << request.labNo << "' and conID=" << request.conID << ofPatient(request.patient);
    if (Recordset(connection, results).eof())
        results = Sql("select * from vwInvResultForRptPublic where LabNo='")
                  << request.labNo << "'" << ofPatient(request.patient);
    return Recordset(connection, results << " union all select * from vwWidal where LabNo='" << request.labNo << "'"
                                         << ofPatient(request.patient) << "  order by id asc");
}

Recordset FrmRptSummQVR::histology(const Request& request) {
    Connection connection = program.openBilling();
    const Recordset own(connection, Sql("select distinct * from vwHistPathology where LabNo='")
                                        << request.labNo << "'" << ofPatient(request.patient) << " order by id");
    if (!own.eof())
        return own;
    return Recordset(connection, Sql("select distinct * from vwHistPathologyPublic where LabNo='")
                                     << request.labNo << "'" << ofPatient(request.patient) << " order by id");
}

void FrmRptSummQVR::showResult(const QString& file, const Recordset& rows, const Request& request,
                               const QString& nothing) {
    showReport({.file = file,
                .rows = rows,
                .nothing = nothing,
                .textObjects = {{"Text1", "Lab Result for: " + request.patient}}});
}

void FrmRptSummQVR::cmdDisplay_Click() {
    if (const auto request = pickedRequest())
        showResult("\\InvResultForRptX.rpt", findings(*request), *request, "No Report for the specified Patient");
}

void FrmRptSummQVR::cmdHist_Click() {
    if (const auto request = pickedRequest())
        showResult("\\InvResultHistPath.rpt", histology(*request), *request,
                   "No HistPathology Report for the specified Patient");
}

} // namespace orvane
