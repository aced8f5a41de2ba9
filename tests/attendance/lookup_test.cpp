// The screens that look patients and their private bills up.
#include "support/Workstation.h"

namespace orvane {
namespace {

class LookupTest : public WorkstationTest {
protected:
    void prepare() override {
        Connection billing = ws.billing();
        makePatient(billing, {.expiry = QDate(2026, 12, 31)});
        makePatient(billing, {.pno = "P/0002", .surname = "O'NEILL", .firstname = "ADA"});
        makePatient(billing, {.pno = "P/0003", .surname = "50% CLUB", .firstname = "TUNDE"});
        makePatient(billing, {.pno = "P/0004", .surname = "EXPIRED", .expiry = QDate(2026, 3, 13)});
        ws.run("update hPatients set OldPNo='OLD7', homeAddress='1 Creek Road', DOB='1986-12-31', pCatID='STAFF', "
               "regdate='2020-02-01' where PNo='P/0001'");
        makeVisit(billing, {});
        makeVisit(billing, {.consultID = "B2"});
        makeVisit(billing, {.consultID = "B3", .pno = "P/0002", .category = "HMO", .client = "0201"});
        for (const char* values :
             {"('001OFL0000001', 'P/0001', '0001', '2026-03-14', 3000, 1000)",
              "('B2', 'P/0001', '0001', '2026-02-01', 500, 500.5)", "('B3', 'P/0002', '0201', '2026-03-14', 900, 0)"})
            ws.run(
                QStringLiteral("insert into Billing (billNo, PNo, clientID, bdate, Amountbilled, AmountPaid) values ") +
                values);
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
    ws.open("frmFind");
    const struct {
        const char* typed;
        QStringList numbers;
    } cases[] = {{"a", {"P/0001"}}, {"O'N", {"P/0002"}}, {"50%", {"P/0003"}}, {"';--", {}},
                 {"NEILL", {}},     {"E", {"P/0004"}},   {"%C", {"P/0003"}}};
    for (const auto& test : cases) {
        ws.set("frmFind.txtName", test.typed);
        EXPECT_EQ(found(), test.numbers) << test.typed;
    }
    ws.set("frmFind.TxtID", "P/0002");
    ws.click("frmFind.cmdID");
    EXPECT_EQ(found(), QStringList{"P/0002"});
    ws.click("frmFind.cmdName");
    EXPECT_EQ(found(), QStringList{"P/0003"});
    QStringList searches;
    ws.program.data().setStatementHook([&](const QString& tsql) {
        if (tsql.contains("hpatients"))
            searches << tsql;
    });
    ws.click("frmFind.cmdRestore");
    EXPECT_EQ(ws.value("frmFind.txtName") + ws.value("frmFind.TxtID"), "");
    EXPECT_EQ(found(), QStringList());
    EXPECT_EQ(searches, QStringList()) << "nobody is looked for";
    ws.set("frmFind.txtName", "ADE");
    EXPECT_EQ(ws.rows("frmFind.grdData"), QStringList({"FileNo\tOld FileNo\tSurname\tFirstname\thomeAddress",
                                                       "P/0001\tOLD7\tADEYEMI\tBOLA\t1 Creek Road"}))
        << "typing still searches";
    ws.program.data().setStatementHook({});
}

TEST_P(LookupTest, PatientInfoShowsACardAndTwoHistories) {
    ws.open("frmPatientInfo");
    EXPECT_EQ(ws.items("frmPatientInfo.TreeView1"), QStringList({"HALDEN HOSPITAL", "50% CLUB TUNDE [P/0003]",
                                                                 "ADEYEMI BOLA [P/0001]", "O'NEILL ADA [P/0002]"}));
    EXPECT_EQ(ws.value("frmPatientInfo.Label"), "No of Patients : 3");
    ws.pick("frmPatientInfo.TreeView1", "ADEYEMI BOLA [P/0001]");
    const QList<std::pair<const char*, const char*>> card = {{"lblHeading", "Patient Information  : ADEYEMI BOLA"},
                                                             {"txt_pno", "P/0001"},
                                                             {"txt_oldpno", "OLD7"},
                                                             {"txt_DOB", "31/12/1986"},
                                                             {"txt_regdate", "01/02/2020"},
                                                             {"txt_pCatID", "STAFF"},
                                                             {"txt_empNo", "**"},
                                                             {"txt_coyname", "PRIVATE PATIENTS"},
                                                             {"txt_email", ""},
                                                             {"txtAge", "40 yrs"}};
    for (const auto& [label, text] : card)
        EXPECT_EQ(ws.value(QStringLiteral("frmPatientInfo.") + label), text) << label;
    ws.click("frmPatientInfo.cmdREpairs");
    EXPECT_EQ(ws.rows("frmPatientInfo.grdData"),
              QStringList({"bDate\tBalanceDate\tbillNo\tpNo\tFullname\tBalance",
                           "14/03/2026\t14/03/2026\t001OFL0000001\tP/0001\tADEYEMI BOLA\t2,000.00",
                           "01/02/2026\t01/02/2026\tB2\tP/0001\tADEYEMI BOLA\t-.50"}));
    EXPECT_EQ(ws.value("frmPatientInfo.lblDisplay"), "Balance to be paid by ADEYEMI BOLA");
    ws.click("frmPatientInfo.cmdTyres");
    EXPECT_EQ(ws.value("frmPatientInfo.grdData"), "2 rows");
    EXPECT_EQ(ws.value("frmPatientInfo.lblDisplay"), "Frequency of Hospital Visits by ADEYEMI BOLA");

    ws.pick("frmPatientInfo.TreeView1", "O'NEILL ADA [P/0002]");
    EXPECT_EQ(ws.value("frmPatientInfo.txtAge"), "--");
    EXPECT_EQ(ws.value("frmPatientInfo.txt_pCatID"), "**");
    EXPECT_EQ(ws.value("frmPatientInfo.txt_oldpno"), "") << "of the patient before";
}

TEST_P(LookupTest, PatListDisplaysAPrivateBillWithABalance) {
    ws.open("frmPatList");
    QStringList listed = ws.items("frmPatList.cboVehNo");
    listed.sort();
    EXPECT_EQ(listed, QStringList({"ADEYEMI BOLA @ 0001  [001OFL0000001]", "ADEYEMI BOLA @ 0001  [B2]"}));
    ws.click("frmPatList.OKButton");
    EXPECT_BOXES(ui, {"Please select a row "});
    ws.pick("frmPatList.cboVehNo", "[001OFL0000001]");
    EXPECT_EQ(ws.items("frmPatList.cboBill").size(), 2);
    ws.pick("frmPatList.cboBill", "0001 @ 01/02/2026  [B2]");
    ws.program.session.sWorkPno = "of another screen";
    ws.click("frmPatList.OKButton");
    EXPECT_EQ(ws.program.session.sWorkPno, "B2");
    ASSERT_EQ(ui.reports.size(), 1);
    EXPECT_EQ(ui.reports.first().title, "Private Bill B2");
    EXPECT_EQ(ui.reports.first().rows, 1);
}

} // namespace
} // namespace orvane
