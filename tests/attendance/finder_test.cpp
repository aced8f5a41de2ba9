// The patient finder, and how each screen takes the patient whom it gives.
#include "support/ScreenTest.h"

namespace orvane {
namespace {

class FinderTest : public ScreenTest {
protected:
    FinderTest() : ScreenTest("frmPatientFinder") {}

    void prepare() override {
        layVisit({}, {.client = "0201"});
        layBill(3000);
        Connection billing = ws.billing();
        makePatient(billing, {.pno = "P/0002", .surname = "BELLO", .firstname = "ADE"});
        makePatient(billing, {.pno = "P/0003", .surname = "BELLO", .firstname = "OLADE"});
    }
    QString found(const QString& text) {
        set("txtFind", text);
        QStringList numbers;
        for (const QString& row : ws.rows("frmPatientFinder.grdData").mid(1))
            numbers << row.section('\t', 0, 0);
        return numbers.join(' ');
    }
    /// Presses Enter behind the text over the screen; gives the number that it was handed.
    QString taken(Form& screen, const QString& text) {
        ui.inModal("frmPatientFinder", [&](Form& finder) {
            set("txtFind", text);
            ws.key("frmPatientFinder.txtFind", "\n");
            if (!finder.isClosed())
                finder.unload();
        });
        EXPECT_TRUE(screen.findPatient());
        return ws.program.session.sFoundPNo;
    }
};
ORVANE_ON_EACH_ENGINE(FinderTest);

TEST_P(FinderTest, KnowsAllOnceTheyAreReadAndNewcomersByTheirHeads) {
    open();
    EXPECT_EQ(found("bello"), "P/0002 P/0003") << "by the indexes";
    EXPECT_EQ(found("ade bello"), "");
    EXPECT_EQ(value("lblFound"), "No patient has: ade bello (the names are still being read)");
    ws.timer("frmPatientFinder.tmrRead");
    EXPECT_EQ(found("ade bello"), "P/0002 P/0003") << "the beginning of a word before any part";
    EXPECT_EQ(found("ade"), "P/0001 P/0002 P/0003");
    EXPECT_EQ(ws.rows("frmPatientFinder.grdData").at(1), "P/0001\t\tADEYEMI BOLA\t\tPRIVATE PATIENTS\t14/03/2026");
    ws.run("insert into hPatients (PNo, psurname, pfirstname) values ('P/0004', 'D''ALMEIDA 50%', 'ADE')");
    EXPECT_EQ(found("d'alm") + found("P/0004") + found("almeida"), "P/0004P/0004");
    ws.timer("MdiTolmek.tmrPatients");
    EXPECT_EQ(found("almeida"), "P/0004");
    ws.run("delete from hPatients where PNo='P/0004'");
    EXPECT_EQ(found("almeid"), "") << "but no longer in the database";
}

TEST_P(FinderTest, EnterTakesWhoIsMeantAndNobodyByChance) {
    ws.open("frmFind");
    Form& screen = ws.form("frmFind");
    ws.run("update hPatients set OldPNo='H7', pPhoneNo='08030000001' where PNo<>'P/0001'");
    const std::pair<const char*, const char*> entries[] = {
        {"p/0001", "P/0001"}, {"adeyemi", "P/0001"}, {"bello", ""}, {"P/000", ""}, {"H7", ""}, {"0001", ""}, {"", ""}};
    for (const auto& [text, number] : entries) {
        EXPECT_EQ(taken(screen, text), number) << text;
        EXPECT_EQ(ws.value("frmFind.TxtID"), "P/0001") << "stays without another one";
    }
}

TEST_P(FinderTest, EachScreenTakesHimAsItsOwnPickerDoes) {
    const struct {
        const char *form, *control, *shows;
    } screens[] = {{"frmFind", "TxtID", "P/0001"},         {"frmPatientInfo", "txt_pSurname", "ADEYEMI"},
                   {"frmPatList", "cboBill", ""},          {"frmDebtInfo", "Label5", "Search for: ADEYEMI BOLA"},
                   {"frmReceiptTemp", "txtBill", billNo},  {"frmReceiptManual", "lblBill", billNo},
                   {"frmBillDiscount", "lblBill", billNo}, {"frmBillingVerify", "lblBill", billNo}};
    for (const auto& test : screens) {
        ws.open(test.form);
        EXPECT_EQ(taken(ws.form(test.form), "P/0001"), "P/0001") << test.form;
        EXPECT_EQ(ws.value(QString(test.form) + '.' + test.control), test.shows) << test.form;
        EXPECT_BOXES(ui, {});
    }
    ws.open("frmRecordsOffline");
    ws.set("frmRecordsOffline.dtDate", "2026-03-20");
    taken(ws.form("frmRecordsOffline"), "P/0002");
    EXPECT_EQ(ws.value("frmRecordsOffline.lblNo"), "P/0002");
    ws.run("insert into BillingDetails (billNo, PNo, drgName, SubTotal) values ('001OFL0000001', 'P/0001', 'SCAN', 0)");
    ws.open("FrmRptBillsByPat");
    taken(ws.form("FrmRptBillsByPat"), "P/0001");
    EXPECT_EQ(ws.value("FrmRptBillsByPat.lblNo"), "P/0001");
    // Of several visits the user chooses.
    Connection billing = ws.billing();
    makeVisit(billing, {.consultID = "NEWER", .date = QDate(2026, 3, 15)});
    taken(ws.form("frmReceiptManual"), "P/0001");
    EXPECT_EQ(ws.items("frmReceiptManual.cboVehNo").size(), 2);
    ws.open("frmWelcome");
    EXPECT_FALSE(ws.form("frmWelcome").findPatient());
}

} // namespace
} // namespace orvane
