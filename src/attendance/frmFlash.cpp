#include "attendance/frmFlash.h"

namespace orvane {

namespace {

const QString patientsFromDoctor = QStringLiteral("Patients from Doctor");
const QString noRows = QStringLiteral("---");

} // namespace

frmFlash::frmFlash(Program& owner) : Screen(owner, QStringLiteral("frmFlash"), QStringLiteral(" Prompt")) {
    cmdPat.onClick = [this] { cmdPat_Click(); };
    dGexp.onDblClick = [this] { dGexp_DblClick(); };
    SSTab1.onClick = [this] { SSTab1_Click(); };
    cmdDoc.onClick = [this] { SSTab1.setTab(1); };
    cmdExpected.onClick = [this] { SSTab1.setTab(1); };
    cmdCPC.onClick = [this] { cmdCPC_Click(); };
    cmdPrint.onClick = [this] { cmdPrint_Click(); };
    cmdClose.onClick = [this] { unload(); };
    // The job buttons ask views that this hospital's database does not have.
    for (Button* job : {&cmdBilling, &cmdExam, &cmdDelv, &cmdJobClose, &cmdReorder, &cmdDoc})
        job->setVisible(false);
}

Layout frmFlash::layout() const {
    using namespace orvane::layout;
    return column(
        {row({field("Attendance between", DTPicker1), field("and", DTPicker2), cell(cmdPat), stretch(), cell(cmdCPC)}),
         cell(lblShow),
         tabs(SSTab1, {layout::page("Patients", {cell(dGexp)}), layout::page("Attendance History", {cell(grdData)})}),
         buttons({&cmdExpected, &cmdPrint}, {&cmdClose})});
}

void frmFlash::Form_Load() {
    DTPicker1.setDate(session.gServerDate);
    DTPicker2.setDate(session.gServerDate);
    dGexp.hide({QStringLiteral("pno")});
    dGexp.setFormat(QStringLiteral("Debt"), QStringLiteral("#,##;(#,##0)"));
    dGexp.setWidth(QStringLiteral("Fullname"), 36);
    dGexp.setWidth(QStringLiteral("Date"), 12);
    dGexp.setWidth(QStringLiteral("Time"), 8);
    grdData.setWidth(QStringLiteral("Fullname"), 36);
    showWorklist(
        Sql("SELECT pno,Fullname,ConsultID as BillNo,Date,Time,Client,Debt,Clinic,ClientCatID as ClientCat from "
            "vwhConsultingVisitsForBilling where date='")
        << session.gServerDate << "' order by fullname asc ");
}

void frmFlash::showWorklist(const Sql& sql) {
    Connection connection = program.openBilling();
    dGexp.load(Recordset(connection, sql));
    lblShow.setText(patientsFromDoctor);
}

void frmFlash::cmdPat_Click() {
    SSTab1.setTab(0);
    showWorklist(
        Sql("SELECT pno,Fullname,ConsultID as BillNo,Date,Time,Client,Debt,Clinic,ClientCatID as ClientCat from "
            "vwhConsultingVisitsForBilling where date between '")
        << DTPicker1.date() << "' and '" << DTPicker2.date() << "'   order by fullname asc ");
}

void frmFlash::dGexp_DblClick() {
    if (dGexp.currentRow() < 0 || dGexp.columnIndex(QStringLiteral("BillNo")) < 0) {
        program.box(QStringLiteral("Please select a row "));
        SSTab1.setTab(0);
        return;
    }
    session.gSearchBillNo = dGexp.text(QStringLiteral("BillNo"));
    unload();
    program.open(QStringLiteral("frmBillingVerify"));
}

void frmFlash::SSTab1_Click() {
    if (SSTab1.tab() == 1)
        showHistory();
    else
        lblShow.setText(patientsFromDoctor);
}

void frmFlash::showHistory() {
    sHistoryPno = dGexp.columnIndex(QStringLiteral("pno")) < 0 ? QString() : dGexp.text(QStringLiteral("pno"));
    if (sHistoryPno.isEmpty()) {
        program.box(QStringLiteral("Please select a row to view Attendance History for the Patient"));
        SSTab1.setTab(0);
        return;
    }
    Connection connection = program.openBilling();
    grdData.load(Recordset(connection,
                           Sql("select Recdate as Date,Time,ConsultID as BillNo,Fullname from qryhvisits where pno='")
                               << sHistoryPno << "' and recdate between '" << DTPicker1.date() << "' and '"
                               << DTPicker2.date() << "' order by recdate desc"));
    lblShow.setText(QStringLiteral("View Patient Attendance History for: ") + dGexp.text(QStringLiteral("Fullname")));
}

void frmFlash::cmdCPC_Click() {
    SSTab1.setTab(0);
    showList(Sql("SELECT distinct Drug,Category,UnitsinStock from vwDrugsforGrid where UnitsinStock < 0  order by "
                 "Category Desc,Drug"),
             QStringLiteral("Overdrawn System Drugs"));
}

void frmFlash::showList(const Sql& sql, const QString& caption) {
    Connection connection = program.openBilling();
    const Recordset rows(connection, sql);
    dGexp.load(rows);
    lblShow.setText(rows.eof() ? noRows : caption);
}

void frmFlash::cmdPrint_Click() {
    if (dGexp.rowCount() == 0) {
        program.box(QStringLiteral("No record is displayed for printing"));
        return;
    }
    ui().printForm(*this);
}

} // namespace orvane
