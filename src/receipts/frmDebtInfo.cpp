#include "receipts/frmDebtInfo.h"

#include "reports/Workbook.h"

namespace orvane {

namespace {

const QString modeAuto = "AUTO";
const QString modeSearch = "SEARCH";

} // namespace

frmDebtInfo::frmDebtInfo(Program& owner) : Screen(owner, "frmDebtInfo", "Debt Info") {
    cboGroup.addItems({"Name", "CardNo", "SysNo"});
    txtName.onEnter = [this] { search(); };
    txtName.setToolTip("F3 finds any patient");
    grdData.setToolTip("Double Click a row to Get the Debt Info of a Patient");
    grdData.setFormat("Debt", "#,##;(#,##0)");
    for (const char* column : {"Bill", "AmountPaid"})
        grdData.setFormat(column, "#,###.00");
}

Layout frmDebtInfo::layout() const {
    using namespace orvane::layout;
    return column({row({field("Search by Surname", txtName, 28), field("by", cboGroup, 10), cell(OKButton), stretch(),
                        field("Attendance Between", DTPicker1), field("And", DTPicker2), cell(chkAll), cell(cmdList)}),
                   cell(Label5), cell(grdData),
                   buttons({&cmdRpt, &cmdDebtOnly, &chkDebt}, {&cmdExport, &CancelButton})});
}

void frmDebtInfo::Form_Load() {
    const QDate today = program.getServerDateTime().date();
    DTPicker1.setDate(today);
    DTPicker2.setDate(today);
    cboGroup.setText("Name");
    txtName.setFocus();
}

/// The menu opens it too, whatever patient was in hand before: only who asks for his account gets it, and once.
void frmDebtInfo::Form_Activate() {
    const bool wasAuto = m_isAuto;
    m_isAuto = std::exchange(session.sDebtMode, modeSearch) == modeAuto && !session.sBillPatName.isEmpty();
    if (m_isAuto)
        showPatientInHand();
    else if (wasAuto)
        beginSearch();
}

/// His account since his first attendance.
void frmDebtInfo::showPatientInHand() {
    m_pno = session.sBillPno;
    Label5.setText(session.sBillPatName);
    grdData.clear();
    {
        Connection connection = program.openBilling();
        const Recordset first(connection, Sql("select top 1 recDate from hrecords where pno = '")
                                              << m_pno << "' order by recID asc");
        if (!first.eof())
            DTPicker1.setDate(first.date("recDate"));
    }
    loadStatement();
}

void frmDebtInfo::beginSearch() {
    m_isAuto = false;
    m_pno.clear();
    Label5.setText("Debt Information");
    grdData.clear();
}

void frmDebtInfo::search() {
    QString text = txtName.text();
    text.replace('"', '\''); // both quotes find O'NEILL
    Sql sql;
    if (cboGroup.text() == "SysNo") {
        // A short number is completed to a file number: nine characters, the number and the hospital.
        if (!text.contains('/'))
            text = ("000000000" + text + '/' + session.gHospID).right(9);
        sql << "select  * from vwhpatients where Pno = '" << text << "'";
    } else if (cboGroup.text() == "CardNo") {
        sql << "select  * from vwhpatients where oldPno = '" << text << "'";
    } else {
        sql << "select  * from vwhpatients where fullname like '" << text << "%'  order by fullname";
    }
    showPatients(sql);
}

void frmDebtInfo::showPatients(const Sql& sql) {
    beginSearch();
    grdData.setSummed("Debt", true);
    const Recordset found = Recordset::paged(program.openBilling(), sql);
    grdData.load(found);
    if (!found.eof())
        grdData.setFocus();
}

Screen::PatientTaker frmDebtInfo::patientTaker() {
    return [this](const QString& pno) {
        showPatients(Sql("select  * from vwhpatients where Pno = '") << pno << "'");
        grdData_DblClick();
    };
}

/// The grid shows patients, not the statement of one.
bool frmDebtInfo::showsPatients() const {
    return grdData.currentRow() >= 0 && grdData.columnIndex("oldPno") >= 0;
}

void frmDebtInfo::grdData_DblClick() {
    if (!showsPatients())
        return;
    m_pno = grdData.text("pno");
    Label5.setText("Search for: " + grdData.text("fullname"));
    loadStatement();
}

void frmDebtInfo::cmdList_Click() {
    if (showsPatients())
        grdData_DblClick();
    else if (m_pno.isEmpty())
        program.box(grdData.toolTip());
    else
        loadStatement();
}

void frmDebtInfo::loadStatement() {
    if (DTPicker2.date() < DTPicker1.date()) {
        program.box("Please specify Attendance Date Range");
        return;
    }
    const bool whole = !m_isAuto || chkAll.isChecked();
    Connection connection = program.openBilling();
    grdData.setSummed("Debt", false); // each row has what was owed by then
    grdData.load(Recordset(connection, whole ? searchStatement() : autoStatement()));
}

// The whole account, whatever the dates.
Sql frmDebtInfo::searchStatement() const {
    return Sql("SELECT     SNO, AttndDate, BillDate, FullName, PNo,Remarks as Items,  Bill, AmountPaid,RunningTotal as "
               "Debt,BillNo,  Comapany "
               "FROM   vwTranxaction where pno='")
           << m_pno << "' order by SNo";
}

Sql frmDebtInfo::autoStatement() const {
    return Sql("SELECT     SNO, AttndDate, BillDate, FullName,Remarks as Items,  Bill, AmountPaid,RunningTotal as "
               "Debt,BillNo,  Comapany, PNo "
               "FROM   vwTranxaction where pno='")
           << m_pno << "' and AttndDate between '" << DTPicker1.date() << "' and '" << DTPicker2.date()
           << "' order by SNo";
}

void frmDebtInfo::cmdRpt_Click() {
    showSummary(chkDebt.isChecked() ? Sql("SELECT * FROM qryhFullnameHosp where debtBF <> 0 order by abs(debtBF) desc")
                                    : Sql("SELECT * FROM qryhFullnameHosp where debtBF <> 0 order by FullName"));
}

void frmDebtInfo::cmdDebtOnly_Click() {
    showSummary(chkDebt.isChecked() ? Sql("SELECT * FROM qryhFullnameHosp where debtBF > 0 order by abs(debtBF) desc")
                                    : Sql("SELECT * FROM qryhFullnameHosp where debtBF > 0 order by FullName"));
}

void frmDebtInfo::showSummary(const Sql& sql) {
    session.sPrintRptMode = "DEBT";
    session.sPrintRptSQL = sql;
    program.open("frmPrintRpt");
}

void frmDebtInfo::cmdExport_Click() {
    if (grdData.rowCount() == 0) {
        program.box("No record is displayed for printing");
        return;
    }
    const QString file = exportFileName(ui().exportFolder(), "Debt Info " + Label5.text(), ui().now());
    exportWorkbook(grdData, file);
    ui().exported(file);
}

} // namespace orvane
