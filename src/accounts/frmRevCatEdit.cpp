#include "accounts/frmRevCatEdit.h"

#include "accounts/RevenueReport.h"

namespace orvane {

namespace {

const QString everybody = "(ALL)";

} // namespace

frmRevCatEdit::frmRevCatEdit(Program& owner) : Screen(owner, "frmRevCatEdit", "Revenue from Collated Bills") {
    DTPicker1.setRangeEnd(&DTPicker2);
    txtItem.setLocked(true);
    chkIgnore.setToolTip("Leave out who rendered the service");
    grdData.hide({"SNO"});
    grdData.setFormat("Amount", "#,###.00");
    grdData.onClick = [this] { grdData_Click(); };
    // Both raise it: the one that is chosen, and the one that is not any more.
    for (OptionButton* kind : {&radCoy, &radCat})
        kind->onClick = [this, kind] {
            if (kind->isChecked())
                fillGroups();
        };
}

Layout frmRevCatEdit::layout() const {
    using namespace orvane::layout;
    return column(
        {flow({cell(radCoy), cell(radCat), field("Company Name", cboGroup, 44), stretch(),
               field("Attendance Between", DTPicker1), field("and", DTPicker2), cell(ChkOnly), cell(cmdList)}),
         growing(cell(grdData)),
         group("Correct the Line",
               {flow({field("Item", txtItem, 34), field("Revenue Type", cboRev, 22), field("Consultant", cboCon, 30),
                      cell(chkIgnore), stretch(), cell(OKButton)})}),
         buttons({&cmdView, &cmdDetails, &cmdRevCons, &cmdCash, &cmdExport}, {&CancelButton})});
}

void frmRevCatEdit::Form_Load() {
    DTPicker1.setDate(session.gServerDate);
    DTPicker2.setDate(session.gServerDate);
    fillTypes();
    fillConsultants();
    radCoy.setChecked(true);
}

void frmRevCatEdit::fillTypes() {
    Connection connection = program.openBilling();
    Recordset type(connection, Sql("select distinct revType from hRevenueType where Active='YES'  order by revType"));
    for (; !type.eof(); type.moveNext())
        cboRev.addItem(type.text("revType"));
}

void frmRevCatEdit::fillConsultants() {
    cboCon.addItem("");
    Connection connection = program.openBilling();
    Recordset doctor(connection, Sql("select empID,lastname,firstname from employees where deptID = 'MED' "
                                     "order by lastname,firstname"));
    for (; !doctor.eof(); doctor.moveNext())
        cboCon.addItem(doctor.text("lastname") + ' ' + doctor.text("firstname") + " [" + doctor.text("empID") + ']',
                       doctor.text("empID"));
}

void frmRevCatEdit::fillGroups() {
    const bool byClient = radCoy.isChecked();
    sGroupKind = byClient ? "CLIENT" : "GROUP";
    sGroupValue.clear();
    cboGroup.clear();
    Connection connection = program.openBilling();
    if (!byClient) {
        Recordset type(connection, Sql("select distinct clientType from hClientType order by clientType"));
        for (; !type.eof(); type.moveNext())
            cboGroup.addItem(type.text("clientType"), type.text("clientType"));
        return;
    }
    cboGroup.addItem(everybody, everybody);
    Recordset client(connection, Sql("select distinct Retainname,RetainCode from hretainership order by Retainname"));
    for (; !client.eof(); client.moveNext())
        cboGroup.addItem(client.text("Retainname") + " [" + client.text("RetainCode") + ']', client.text("RetainCode"));
}

void frmRevCatEdit::cboGroup_Click() {
    sGroupValue = cboGroup.picked<QString>().value_or(QString());
}

void frmRevCatEdit::cboCon_Click() {
    sConsultant = cboCon.picked<QString>().value_or(QString());
}

bool frmRevCatEdit::isRangeGiven(const QString& noGroup) {
    return passes({{DTPicker1.isEmpty(), "Please specify Attendance Date Range", &DTPicker1},
                   {DTPicker2.isEmpty(), "Please specify Attendance Date Range", &DTPicker2},
                   {cboGroup.text().isEmpty(), noGroup, &cboGroup}});
}

/// What a statement asks of its rows in front of their dates.
Sql frmRevCatEdit::ofGroup() const {
    if (sGroupValue == everybody)
        return {};
    if (sGroupKind == "CLIENT")
        return Sql("RetainCode = '") << sGroupValue << "' and    ";
    return Sql("clientType = '") << sGroupValue << "' and     ";
}

void frmRevCatEdit::cmdList_Click() {
    if (!isRangeGiven("Specify Company/Category"))
        return;
    ui().setBusy(true);
    clearLine();
    Sql lines("select SNO, Date, Fullname, Service, subTotal as Amount, revType as RevenueType,treatedBy,Consultant, "
              "Company, BillNO, clientCatID as BillingCat,BillType FROM  vwBillingDetailsForRev where ");
    if (ChkOnly.isChecked())
        lines << " revType='OTHERS' and ";
    lines << ofGroup() << "date between '" << DTPicker1.date() << "' and '" << DTPicker2.date()
          << "'  order by Date,fullname";
    grdData.load(Recordset::paged(program.openBilling(), lines));
    if (const int row = m_edited ? grdData.findRow("SNo", QString::number(m_edited)) : -1; row >= 0)
        grdData.selectRow(row);
    ui().setBusy(false);
}

void frmRevCatEdit::clearLine() {
    m_line = {};
    txtItem.clear();
    cboRev.setListIndex(-1);
    cboCon.setListIndex(-1);
}

void frmRevCatEdit::grdData_Click() {
    clearLine();
    if (grdData.currentRow() < 0)
        return;
    txtItem.setText(grdData.text("Service"));
    cboRev.setText(grdData.text("RevenueType"));
    m_line = {grdData.text("SNO").toLongLong(), grdData.text("BillNO"), grdData.text("BillType"),
              grdData.text("RevenueType")};
}

bool frmRevCatEdit::isComplete() {
    const bool lacksConsultant = m_line.billType == "SERVICE" && sConsultant.isEmpty() && !chkIgnore.isChecked();
    return passes({{txtItem.text().isEmpty(), "Specify Revenue Item for this Item", &grdData},
                   {cboRev.text().isEmpty(), "Please Specify Revenue Type", &cboRev},
                   {lacksConsultant,
                    "Please specify Name of Consultant who Rendered Service! Or Tick Ignore CheckBox to Ignore Name of "
                    "Consultant",
                    &cboCon}});
}

RevenueCorrection frmRevCatEdit::correction() const {
    return {.sno = m_line.sno,
            .billNo = m_line.billNo,
            .item = txtItem.text(),
            .type = cboRev.text(),
            .consultant = sConsultant};
}

void frmRevCatEdit::OKButton_Click() {
    save<Saved>({.button = OKButton,
                 .action = "REVENUE CORRECTION",
                 .allowed = [this] { return isComplete(); },
                 .step = [this](Books& books) -> Given<Saved> {
                     correctRevenue(books, correction());
                     return Saved{};
                 },
                 .follow =
                     [this](const Saved&) {
                         program.writeAuditTrail(
                             {.action = "Revenue Type Edit: " + txtItem.text(),
                              .document = {},
                              .remarks = "OldValue >> " + m_line.revType + " :NewValue >> " + cboRev.text()});
                         m_edited = m_line.sno;
                         cmdList_Click();
                     },
                 .trailRows = 1});
}

void frmRevCatEdit::printLines(const QString& mode) {
    print(mode, Sql("select * from vwBillingDetailsForRev where ")
                    << ofGroup() << "date Between '" << DTPicker1.date() << "' And '" << DTPicker2.date() << "'");
}

void frmRevCatEdit::cmdCash_Click() {
    print("CASH", Sql("SELECT     ReceiptDate, ReceiptNo, AmountPaid, RevType, billNO, AmountToPay, AccountNo "
                      "FROM vwPaymentDetails where ")
                      << ofGroup() << "ReceiptDate Between '" << DTPicker1.date() << "' And '" << DTPicker2.date()
                      << "'");
}

void frmRevCatEdit::print(const QString& mode, const Sql& rows) {
    if (isRangeGiven("Specify Patient Category"))
        showRevenueReport(program, {mode, rows, cboGroup.text(), DTPicker1.date(), DTPicker2.date()});
}

void frmRevCatEdit::cmdExport_Click() {
    if (isRangeGiven("Specify Patient Company"))
        exportRevenue(program, DTPicker1.date(), DTPicker2.date(), sGroupValue);
}

} // namespace orvane
