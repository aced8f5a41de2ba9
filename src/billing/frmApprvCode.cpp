#include "billing/frmApprvCode.h"

namespace orvane {

Layout frmApprvCode::layout() const {
    using namespace orvane::layout;
    return column({visits.layout(),
                   facts({{"Bill No", &lblBill},
                          {"File No", &lblNo},
                          {"Category", &lblDetails},
                          {"Client", &lblCoy},
                          {"Sex", &lblSex},
                          {"Age", &lblAge},
                          {"Fee for service", &lblRef}}),
                   row({field("Date of Approval", dtDate), field("Approval Code", txtApprv, 24),
                        field("Billing Category", cboBill, 20), stretch()}),
                   field("Remarks", txtRem), cell(grdData),
                   buttons({&cmdEdit, &cmdDel}, {&cmdCancel, &CancelButton, &OKButton})});
}

void frmApprvCode::Form_Load() {
    const QDate today = program.getServerDateTime().date();
    visits.setDates(today);
    dtDate.setDate(today);
    cboBill.addItems({"FEE-FOR-SERVICE", "CLAIMS", "COMPANY"});
    grdData.hide({"SNO"});
}

void frmApprvCode::cmdInv_Click() {
    listVisits(Sql("Date between '") << visits.DTPicker1.date() << "' and '" << visits.DTPicker2.date()
                                     << "' and  clientCatID <> '" << session.gPrivateTariff << "' order by fullname ");
}

/// His visits that a scheme bears, the newest first.
Screen::PatientTaker frmApprvCode::patientTaker() {
    return [this](const QString& pno) {
        listVisits(Sql("pno='") << pno << "' and  clientCatID <> '" << session.gPrivateTariff
                                << "' order by Date desc");
        takeOnly(visits.cboVehNo, "This patient has no visit that a scheme bears");
    };
}

void frmApprvCode::listVisits(const Sql& which) {
    resetFields();
    visits.cboVehNo.clear();
    Connection connection = program.openBilling();
    Recordset rows(connection, Sql("select distinct  CoyName,Fullname,Date,consultID as billNo from "
                                   "vwhConsultingVisits where   ")
                                   << which);
    for (; !rows.eof(); rows.moveNext()) {
        const ListedVisit visit{rows.text("billNo"), {}, rows.text("Fullname")};
        visits.cboVehNo.addItem(visit.patient + " @" + rows.date("Date").toString("dd/MM/yyyy") + " [" +
                                    visit.consultID + "]",
                                QVariant::fromValue(visit));
    }
}

void frmApprvCode::cboVehNo_Click() {
    const auto picked = visits.cboVehNo.picked<ListedVisit>();
    if (!picked)
        return;
    m_visit = *picked;
    // The code of another visit that was being edited is none of this one.
    if (bEditing)
        clearCode();
    Connection connection = program.openBilling();
    const Recordset visit(connection, Sql("select * from qryhPreConsultForClinics where consultID='")
                                          << m_visit.consultID << "'");
    if (visit.eof())
        resetFields();
    else
        showVisit(visit);
}

void frmApprvCode::showVisit(const Recordset& visit) {
    const struct {
        Label& label;
        const char* column;
    } facts[] = {{lblDetails, "clientCat"}, {lblBill, "consultID"}, {lblNo, "PNo"}, {lblSex, "sex"},
                 {lblAge, "Age"},           {lblCoy, "Company"},    {lblRef, "ref"}};
    for (const auto& fact : facts)
        fact.label.setText(visit.text(fact.column));
    dtDate.setDate(visit.date("recDate"));
    fillGrid();
}

void frmApprvCode::fillGrid() {
    Connection connection = program.openBilling();
    grdData.load(Recordset(
        connection,
        Sql("select  SNO,ApprvDate,ConsultID,ApprvCode,Pno,BillType,Remarks from hApprvCode where consultID='")
            << m_visit.consultID << "' ORDER BY Apprvdate asc"));
}

bool frmApprvCode::isComplete() {
    return passes({{dtDate.isEmpty(), "Specify Date of Approval", &dtDate},
                   {m_visit.consultID.isEmpty(), "Select a Patient for this Approval"},
                   {txtApprv.text().trimmed().isEmpty(), "Specify Approval Code for this Treatment"},
                   {cboBill.text().isEmpty(), "Specify Billing Category for this Approval"}});
}

/// An edit finds its row by the visit: with several codes on one visit the first of them changes.
void frmApprvCode::OKButton_Click() {
    save<Saved>({.button = OKButton,
                 .action = "APPROVAL CODE",
                 .allowed = [this] { return isComplete(); },
                 .step = [this](Books& books) -> Given<Saved> {
                     const ApprovalCode code{.date = dtDate.date(),
                                             .consultID = m_visit.consultID,
                                             .pno = lblNo.text(),
                                             .code = txtApprv.text(),
                                             .billType = cboBill.text(),
                                             .remarks = txtRem.text()};
                     if (bEditing)
                         changeFirstApprovalCode(books, code);
                     else
                         addApprovalCode(books, code);
                     return Saved{};
                 },
                 .follow = [this](const Saved&) { afterSave(); },
                 .trailRows = 1});
}

void frmApprvCode::afterSave() {
    program.box("Record Succesfully saved");
    program.writeAuditTrail({"Add Apprv Code for " + m_visit.patient, m_visit.consultID, txtApprv.text()});
    fillGrid();
    grdData.selectRow(grdData.findRow("ApprvCode", txtApprv.text()));
    clearCode();
    txtApprv.setFocus();
}

void frmApprvCode::clearCode() {
    txtApprv.clear();
    txtRem.clear();
    cboBill.setListIndex(-1);
    bEditing = false;
}

void frmApprvCode::cmdEdit_Click() {
    if (grdData.currentRow() < 0)
        return;
    dtDate.setDate(grdData.date("ApprvDate"));
    txtApprv.setText(grdData.text("ApprvCode"));
    cboBill.setListIndex(-1);
    cboBill.setText(grdData.text("BillType"));
    txtRem.setText(grdData.text("Remarks"));
    bEditing = true;
    txtApprv.setFocus();
}

void frmApprvCode::cmdDel_Click() {
    if (grdData.currentRow() < 0)
        return;
    save<Saved>({.button = cmdDel,
                 .action = "APPROVAL DELETE",
                 .question = "Are you sure to Delete Record",
                 .title = "Delete",
                 .consent = Consent::Destroys,
                 .detail =
                     [this] {
                         return aboutLines({m_visit.patient, "Code " + grdData.text("ApprvCode")});
                     },
                 .step = [this, sno = qlonglong(grdData.number("SNO"))](Books& books) -> Given<Saved> {
                     deleteApprovalCode(books, m_visit.consultID, sno);
                     return Saved{};
                 },
                 .follow =
                     [this](const Saved&) {
                         program.box(" Record successfully deleted ");
                         bEditing = false;
                         fillGrid();
                     }});
}

void frmApprvCode::resetFields() {
    for (Label* label : {&lblDetails, &lblCoy, &lblBill, &lblNo, &lblSex, &lblAge, &lblRef})
        label->clear();
    visits.cboVehNo.setListIndex(-1);
    clearCode();
    grdData.clear();
    m_visit = {};
}

} // namespace orvane
