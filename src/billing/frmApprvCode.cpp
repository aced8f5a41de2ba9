#include "billing/frmApprvCode.h"

namespace orvane {

frmApprvCode::frmApprvCode(Program& owner) : Screen(owner, "frmApprvCode", "HMO/NHIS") {
    cmdInv.onClick = [this] { cmdInv_Click(); };
    cboVehNo.onClick = [this] { cboVehNo_Click(); };
    cmdEdit.onClick = [this] { cmdEdit_Click(); };
    cmdDel.onClick = [this] { cmdDel_Click(); };
    cmdCancel.onClick = [this] { resetFields(); };
    OKButton.onClick = [this] { OKButton_Click(); };
    CancelButton.onClick = [this] { unload(); };
}

Layout frmApprvCode::layout() const {
    using namespace orvane::layout;
    return column({row({field("Attendance between", DTPicker1), field("and", DTPicker2), cell(cmdInv), stretch()}),
                   field("Patient", cboVehNo),
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
    for (DatePicker* picker : {&DTPicker1, &DTPicker2, &dtDate})
        picker->setDate(today);
    cboBill.addItems({"FEE-FOR-SERVICE", "CLAIMS", "COMPANY"});
    grdData.hide({"SNO"});
}

void frmApprvCode::cmdInv_Click() {
    resetFields();
    cboVehNo.clear();
    Connection connection = program.openBilling();
    Recordset visits(connection, Sql("select distinct  CoyName,Fullname,Date,consultID as billNo from "
                                     "vwhConsultingVisits where   Date between '")
                                     << DTPicker1.date() << "' and '" << DTPicker2.date() << "' and  clientCatID <> '"
                                     << session.gPrivateTariff << "' order by fullname ");
    for (; !visits.eof(); visits.moveNext())
        cboVehNo.addItem(visits.text("Fullname") + " @" + visits.date("Date").toString("dd/MM/yyyy") + " [" +
                         visits.text("billNo") + "]");
}

void frmApprvCode::cboVehNo_Click() {
    if (cboVehNo.listIndex() < 0)
        return;
    const QString entry = cboVehNo.text();
    const auto bracket = entry.lastIndexOf(QLatin1Char('['));
    m_consultID = entry.mid(bracket + 1).chopped(1);
    m_patient = entry.left(entry.lastIndexOf(QLatin1String(" @"), bracket));
    // The code of another visit that was being edited is none of this one.
    if (bEditing)
        clearCode();
    Connection connection = program.openBilling();
    const Recordset visit(connection, Sql("select * from qryhPreConsultForClinics where consultID='")
                                          << m_consultID << "'");
    if (visit.eof()) {
        resetFields();
        return;
    }
    const struct {
        Label& label;
        const char* column;
    } facts[] = {{lblDetails, "clientCat"}, {lblBill, "consultID"}, {lblNo, "PNo"}, {lblSex, "sex"},
                 {lblAge, "Age"},           {lblCoy, "Company"},    {lblRef, "ref"}};
    for (const auto& fact : facts)
        fact.label.setText(visit.text(QLatin1String(fact.column)));
    dtDate.setDate(visit.date("recDate"));
    fillGrid();
}

void frmApprvCode::fillGrid() {
    Connection connection = program.openBilling();
    grdData.load(Recordset(
        connection,
        Sql("select  SNO,ApprvDate,ConsultID,ApprvCode,Pno,BillType,Remarks from hApprvCode where consultID='")
            << m_consultID << "' ORDER BY Apprvdate asc"));
}

void frmApprvCode::OKButton_Click() {
    if (dtDate.isEmpty()) {
        program.box("Specify Date of Approval");
        dtDate.setFocus();
        return;
    }
    if (m_consultID.isEmpty()) {
        program.box("Select a Patient for this Approval");
        return;
    }
    if (txtApprv.text().trimmed().isEmpty()) {
        program.box("Specify Approval Code for this Treatment");
        return;
    }
    if (cboBill.text().isEmpty()) {
        program.box("Specify Billing Category for this Approval");
        return;
    }
    save();
    program.box("Record Succesfully saved");
    program.writeAuditTrail({"Add Apprv Code for " + m_patient, m_consultID, txtApprv.text()});
    fillGrid();
    clearCode();
}

void frmApprvCode::clearCode() {
    txtApprv.clear();
    txtRem.clear();
    cboBill.setListIndex(-1);
    bEditing = false;
}

// An edit finds its row by the visit: with several codes on one visit the first of them changes.
void frmApprvCode::save() {
    Connection connection = program.openBilling();
    Recordset code(connection, bEditing ? Sql("select * from hApprvCode where consultID='")
                                              << m_consultID << "' order by SNO"
                                        : Sql("select * from hApprvCode where 1=2"));
    if (bEditing && code.eof())
        return;
    if (!bEditing)
        code.addNew();
    code.set("ApprvDate", dtDate.date());
    code.set("consultID", m_consultID);
    code.set("ApprvCode", txtApprv.text());
    code.set("Remarks", txtRem.text());
    code.set("billType", cboBill.text());
    code.set("PNo", lblNo.text());
    code.update();
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
    if (!program.question("Are you sure to Delete Record", "Delete"))
        return;
    {
        Connection connection = program.openBilling();
        connection.execute(Sql("delete from hApprvCode where sno = '") << grdData.text(QStringLiteral("SNO")) << "'");
    }
    program.box(" Record successfully deleted ");
    bEditing = false;
    fillGrid();
}

void frmApprvCode::resetFields() {
    for (Label* label : {&lblDetails, &lblCoy, &lblBill, &lblNo, &lblSex, &lblAge, &lblRef})
        label->clear();
    cboVehNo.setListIndex(-1);
    clearCode();
    grdData.clear();
    m_consultID.clear();
    m_patient.clear();
}

} // namespace orvane
