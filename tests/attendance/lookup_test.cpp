// The screens that look patients and their private bills up.
#include "support/ScreenTest.h"

namespace orvane {
namespace {

class LookupTest : public ScreenTest {
protected:
    LookupTest() : ScreenTest("frmFind") {}

    void prepare() override {
        layVisit({.expiry = QDate(2026, 12, 31)});
        Connection billing = ws.billing();
        makePatient(billing, {.pno = "P/0002", .surname = "O'NEILL", .firstname = "ADA"});
        makePatient(billing, {.pno = "P/0003", .surname = "50% CLUB", .firstname = "TUNDE"});
        makePatient(billing, {.pno = "P/0004", .surname = "EXPIRED", .expiry = QDate(2026, 3, 13)});
        ws.run("update hPatients set OldPNo='OLD7', homeAddress='1 Creek Road', DOB='1986-12-31', pCatID='STAFF', "
               "regdate='2020-02-01' where PNo='P/0001'");
        makeVisit(billing, {.consultID = "B2"});
        makeVisit(billing, {.consultID = "B3", .pno = "P/0002", .category = "HMO", .client = "0201"});
        layBill(3000, 1000);
        layBill(500, 500.5, "B2");
        layBill(900, 0, "B3", "P/0002");
        ws.run("update Billing set bdate='2026-02-01' where billNo='B2'");
        ws.run("update Billing set clientID='0201' where billNo='B3'");
    }
    QStringList found() {
        QStringList numbers;
        for (const QString& row : ws.rows("frmFind.grdData").mid(1))
            numbers << row.section('\t', 0, 0);
        numbers.sort();
        return numbers;
    }
};
ORVANE_ON_EACH_ENGINE(LookupTest);

TEST_P(LookupTest, FindNarrowsAsOneTypes) {
    open();
    const struct {
        const char* typed;
        QStringList numbers;
    } cases[] = {{"a", {"P/0001"}}, {"O'N", {"P/0002"}}, {"50%", {"P/0003"}}, {"';--", {}},
                 {"NEILL", {}},     {"E", {"P/0004"}},   {"%C", {"P/0003"}}};
    for (const auto& test : cases) {
        set("txtName", test.typed);
        EXPECT_EQ(found(), test.numbers) << test.typed;
    }
    set("TxtID", "P/0002");
    click("cmdID");
    EXPECT_EQ(found(), QStringList{"P/0002"});
    click("cmdName");
    EXPECT_EQ(found(), QStringList{"P/0003"});
    QStringList searches;
    ws.program.data().setStatementHook([&](const QString& tsql) {
        if (tsql.contains("hpatients"))
            searches << tsql;
    });
    click("cmdRestore");
    EXPECT_EQ(value("txtName") + value("TxtID"), "");
    EXPECT_EQ(found(), QStringList());
    EXPECT_EQ(searches, QStringList()) << "nobody is looked for";
    set("txtName", "ADE");
    EXPECT_EQ(ws.rows("frmFind.grdData"), QStringList({"FileNo\tOld FileNo\tSurname\tFirstname\thomeAddress",
                                                       "P/0001\tOLD7\tADEYEMI\tBOLA\t1 Creek Road"}))
        << "typing still searches";
    ws.row("frmFind.grdData", 0);
    ws.dblClick("frmFind.grdData");
    EXPECT_EQ(ws.value("frmPatientInfo.lblHeading"), "Patient Information  : ADEYEMI BOLA");
    ws.program.data().setStatementHook({});
}

TEST_P(LookupTest, PatientInfoShowsACardAndTwoHistories) {
    open("frmPatientInfo");
    EXPECT_EQ(items("TreeView1"), QStringList({"HALDEN HOSPITAL", "50% CLUB TUNDE [P/0003]", "ADEYEMI BOLA [P/0001]",
                                               "O'NEILL ADA [P/0002]"}));
    EXPECT_EQ(value("Label"), "No of Patients : 3");
    pick("TreeView1", "ADEYEMI BOLA [P/0001]");
    for (const auto& [label, text] : std::initializer_list<std::pair<const char*, const char*>>{
             {"lblHeading", "Patient Information  : ADEYEMI BOLA"},
             {"txt_pno", "P/0001"},
             {"txt_oldpno", "OLD7"},
             {"txt_DOB", "31/12/1986"},
             {"txt_regdate", "01/02/2020"},
             {"txt_pCatID", "STAFF"},
             {"txt_empNo", "**"},
             {"txt_coyname", "PRIVATE PATIENTS"},
             {"txt_email", ""},
             {"txtAge", "40 yrs"}})
        EXPECT_EQ(value(label), text) << label;
    click("cmdREpairs");
    EXPECT_EQ(ws.rows("frmPatientInfo.grdData"),
              QStringList({"bDate\tBalanceDate\tbillNo\tpNo\tFullname\tBalance",
                           "14/03/2026\t14/03/2026\t001OFL0000001\tP/0001\tADEYEMI BOLA\t2,000.00",
                           "01/02/2026\t01/02/2026\tB2\tP/0001\tADEYEMI BOLA\t-.50"}));
    EXPECT_EQ(value("lblDisplay"), "Balance to be paid by ADEYEMI BOLA");
    click("cmdTyres");
    EXPECT_EQ(value("grdData"), "2 rows");
    EXPECT_EQ(value("lblDisplay"), "Frequency of Hospital Visits by ADEYEMI BOLA");

    pick("TreeView1", "O'NEILL ADA [P/0002]");
    EXPECT_EQ(value("txtAge"), "--");
    EXPECT_EQ(value("txt_pCatID"), "**");
    EXPECT_EQ(value("txt_oldpno"), "") << "of the patient before";
}

TEST_P(LookupTest, PatListDisplaysAPrivateBillWithABalance) {
    open("frmPatList");
    QStringList listed = items("cboVehNo");
    listed.sort();
    EXPECT_EQ(listed, QStringList({"ADEYEMI BOLA @ 0001  [001OFL0000001]", "ADEYEMI BOLA @ 0001  [B2]"}));
    EXPECT_EQ(told("OKButton"), "Please select a row ");
    pick("cboVehNo", "[001OFL0000001]");
    EXPECT_EQ(items("cboBill").size(), 2);
    pick("cboBill", "0001 @ 01/02/2026  [B2]");
    ws.program.session.sWorkPno = "of another screen";
    click("OKButton");
    EXPECT_EQ(ws.program.session.sWorkPno, "B2");
    ASSERT_EQ(ui.reports.size(), 1);
    EXPECT_EQ(ui.reports.first().title, "Private Bill B2");
    EXPECT_EQ(ui.reports.first().rows, 1);
}

} // namespace
} // namespace orvane
