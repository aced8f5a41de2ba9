#include "RecordedStatements.h"

#include "support/MoneyActions.h"

#include <QRegularExpression>

namespace orvane {

namespace {

/// The statements of the two databases come in one stream; these tables bear the names of none in billing.
bool isOfLedger(const QString& tsql) {
    static const QRegularExpression ledger(
        "TranFromAppsTrail|TranxactionTemp|AccountMonthOpen|from tranxaction where TranID",
        QRegularExpression::CaseInsensitiveOption);
    return tsql.contains(ledger);
}

bool isOnRows(const QString& tsql) {
    if (isOfLedger(tsql) || tsql.contains("SavedParts where")) // the latter notes what a test laid
        return false;
    for (const char* word : {"select", "update", "delete"})
        if (tsql.startsWith(QLatin1StringView(word), Qt::CaseInsensitive))
            return true;
    return false;
}

/// Looks through a month before its run and prints what it has made. Without templates each printout has read its rows
/// when it fails.
void reviewAndPrint(Workstation& ws) {
    Connection connection = ws.billing();
    makePatient(connection);
    makeMonthBill(connection, "001OFL0000001", "0102", 1500);
    ws.open("frmBillProcess");
    ws.click("frmBillProcess.cmdLoad");
    ws.pick("frmBillProcess.cboCoy", "[0102]");
    ws.set("frmBillProcess.txtSearch", "ADE");
    ws.ui.inModal("frmRptHeading", [](Form& headings) { headings.unload(); });
    for (const char* button : {"cmdShow", "cmdRpt"})
        ws.click(QString("frmBillProcess.") + button);
    connection.run("insert into BillsForClients (BatchNo, CoyCode, invNo) values ('2026/03', '0102', '0102/2026/03')");
    connection.run("update Billing set isProcess=1, InvNo='0102/2026/03' where billNo='001OFL0000001'");
    ws.open("FrmProcessedBill");
    ws.click("FrmProcessedBill.cmdPat");
    ws.pick("FrmProcessedBill.cboCust", 0);
    for (const char* button : {"cmdPatInv", "cmdDetail", "cmdCoy", "cmdSumm", "cmdBatch", "cmdCoy2"})
        ws.click(QString("FrmProcessedBill.") + button);
    ws.open("FrmRptBillsByPat");
    for (const char* kind : {"radCorp", "radAll"}) {
        ws.set(QString("FrmRptBillsByPat.") + kind, "yes");
        ws.click("FrmRptBillsByPat.cmdList");
    }
    ws.pick("FrmRptBillsByPat.cboCust", 0);
    for (const char* button : {"cmdDisplay", "cmdInv2", "cmdAdmInv", "cmdCap", "chkRpt", "cmdDisplay"})
        ws.click(QString("FrmRptBillsByPat.") + button);
}

/// The list reports of some days, a result of the laboratory and a bill on paper, which read their rows likewise.
void printCatalogue(Workstation& ws) {
    Connection connection = ws.billing();
    makePatient(connection);
    makeMonthBill(connection, "001OFL0000001", "0102", 1500);
    makeVisit(connection, {.consultID = "001OFL0000002"});
    makeItem(connection, {.consultID = "001OFL0000002"});
    connection.run("update Billing set bdate='2026-03-14' where billNo='001OFL0000001'");
    connection.run("insert into hInvestigate (consultID, PNo, invDate, labnum) values ('001OFL0000001', 'P/0001', "
                   "'2026-03-14', 'L1')");
    connection.run(
        "insert into hInvestigateFindings (consultID, sympItem, Result) values ('001OFL0000001', 'PCV', '9')");
    ws.open("FrmRptAttendByCoy");
    ws.pick("FrmRptAttendByCoy.cboCust", 0);
    ws.click("FrmRptAttendByCoy.cmdDisplay");
    for (const char* screen : {"FrmRptBillsByBillingOfficers", "FrmRptBillsByClient", "FrmRptBillsUnAttendedTo",
                               "FrmRptSummQVR", "rptPanelBill"}) {
        ws.open(screen);
        const QString name = QLatin1String(screen) + '.';
        const bool isPanel = name.startsWith("rpt"), isLab = name.startsWith("FrmRptSummQVR");
        const QString list = isPanel ? "cboVehNo" : "cboCust";
        ws.click(name + (isPanel ? "cmdInv" : "cmdList"));
        ws.pick(name + list, int(ws.items(name + list).size()) - 1);
        ws.click(name + (isPanel ? "OKButton" : "cmdDisplay"));
        if (isPanel || isLab)
            ws.click(name + (isPanel ? "cmdHeads" : "cmdHist"));
    }
    ws.open("rptPanelForFinancial");
    for (int i = 0; i < ws.items("rptPanelForFinancial.cboRpt").size(); ++i) {
        ws.pick("rptPanelForFinancial.cboRpt", i);
        ws.click("rptPanelForFinancial.OKButton");
    }
}

void record(const std::function<void(Workstation&)>& work, QStringList& statements) {
    const TestHome home(Engine::Sqlite);
    Workstation ws(home.folder());
    ws.layHospital();
    ws.program.data().setStatementHook([&](const QString& tsql) {
        if (isOnRows(tsql) && !statements.contains(tsql))
            statements << tsql;
    });
    EXPECT_TRUE(ws.start());
    work(ws);
    ws.program.data().setStatementHook({});
    ws.ui.forgetBoxes();
    ws.ui.takeQuestions();
}

QStringList record() {
    QStringList statements;
    for (const MoneyAction& action : moneyActions())
        record(
            [&action](Workstation& ws) {
                action.lay(ws);
                action.enter(ws);
                action.press(ws);
            },
            statements);
    record(reviewAndPrint, statements);
    record(printCatalogue, statements);
    return statements;
}

} // namespace

const QStringList& recordedStatements() {
    static const QStringList statements = record();
    return statements;
}

} // namespace orvane
