#include "attendance/frmFlash.h"

#include "session/ListReport.h"

namespace orvane {

namespace {

const QString patientsFromDoctor = "Patients from Doctor";
const QString noRows = "---";

} // namespace

frmFlash::frmFlash(Program& owner) : Screen(owner, "frmFlash", " Prompt") {
    dGexp.onDblClick = [this] { dGexp_DblClick(); };
}

Layout frmFlash::layout() const {
    using namespace orvane::layout;
    return column(
        {row({field("Attendance between", DTPicker1), field("and", DTPicker2), cell(cmdPat), stretch(), cell(cmdCPC)}),
         cell(lblShow),
         tabs(SSTab1, {layout::page("Patients", {cell(dGexp), row({cell(cmdExpected), stretch()})}),
                       layout::page("Attendance History", {cell(grdData), row({cell(cmdDoc), stretch()})})}),
         buttons({&cmdPrint}, {&cmdClose})});
}

void frmFlash::Form_Load() {
    DTPicker1.setDate(session.gServerDate);
    DTPicker2.setDate(session.gServerDate);
    dGexp.hide({"pno"});
    dGexp.setFormat("Debt", "#,##;(#,##0)");
    dGexp.setSummed("Debt", true);
    dGexp.setWidth("Fullname", 36);
    dGexp.setWidth("Date", 12);
    dGexp.setWidth("Time", 8);
    grdData.setWidth("Fullname", 36);
    showList(Sql("SELECT pno,Fullname,ConsultID as BillNo,Date,Time,Client,Debt,Clinic,ClientCatID as ClientCat from "
                 "vwhConsultingVisitsForBilling where date='")
                 << session.gServerDate << "' order by fullname asc ",
             patientsFromDoctor);
    dGexp.setFocus();
}

void frmFlash::cmdPat_Click() {
    SSTab1.setTab(0);
    dGexp.setFocus();
    showList(Sql("SELECT pno,Fullname,ConsultID as BillNo,Date,Time,Client,Debt,Clinic,ClientCatID as ClientCat from "
                 "vwhConsultingVisitsForBilling where date between '")
                 << DTPicker1.date() << "' and '" << DTPicker2.date() << "'   order by fullname asc ",
             patientsFromDoctor);
}

void frmFlash::cmdCPC_Click() {
    SSTab1.setTab(0);
    showList(Sql("SELECT distinct Drug,Category,UnitsinStock from vwDrugsforGrid where UnitsinStock < 0  order by "
                 "Category Desc,Drug"),
             "Overdrawn System Drugs");
    if (dGexp.rowCount() == 0)
        lblShow.setText(noRows);
}

void frmFlash::showList(const Sql& sql, const QString& caption) {
    Connection connection = program.openBilling();
    dGexp.load(Recordset(connection, sql));
    m_list = sql;
    m_listCaption = caption;
    lblShow.setText(caption);
}

/// His row in the list of those who wait.
Screen::PatientTaker frmFlash::patientTaker() {
    if (dGexp.columnIndex("pno") < 0)
        return {};
    return [this](const QString& pno) {
        const int row = dGexp.findRow("pno", pno);
        if (row < 0) {
            program.box("This patient is not in the list");
            return;
        }
        SSTab1.setTab(0);
        dGexp.selectRow(row);
        dGexp.setFocus();
    };
}

void frmFlash::dGexp_DblClick() {
    if (dGexp.currentRow() < 0 || dGexp.columnIndex("BillNo") < 0) {
        program.box("Please select a row ");
        SSTab1.setTab(0);
        return;
    }
    session.gSearchBillNo = dGexp.text("BillNo");
    unload();
    program.open("frmBillingVerify");
}

void frmFlash::SSTab1_Click() {
    if (SSTab1.tab() == 1)
        showHistory();
    else
        lblShow.setText(patientsFromDoctor);
}

void frmFlash::cmdExpected_Click() {
    if (SSTab1.tab() == 1)
        showHistory();
    else
        SSTab1.setTab(1);
}

void frmFlash::showHistory() {
    sHistoryPno = dGexp.columnIndex("pno") < 0 ? QString() : dGexp.text("pno");
    if (sHistoryPno.isEmpty()) {
        program.box("Please select a row to view Attendance History for the Patient");
        SSTab1.setTab(0);
        return;
    }
    Connection connection = program.openBilling();
    grdData.load(Recordset(connection,
                           Sql("select Recdate as Date,Time,ConsultID as BillNo,Fullname from qryhvisits where pno='")
                               << sHistoryPno << "' and recdate between '" << DTPicker1.date() << "' and '"
                               << DTPicker2.date() << "' order by recdate desc"));
    lblShow.setText("View Patient Attendance History for: " + dGexp.text("Fullname"));
}

void frmFlash::cmdPrint_Click() {
    if (dGexp.rowCount() == 0) {
        program.box("No record is displayed for printing");
        return;
    }
    Recordset rows;
    {
        Connection connection = program.openBilling();
        rows = Recordset(connection, m_list);
    }
    if (rows.eof())
        program.box("No info for this request : \n" + m_listCaption);
    else
        viewList(program, "rptPrompt", m_listCaption, rows);
}

} // namespace orvane
