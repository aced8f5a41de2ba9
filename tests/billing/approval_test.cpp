#include "support/ScreenTest.h"

namespace orvane {
namespace {

class Approval : public SoundScreenTest {
protected:
    Approval() : SoundScreenTest("frmApprvCode") {}
    void SetUp() override {
        SoundScreenTest::SetUp();
        layVisit({.pno = "P/0002", .surname = "O'NEILL [2] @HOME", .category = "HMO", .client = "0201"},
                 {"001OFL0000002", "P/0002", QDate(2026, 3, 10), "HMO", "0201"});
        layVisit();
        open();
        set("DTPicker1", "2026-03-01");
        click("cmdInv");
    }
    void give(const QString& date, const QString& code, const QString& category) {
        set("dtDate", date);
        set("txtApprv", code);
        set("cboBill", category);
        EXPECT_EQ(told("OKButton"), "Record Succesfully saved");
    }
    QString codes() {
        return rows("select ApprvDate, consultID, ApprvCode, Remarks, billType, PNo from hApprvCode order by SNO");
    }
};
ORVANE_ON_EACH_ENGINE(Approval);

TEST_P(Approval, PrivatePatientsHaveNoneAndTheChecksComeInOrder) {
    EXPECT_EQ(items("cboVehNo"), QStringList("O'NEILL [2] @HOME BOLA @10/03/2026 [001OFL0000002]"));
    expectChecks(
        {{"dtDate", "", "Specify Date of Approval"}, {"dtDate", "2026-03-10", "Select a Patient for this Approval"}});
    pick("cboVehNo", 0);
    expectChecks({{nullptr, nullptr, "Specify Approval Code for this Treatment"},
                  {"txtApprv", "CH/88", "Specify Billing Category for this Approval"}});
    EXPECT_EQ(shown("lblBill lblNo lblDetails lblCoy lblRef dtDate"),
              "001OFL0000002|P/0002|HMO|CLEARWATER HMO|NO|2026-03-10");
    EXPECT_EQ(codes(), "");
}

TEST_P(Approval, EditingChangesTheFirstCodeOfTheVisit) {
    pick("cboVehNo", 0);
    set("txtRem", "BY PHONE");
    give("2026-03-12", "LATER", "CLAIMS");
    give("2026-03-11", "EARLIER", "COMPANY");
    EXPECT_EQ(codes(), "2026-03-12|001OFL0000002|LATER|BY PHONE|CLAIMS|P/0002\n"
                       "2026-03-11|001OFL0000002|EARLIER||COMPANY|P/0002");
    const QStringList listed = ws.rows("frmApprvCode.grdData");
    EXPECT_TRUE(listed.value(1).startsWith("11/03/2026\t001OFL0000002\tEARLIER"));
    EXPECT_TRUE(listed.value(2).startsWith("12/03/2026\t001OFL0000002\tLATER"));
    EXPECT_EQ(audit("Add Apprv Code for %"), "Add Apprv Code for O'NEILL [2] @HOME BOLA|LATER\n"
                                             "Add Apprv Code for O'NEILL [2] @HOME BOLA|EARLIER");
    for (const char* code : {"CHANGED", "AGAIN"}) {
        row("grdData", "EARLIER");
        click("cmdEdit");
        EXPECT_EQ(value("txtApprv") + value("cboBill") + value("dtDate"), "EARLIERCOMPANY2026-03-11");
        give("2026-03-11", code, "COMPANY");
        EXPECT_EQ(rows("select ApprvCode from hApprvCode order by SNO"), QString(code) + "\nEARLIER");
    }
    load("001OFL0000002");
    EXPECT_EQ(value("txtApprv"), "AGAIN") << "the collation screen shows the first";
    takeInHand("frmApprvCode");
    ui.answer(false);
    click("cmdDel");
    EXPECT_EQ(codes().count('\n'), 1);
    row("grdData", "AGAIN");
    click("cmdEdit");
    ui.answer(true);
    click("cmdDel");
    EXPECT_QUESTIONS(ui, {"Are you sure to Delete Record", "Are you sure to Delete Record"});
    EXPECT_BOXES(ui, {" Record successfully deleted "});
    give("2026-03-13", "NEW", "CLAIMS");
    EXPECT_EQ(rows("select ApprvCode from hApprvCode order by SNO"), "EARLIER\nNEW")
        << "the edit of a deleted code is a new one";
}

TEST_P(Approval, ACodeBeingEditedStaysWithItsVisit) {
    Connection connection = ws.billing();
    makeVisit(connection, {.consultID = "001OFL0000003", .pno = "P/0002", .category = "HMO", .client = "0201"});
    click("cmdInv");
    pick("cboVehNo", "001OFL0000002");
    give("2026-03-10", "CH/88", "CLAIMS");
    click("cmdEdit");
    pick("cboVehNo", "001OFL0000003");
    EXPECT_EQ(told("OKButton"), "Specify Approval Code for this Treatment");
    // What was typed before the visit was picked is meant for it.
    set("txtApprv", "CH/99");
    pick("cboVehNo", "001OFL0000003");
    give("2026-03-14", value("txtApprv"), "CLAIMS");
    EXPECT_EQ(rows("select consultID, ApprvCode from hApprvCode order by SNO"),
              "001OFL0000002|CH/88\n001OFL0000003|CH/99");
}

} // namespace
} // namespace orvane
