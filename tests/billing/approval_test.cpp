#include "VerifyTest.h"

namespace orvane {

namespace {

class Approval : public SoundBillTest {
protected:
    void SetUp() override {
        SoundBillTest::SetUp();
        Connection connection = ws.billing();
        makePatient(connection, {.pno = "P/0002", .surname = "O'NEILL [2] @HOME", .category = "HMO", .client = "0201"});
        makeVisit(connection, {.consultID = "001OFL0000002",
                               .pno = "P/0002",
                               .date = QDate(2026, 3, 10),
                               .category = "HMO",
                               .client = "0201"});
        layVisit();
        ws.open("frmApprvCode");
        put("DTPicker1", "2026-03-01");
        press("cmdInv");
    }
    void put(const QString& control, const QString& text) { ws.set("frmApprvCode." + control, text); }
    void press(const QString& button) { ws.click("frmApprvCode." + button); }
    QString shown(const QString& control) { return ws.value("frmApprvCode." + control); }
    void give(const QString& date, const QString& code, const QString& category) {
        put("dtDate", date);
        put("txtApprv", code);
        put("cboBill", category);
        press("OKButton");
        EXPECT_BOXES(ui, {"Record Succesfully saved"});
    }
    QString codes() {
        return rows("select ApprvDate, consultID, ApprvCode, Remarks, billType, PNo from hApprvCode order by SNO");
    }
    QStringList listed() {
        QStringList found;
        for (const QString& row : ws.rows("frmApprvCode.grdData").mid(1))
            found << row.section('\t', 0, 2);
        return found;
    }
};

ORVANE_ON_EACH_ENGINE(Approval);

TEST_P(Approval, PrivatePatientsHaveNoneAndTheChecksComeInOrder) {
    EXPECT_EQ(ws.items("frmApprvCode.cboVehNo"), QStringList("O'NEILL [2] @HOME BOLA @10/03/2026 [001OFL0000002]"));
    put("dtDate", "");
    press("OKButton");
    put("dtDate", "2026-03-10");
    press("OKButton");
    ws.pick("frmApprvCode.cboVehNo", 0);
    press("OKButton");
    put("txtApprv", "CH/88");
    press("OKButton");
    EXPECT_BOXES(ui, {"Specify Date of Approval", "Select a Patient for this Approval",
                      "Specify Approval Code for this Treatment", "Specify Billing Category for this Approval"});
    EXPECT_EQ((QStringList{shown("lblBill"), shown("lblNo"), shown("lblDetails"), shown("lblCoy"), shown("lblRef"),
                           shown("dtDate")}),
              (QStringList{"001OFL0000002", "P/0002", "HMO", "CLEARWATER HMO", "NO", "2026-03-10"}));
    EXPECT_EQ(codes(), "");
}

TEST_P(Approval, EditingChangesTheFirstCodeOfTheVisit) {
    ws.pick("frmApprvCode.cboVehNo", 0);
    put("txtRem", "BY PHONE");
    give("2026-03-12", "LATER", "CLAIMS");
    give("2026-03-11", "EARLIER", "COMPANY");
    EXPECT_EQ(codes(), "2026-03-12|001OFL0000002|LATER|BY PHONE|CLAIMS|P/0002\n"
                       "2026-03-11|001OFL0000002|EARLIER||COMPANY|P/0002");
    EXPECT_EQ(listed(), (QStringList{"11/03/2026\t001OFL0000002\tEARLIER", "12/03/2026\t001OFL0000002\tLATER"}));
    EXPECT_EQ(audit("Add Apprv Code for "), "Add Apprv Code for O'NEILL [2] @HOME BOLA|LATER\n"
                                            "Add Apprv Code for O'NEILL [2] @HOME BOLA|EARLIER");

    for (const char* code : {"CHANGED", "AGAIN"}) {
        ws.row("frmApprvCode.grdData", "EARLIER");
        press("cmdEdit");
        EXPECT_EQ(shown("txtApprv") + shown("cboBill") + shown("dtDate"), "EARLIERCOMPANY2026-03-11");
        give("2026-03-11", code, "COMPANY");
        EXPECT_EQ(rows("select ApprvCode from hApprvCode order by SNO"), QString(code) + "\nEARLIER");
    }
    load("001OFL0000002");
    EXPECT_EQ(value("txtApprv"), "AGAIN") << "the collation screen shows the first";

    ui.answer(false);
    press("cmdDel");
    EXPECT_EQ(codes().count('\n'), 1);
    ws.row("frmApprvCode.grdData", "AGAIN");
    press("cmdEdit");
    ui.answer(true);
    press("cmdDel");
    EXPECT_QUESTIONS(ui, {"Are you sure to Delete Record", "Are you sure to Delete Record"});
    EXPECT_BOXES(ui, {" Record successfully deleted "});
    give("2026-03-13", "NEW", "CLAIMS");
    EXPECT_EQ(rows("select ApprvCode from hApprvCode order by SNO"), "EARLIER\nNEW")
        << "the edit of a deleted code is a new one";
}

TEST_P(Approval, ACodeBeingEditedStaysWithItsVisit) {
    Connection connection = ws.billing();
    makeVisit(connection, {.consultID = "001OFL0000003", .pno = "P/0002", .category = "HMO", .client = "0201"});
    press("cmdInv");
    ws.pick("frmApprvCode.cboVehNo", "001OFL0000002");
    give("2026-03-10", "CH/88", "CLAIMS");
    press("cmdEdit");
    ws.pick("frmApprvCode.cboVehNo", "001OFL0000003");
    press("OKButton");
    EXPECT_BOXES(ui, {"Specify Approval Code for this Treatment"});
    // What was typed before the visit was picked is meant for it.
    put("txtApprv", "CH/99");
    ws.pick("frmApprvCode.cboVehNo", "001OFL0000003");
    give("2026-03-14", shown("txtApprv"), "CLAIMS");
    EXPECT_EQ(rows("select consultID, ApprvCode from hApprvCode order by SNO"),
              "001OFL0000002|CH/88\n001OFL0000003|CH/99");
}

} // namespace

} // namespace orvane
