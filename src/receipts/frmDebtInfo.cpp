#include "receipts/frmDebtInfo.h"

#include "reports/Workbook.h"

namespace orvane {

namespace {

const QString modeAuto = QStringLiteral("AUTO");
const QString modeSearch = QStringLiteral("SEARCH");

} // namespace

frmDebtInfo::frmDebtInfo(Program& owner) : Screen(owner, QStringLiteral("frmDebtInfo"), QStringLiteral("Debt Info")) {
    cboGroup.addItems({QStringLiteral("Name"), QStringLiteral("CardNo"), QStringLiteral("SysNo")});
    OKButton.onClick = [this] { search(); };
    txtName.onEnter = [this] { search(); };
    grdData.onDblClick = [this] { grdData_DblClick(); };
    grdData.setToolTip(QStringLiteral("Double Click a row to Get the Debt Info of a Patient"));
    cmdList.onClick = [this] { cmdList_Click(); };
    cmdRpt.onClick = [this] { cmdRpt_Click(); };
    cmdDebtOnly.onClick = [this] { cmdDebtOnly_Click(); };
    cmdExport.onClick = [this] { cmdExport_Click(); };
    CancelButton.onClick = [this] { unload(); };
}

Layout frmDebtInfo::layout() const {
    using namespace orvane::layout;
    return column({row({field("Search by Surname", txtName, 28), cell(cboGroup, 10), cell(OKButton), stretch(),
                        field("Attendance Between", DTPicker1), field("And", DTPicker2), cell(chkAll), cell(cmdList)}),
                   cell(Label5), cell(grdData), buttons({&cmdRpt, &cmdDebtOnly}, {&cmdExport, &CancelButton}),
                   cell(chkDebt)});
}

void frmDebtInfo::Form_Load() {
    const QDate today = program.getServerDateTime().date();
    DTPicker1.setDate(today);
    DTPicker2.setDate(today);
    grdData.setFormat(QStringLiteral("Debt"), QStringLiteral("#,##;(#,##0)"));
    grdData.setFormat(QStringLiteral("Bill"), QStringLiteral("#,###.00"));
    grdData.setFormat(QStringLiteral("AmountPaid"), QStringLiteral("#,###.00"));
    cboGroup.setText(QStringLiteral("Name"));
    if (session.sBillPatName.isEmpty()) {
        session.sDebtMode = modeSearch;
        txtName.setFocus();
        return;
    }
    session.sDebtMode = modeAuto;
    m_pno = session.sBillPno;
    Label5.setText(session.sBillPatName);
    {
        Connection connection = program.openBilling();
        const Recordset first(connection, Sql("select top 1 recDate from hrecords where pno = '")
                                              << m_pno << "' order by recID asc");
        if (!first.eof())
            DTPicker1.setDate(first.date(QStringLiteral("recDate")));
    }
    cmdList_Click();
}

void frmDebtInfo::search() {
    QString text = txtName.text();
    text.replace(QLatin1Char('"'), QStringLiteral("''"));
    Sql sql;
    if (cboGroup.text() == QLatin1String("SysNo")) {
        // A short number is completed to a file number: the hospital and six digits.
        if (!text.contains(QLatin1Char('/')))
            text = session.gHospID + QLatin1Char('/') + (QStringLiteral("000000000") + text).right(6);
        sql << "select  * from vwhpatients where Pno = '" << text << "'";
    } else if (cboGroup.text() == QLatin1String("CardNo")) {
        sql << "select  * from vwhpatients where oldPno = '" << text << "'";
    } else {
        sql << "select  * from vwhpatients where fullname like '" << text << "%'  order by fullname";
    }
    session.sDebtMode = modeSearch;
    Label5.setText(QStringLiteral("Debt Information"));
    Connection connection = program.openBilling();
    grdData.load(Recordset(connection, sql));
}

void frmDebtInfo::grdData_DblClick() {
    // A row of a statement names a bill, not a patient to look for.
    if (grdData.currentRow() < 0 || grdData.columnIndex(QStringLiteral("oldPno")) < 0)
        return;
    m_pno = grdData.text(QStringLiteral("pno"));
    const QString name = grdData.text(QStringLiteral("fullname"));
    Label5.setText(QStringLiteral("Search for: ") + name);
    Connection connection = program.openBilling();
    showStatement(Recordset(connection, searchStatement()));
}

void frmDebtInfo::cmdList_Click() {
    if (DTPicker2.date() < DTPicker1.date()) {
        program.box(QStringLiteral("Please specify Attendance Date Range"));
        return;
    }
    if (m_pno.isEmpty())
        return;
    const bool whole = session.sDebtMode == modeSearch || chkAll.isChecked();
    Connection connection = program.openBilling();
    showStatement(Recordset(connection, whole ? searchStatement() : autoStatement()));
}

// The whole account, whatever the dates.
Sql frmDebtInfo::searchStatement() const {
    Sql sql("SELECT     SNO, AttndDate, BillDate, FullName, PNo,Remarks as Items,  Bill, AmountPaid,RunningTotal as "
            "Debt,BillNo,  Comapany "
            "FROM   vwTranxaction where pno='");
    sql << m_pno << "' order by SNo";
    return sql;
}

Sql frmDebtInfo::autoStatement() const {
    Sql sql("SELECT     SNO, AttndDate, BillDate, FullName,Remarks as Items,  Bill, AmountPaid,RunningTotal as "
            "Debt,BillNo,  Comapany, PNo "
            "FROM   vwTranxaction where pno='");
    sql << m_pno << "' and AttndDate between '" << DTPicker1.date() << "' and '" << DTPicker2.date()
        << "' order by SNo";
    return sql;
}

void frmDebtInfo::showStatement(const Recordset& statement) {
    grdData.load(statement);
}

void frmDebtInfo::cmdRpt_Click() {
    if (chkDebt.isChecked())
        showSummary(Sql("SELECT * FROM qryhFullnameHosp where debtBF <> 0 order by abs(debtBF) desc"));
    else
        showSummary(Sql("SELECT * FROM qryhFullnameHosp where debtBF <> 0 order by FullName"));
}

void frmDebtInfo::cmdDebtOnly_Click() {
    if (chkDebt.isChecked())
        showSummary(Sql("SELECT * FROM qryhFullnameHosp where debtBF > 0 order by abs(debtBF) desc"));
    else
        showSummary(Sql("SELECT * FROM qryhFullnameHosp where debtBF > 0 order by FullName"));
}

void frmDebtInfo::showSummary(const Sql& sql) {
    Connection connection = program.openBilling();
    ui().viewReport(QStringLiteral("rptDebtInfo.rpt"), QStringLiteral("Patients' Debt Information"),
                    Recordset(connection, sql));
}

void frmDebtInfo::cmdExport_Click() {
    if (grdData.rowCount() == 0) {
        program.box(QStringLiteral("No record is displayed for printing"));
        return;
    }
    const QString file = exportFileName(QStringLiteral("Debt Info ") + Label5.text(), ui().now());
    exportWorkbook(grdData, file);
    ui().exported(file);
}

} // namespace orvane
