#include "session/MdiTolmek.h"
#include "session/frmStart.h"
#include "support/ScreenTest.h"

#include <QDir>
#include <QFile>

namespace orvane {
namespace {

class Shell : public ScreenTest {
protected:
    Shell() : ScreenTest("MdiTolmek") {}

    void serverClock(const QString& at) {
        ws.program.data().setServerClock(QDateTime::fromString(at, "yyyy-MM-dd HH:mm:ss"));
    }
    void tick(const char* timer) { ws.timer("MdiTolmek." + QLatin1String(timer)); }
    bool isOn(const char* timer) { return ws.control("MdiTolmek." + QLatin1String(timer)).isEnabled(); }
    std::optional<unsigned> stripColor() { return ws.control("MdiTolmek.Picture1").color(); }
    void makeWaitingVisit(const QString& consultID, QDate date) {
        Connection billing = ws.billing();
        makeVisit(billing, {.consultID = consultID, .date = date});
        makeConsultation(billing, {.consultID = consultID, .date = date});
    }

    Session& session = ws.program.session;
};
ORVANE_ON_EACH_ENGINE(Shell);

TEST_P(Shell, clockIsTheServersAndItsDateNeverGoesBack) {
    ui.clock = QDateTime(QDate(2020, 1, 1), QTime(1, 2));
    for (const auto& [server, shown] : {std::pair("2026-03-14 09:30:45", "14/03/2026 09:30"),
                                        {"2026-03-14 08:15:00", "14/03/2026 08:15"},
                                        {"2026-03-13 23:59:59", "14/03/2026 08:15"},
                                        {"2026-03-15 00:00:10", "15/03/2026 00:00"}}) {
        serverClock(server);
        tick("Timer2");
        EXPECT_EQ(value("lblDate") + ' ' + value("lblTime"), shown);
    }
    EXPECT_EQ(session.gServerDate, QDate(2026, 3, 15));
    EXPECT_EQ(session.gServerTime, QTime(0, 0));
    ws.run("drop view qrySysDateTime");
    tick("Timer2");
    EXPECT_EQ(value("lblDate"), "15/03/2026");
    EXPECT_EQ(ui.takeBoxes().size(), 1);
}

TEST_P(Shell, alertFollowsTheVisitsThatWaitToday) {
    const auto alertIs = [&](bool on) { return isOn("tmrMDI") == on && isOn("tmrSound") == on; };
    layVisit({}, {.consultID = "SEEN"});
    makeWaitingVisit("001OFL0000001", QDate(2026, 3, 13));
    tick("Timer1");
    EXPECT_TRUE(alertIs(false));
    makeWaitingVisit("001OFL0000002", QDate(2026, 3, 14));
    tick("Timer1");
    EXPECT_TRUE(alertIs(true));

    for (const unsigned color : {0x8080ffu, 0xff0000u, 0x8080ffu}) {
        tick("tmrMDI");
        EXPECT_EQ(stripColor(), color);
    }
    for (int minute = 1; minute <= 13; ++minute) {
        tick("tmrSound");
        EXPECT_EQ(ui.sounds.size(), minute / 6) << minute;
    }
    EXPECT_EQ(ui.sounds.first(), QDir(home.folder()).filePath("ring1.wav"));

    ws.run("update hRecords set BillDate='2026-03-14' where consultID='001OFL0000002'");
    tick("Timer1");
    EXPECT_TRUE(alertIs(false));
    ws.run("drop view vwhConsultingVisitsForBilling");
    tick("Timer1");
    EXPECT_EQ(ui.takeBoxes().size(), 1);
    EXPECT_TRUE(isOn("Timer1"));
}

TEST_P(Shell, doubleClickOnTheStripSilencesUntilTheNextOne) {
    for (const bool sounds : {false, true, false}) {
        ws.dblClick("MdiTolmek.Picture1");
        EXPECT_EQ(session.bFirstShow, sounds);
        for (const char* timer : {"Timer1", "tmrMDI", "tmrSound"})
            EXPECT_EQ(isOn(timer), sounds) << timer;
        if (!sounds)
            EXPECT_EQ(stripColor(), 0x8080ffu);
        tick("tmrMDI");
        tick("tmrMDI"); // while it sounds, the strip is left red
    }
    EXPECT_TRUE(isOn("Timer2"));
    EXPECT_FALSE(isOn("tmrIdle"));
}

TEST_P(Shell, hiddenEntriesAreTurnedOnByTheIniAlone) {
    QStringList hidden;
    for (Control* control : ws.form("MdiTolmek").controls())
        if (control->kind() == ControlKind::Menu && !control->isVisible())
            hidden << control->name();
    EXPECT_EQ(hidden,
              QStringLiteral(
                  "mnuUPC mnuBanks mnuAdmDepo mnuRct mnuDisc mnuPCR mnuPSITC mnuPCBILL mnuPCB mnuBillPublic mnuDFO "
                  "mnuCBFHPC mnuDispense mnuStockEntry mnuSearch mnuView mnuReal mnuBIBC mnuRemnd mnuCR mnusecurity "
                  "mnuLR mnuAuto")
                  .split(QLatin1Char(' ')));
    EXPECT_FALSE(ws.control("MdiTolmek.mnusecurity").isEnabled());
    EXPECT_EQ(state("mnuAccts"), "visible enabled") << "her name is in UsersForAccts";
    EXPECT_EQ(value("SbrTolmek"), "BILLING|amina.b|AMINA BELLO");
    EXPECT_EQ(value("mnuEPE") + value("lblServer"), "Log Off amina.bServer Date && Time: ");

    ui.answer(true);
    ws.menu("mnuEPE");
    ws.run("delete from UsersForAccts");
    QFile ini(QDir(home.folder()).filePath("orvane.ini"));
    ASSERT_TRUE(ini.open(QIODevice::Append));
    ini.write("\n[menu]\nmnuRct = 1\nmnuPayVBC = 1\nmnuSecurity = 1\nmnuAccts = 1\nmnuDisc = 0\nmnuVerify = 0\n");
    ini.close();
    Workstation restarted(home.folder());
    ASSERT_TRUE(restarted.start());
    QStringList states;
    for (const char* entry : {"mnuRct", "mnusecurity", "mnuAccts", "mnuDisc", "mnuVerify"})
        states << restarted.state("MdiTolmek." + QLatin1String(entry)).section(' ', 0, 0);
    EXPECT_EQ(states, QStringList({"visible", "visible", "hidden", "hidden", "visible"}));
    EXPECT_TRUE(restarted.control("MdiTolmek.mnusecurity").isEnabled());
    restarted.menu("mnuPayVBC");
    EXPECT_TRUE(restarted.program.loadedForm("frmRptPaymentVoucherByCashier")) << "an empty entry that was turned on";
}

/// Each entry does something, or does nothing because that is all it is there for.
TEST_P(Shell, everyEntryActsButTheEmptyOnes) {
    QStringList quiet, forms;
    for (Control* control : ws.form("MdiTolmek").controls()) {
        auto* item = dynamic_cast<MenuItem*>(control);
        if (!item || !item->menu() || item->name() == QLatin1String("mnuEPE"))
            continue;
        if (item->name() == QLatin1String("mnuAcctEnable") || item->name() == QLatin1String("mnuAcctDisable"))
            ui.answerCancel();
        ui.opened.clear();
        control->form().userEvent([&] { item->click(); });
        if (ui.takeBoxes().isEmpty() && ui.takeQuestions().isEmpty() && ui.opened.isEmpty())
            quiet << item->name();
        for (const QString& form : std::as_const(ui.opened))
            forms << item->name() + '>' + form;
        if (Form* active = ws.program.activeForm())
            active->abandon();
    }
    EXPECT_EQ(quiet.join(' '), "mnuPCR mnuPCBILL mnuDFO mnuCBFHPC mnuEditArecord mnuPayVBC mnuABR mnuLR mnuAuto "
                               "mnuWindowTV mnuWindowTH mnuWindowCascade");
    EXPECT_EQ(forms.join(' '),
              "mnuApprvCode>frmApprvCode mnuCoyInfo>frmRetainership mnuSupp>frmSupplers mnuEII>frmExpenseItems "
              "mnuRevCat>frmRevCat mnuUPC>frmCoyUpdate mnuBanks>frmBanks mnuOffAttd>frmRecordsOffline "
              "mnuVerify>frmBillingVerify mnuViewColl>frmBillProcess mnuPayVouch>frmExpensePay "
              "mnuMIGFC>frmBillProcessing mnuSBTAPP>frmBillProcessingShift mnuLastBatch>frmBillReverseProcessing "
              "mnuAdmDepo>frmReceiptDeposit mnuRct>frmReceiptTemp mnuDisc>frmBillDiscount "
              "mnuPrintB>FrmRptBillsByPat mnuRPtES>rptPanelSummary mnuOffline>frmReceiptManual "
              "mnuPSITC>frmExistBill mnuPCB>rptPanelSummary mnuTB>frmRptTB mnuTBBP>frmRptTB mnuGL>frmRptTB "
              "mnuCTTA>frmRevCashAcct mnuCRD>frmRevCashAdjust "
              "mnuRHFCB>frmRevCatEdit mnuSuppAcctUpdate>frmSuppliersAcct mnuPMPBFC>frmBillProcessingPost "
              "mnuPCOB>frmBillToCapitated mnuReqEntrt>frmInvestigatePublic mnuBillPublic>frmBillingPublic "
              "mnuCBFSO>frmBillingVerify mnuDispense>frmDispensing mnuStockEntry>frmStockEntry mnuEditFind>frmFind "
              "mnuVSII>frmPatientInfo mnuABCBAC>FrmRptAttendByCoy AYTBABBO>FrmRptBillsUnAttendedTo "
              "mnuPDI>frmDebtInfo mnuBNIPSL>frmVerifyBillsInSummary mnuPIBP>FrmRptBillsByPat mnuLabRes>FrmRptSummQVR "
              "mnuPrintBMonthly>FrmProcessedBill mnuReal>frmBillGen mnuPRBC>FrmRptPaymentsByCashier "
              "mnuBCBBO>FrmRptBillsByBillingOfficers mnuBIBC>FrmRptBillsByClient mnuRemnd>frmReminder "
              "mnuMRpts>rptPanelForFinancial mnuUsers>frmUsers mnuUserRoles>frmUserRole "
              "mnuChangePWD>frmDialog mnuCreateRoles>frmRole mnuDSP>frmDrugPrice");
}

/// The screen of the ledger's reports is the one of the entry, whichever was open before.
TEST_P(Shell, entriesHandTheirPurposeToTheScreen) {
    for (const auto& [entry, caption] : {std::pair("mnuTB", "Trial Balance"), std::pair("mnuGL", "General Ledger"),
                                         std::pair("mnuTBBP", "Trial Balance by Period (Actual)")}) {
        ws.menu(QLatin1String(entry));
        EXPECT_EQ(ws.form("frmRptTB").caption(), caption);
    }
}

TEST_P(Shell, reportsOfTodayTakeTheirOwnDate) {
    // The server is a day behind the workstation: bills are the server's today, receipts the workstation's.
    ui.clock = QDateTime(QDate(2026, 3, 15), QTime(7, 0));
    const auto viewAll = [&] {
        for (const char* entry : {"mnuBFT", "mnuINC", "mnuCR"}) // one of them is hidden
            ws.form("MdiTolmek").userEvent([&] { ws.control("MdiTolmek." + QLatin1String(entry)).click(); });
    };
    const QStringList nothing{"No Bills for Today", "No Income between these two dates", "No Cancelled Receipts"};
    const auto layDay = [&](const QString& id, const QString& billDay, const QString& receiptDay) {
        Connection billing = ws.billing();
        makeVisit(billing, {.consultID = id});
        layBill(500, 0, id);
        ws.run("update Billing set bdate='" + billDay + "' where billNo='" + id + '\'');
        for (const QString& amount : {QString("500"), QString("-500")})
            ws.run("insert into Payments (ReceiptNo, ReceiptDate, billNo, PNo, AmountPaid) values ('R" + id + amount +
                   "', '" + receiptDay + "', '" + id + "', 'P/0001', " + amount + ")");
    };
    layVisit();
    layDay("B1", "2026-03-15", "2026-03-14");
    viewAll();
    EXPECT_EQ(ui.takeBoxes(), nothing);
    layDay("B2", "2026-03-14", "2026-03-15");
    ws.run("update Payments set PayType='cash' where AmountPaid < 0");
    ws.run("insert into Payments (ReceiptNo, ReceiptDate, billNo, PNo, AmountPaid, PayType) values "
           "('S', '2026-03-15', 'B2', 'P/0001', 700, 'CASH/POS')");
    ws.run("insert into PaymentTypes (ReceiptNo, ReceiptDate, AmountPaid, PayType) values "
           "('S', '2026-03-15', 400, 'CASH'), ('S', '2026-03-15', 300, 'POS'), ('T', '2026-03-14', 9, 'POS')");
    viewAll();
    EXPECT_BOXES(ui, {});
    QStringList reports;
    for (const TestUi::Report& report : ui.reports)
        reports << report.file + '|' + report.title + '|' + QString::number(report.rows);
    EXPECT_EQ(reports, QStringList({"rptCompanyBill|Unpaid Bills for Today|1", "rptBillingIncome|Income for Today|3",
                                    "rptCancelledReceipt|Cancelled Receipts|1"}));
    const QString sums = "By way of payment:   (none) 500.00     CASH -100.00     POS 300.00";
    EXPECT_TRUE(ui.reports.at(1).end.contains(sums)) << ui.reports.at(1).end.toStdString();
}

TEST_P(Shell, printsTheActiveScreen) {
    ws.menu("mnuPrint");
    EXPECT_BOXES(ui, {"There is no open screen to print."});
    ws.open("frmRole");
    ws.open("frmDialog");
    ws.menu("mnuPrint");
    ws.form("frmRole").activated();
    ws.menu("mnuPrint");
    ws.close("frmRole");
    ws.menu("mnuPrint");
    EXPECT_EQ(ui.printed, (QStringList{"frmDialog", "frmRole", "frmDialog"}));
}

TEST_P(Shell, exitAsksAndEndsEverything) {
    const QString question = " Do you want to Exit the Application?";
    const QString row = QStringLiteral("UserActivities where SNo=%1 and ").arg(session.gActivitySNo);
    ws.open("frmRole");
    ui.answer(false);
    close();
    EXPECT_QUESTIONS(ui, {question});
    EXPECT_FALSE(ui.hasQuit);
    EXPECT_EQ(ws.tableCount(row + "islogout=0 and LogoutDate is null"), 1);

    serverClock("2026-03-15 17:05:00");
    ui.answer(true);
    close();
    EXPECT_QUESTIONS(ui, {question});
    EXPECT_TRUE(ui.hasQuit);
    EXPECT_EQ(ui.closedForms.size(), 2);
    EXPECT_EQ(ws.program.loadedForm("frmRole"), nullptr);
    EXPECT_EQ(ws.program.loadedForm("MdiTolmek"), nullptr);
    EXPECT_EQ(ws.tableCount(row + ("islogout=1 and AutoLogoff=0 and LogoutDate='2026-03-15' and "
                                   "LogoutTime='17:05' and LoginDate='2026-03-14'")),
              1);
}

TEST_P(Shell, anAutomaticLogOffAsksNothingAndEndsWithoutItsTrailToo) {
    session.bAutoLogoff = true;
    close();
    EXPECT_TRUE(ui.hasQuit);
    EXPECT_EQ(ws.tableCount("UserActivities where islogout=1 and AutoLogoff=1"), 1);
    ASSERT_TRUE(ws.start());
    ui.hasQuit = false;
    ws.run("drop table UserActivities");
    session.bAutoLogoff = true;
    close();
    EXPECT_EQ(ui.takeBoxes().size(), 1);
    EXPECT_TRUE(ui.hasQuit);
}

TEST_P(Shell, promptsStandInFrontOfEachOther) {
    auto& shell = dynamic_cast<MdiTolmek&>(ws.form(QStringLiteral("MdiTolmek")));
    shell.VerifyApptDate();
    EXPECT_EQ(shell.sPrompt, QString());
    ws.run("insert into hreferal (PNo, ApptDate, attendedTo) values ('P/0001', '2026-03-14', 0)");
    layVisit();
    shell.VerifyApptDate();
    shell.VerifyVisitsToday();
    EXPECT_EQ(shell.sPrompt, QStringLiteral("--There are Visits to the clinic Today--\n"
                                            "--Some Patients Appt Date is Due Today--\n"));
}

} // namespace
} // namespace orvane
