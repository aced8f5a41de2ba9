#include "support/ScreenTest.h"

namespace orvane {
namespace {

class Verify : public ScreenTest {
protected:
    Verify() : ScreenTest("frmBillingVerify") {}
};

ORVANE_ON_EACH_ENGINE(Verify);

const char* const processed = "This Bill is already processed! to Modify, unProcess the Batch";

TEST_P(Verify, ListsAndPicksVisits) {
    layVisit();
    layVisit({.pno = "P/0002", .surname = "OKAFOR", .firstname = "CHI [NE] #1", .client = "0201"},
             {.consultID = "001OFL0000002", .pno = "P/0002", .category = "HMO", .client = "0201"});
    Connection connection = ws.billing();
    makeVisit(connection, {.consultID = "001OFL0000003", .date = QDate(2026, 2, 1)});
    ws.run("update hRecords set BillDate='2026-03-14' where consultID='001OFL0000002'");
    ws.run("insert into hAdmission (consultID, PNo, admdate) values ('001OFL0000003','P/0001','2026-02-01')");
    const QString first = "ADEYEMI BOLA @14/03/2026 CONSULTATION - PRIVATE PATIENTS [P/0001]#001OFL0000001";
    const QString second = "OKAFOR CHI [NE] #1 @14/03/2026 CONSULTATION - CLEARWATER HMO [P/0002]#001OFL0000002";
    open();
    click("cmdList");
    EXPECT_EQ(items("cboVehNo"), QStringList({"", first}));
    set("chkAll", "yes");
    click("cmdList");
    EXPECT_EQ(items("cboVehNo"), QStringList({"", first, second}));
    set("cboHMO", "CLEARWATER HMO[0201]");
    click("cmdAdd");
    EXPECT_EQ(items("cboVehNo"), QStringList({"", second}));
    pick("cboVehNo", 1);
    EXPECT_EQ(value("lblBill") + ws.program.session.sBillPno + ws.program.session.sBillPatLabel,
              "001OFL0000002P/0002OKAFOR CHI [NE] #1");
    click("cmdAdm");
    EXPECT_EQ(items("cboVehNo").size(), 2);
    set("txtSearch", "NOBODY");
    click("cmdOK");
    EXPECT_EQ(shown("cboVehNo lblBill"), "|");
    EXPECT_BOXES(ui, {});
}

TEST_P(Verify, LoadShowsTheBill) {
    layVisit({.category = "HMO", .client = "0201"}, {.category = "HMO", .client = "0201"});
    Connection connection = ws.billing();
    makeVisit(connection, {.consultID = "001OFL0000000", .date = QDate(2026, 2, 2), .client = "0201"});
    makeConsultation(connection, {.diagnosis = "MALARIA\r\nANAEMIA"});
    makeConsultation(connection, {.diagnosis = "TYPHOID"});
    ws.run("insert into hApprvCode (consultID, ApprvCode) values ('001OFL0000001','CH/88')");
    layItem({.name = "PARACETAMOL 500MG", .client = "0201", .price = 40, .qty = 10, .capitated = "YES"});
    layItem({.name = "MALARIA PARASITE", .client = "0201", .price = 1200, .capitated = "NO"});
    ws.run("update BillAccum set attendedto=1 where drgName='MALARIA PARASITE'");
    ws.run("insert into Payments (ReceiptNo, billNo, AmountPaid) values ('9','001OFL0000001',200)");
    load();
    EXPECT_EQ(shown("lblCoy lblDate lblDisplay lblDate2 lblDateLast txtDiag txtApprv dtDate"),
              "CLEARWATER HMO|HMO|NO|14/03/2026|02/02/2026|MALARIA;ANAEMIA;TYPHOID|CH/88|2026-03-14");
    EXPECT_EQ(shown("lblGen lblBilled lblPaid lblDep lblSub lblTotal lblCurr lblAmtDue txtEmp txtDuty lblScreen"),
              "1,600.00|1,200.00|200.00|200.00|1,200.00|1,200.00|1,200.00|1,000.00|1,000.00|ONE THOUSAND NAIRA|"
              "Collated Bill for ADEYEMI BOLA\n=N=1,000.00");
    EXPECT_EQ(ws.control<Grid>("frmBillingVerify.grdData").rowCount(), 2);
    EXPECT_EQ(ws.scalar("select AmountBIlledInWord from Billing"), "ONE THOUSAND, TWO HUNDRED NAIRA");
    EXPECT_EQ(told("cmdUnBilled"), "PARACETAMOL 500MG");

    // Fee for service: every item counts and is billed.
    ws.run("update hRecords set referal='YES'");
    click("cmdRefresh");
    EXPECT_EQ(shown("lblSub lblAmtDue"), "1,600.00|1,400.00");
    EXPECT_EQ(told("cmdUnBilled"), "All Items Billed");
}

TEST_P(Verify, LoadStopsWithoutVisitOrClient) {
    layVisit();
    layItem();
    open();
    EXPECT_EQ(value("dtRctDate"), "");
    click("cmdList");
    pick("cboVehNo", 1);
    EXPECT_NE(value("lblAmtDue"), "");
    click("cmdList");
    ws.run("update hRecords set coyName='GONE'");
    pick("cboVehNo", 1);
    EXPECT_BOXES(ui, {"BillTo Value Cannot be Empty!!! Check your Client Information"});
    EXPECT_EQ(shown("lblBill lblCoy lblAmtDue lblScreen"), "|||Collate / Verify Bill") << "no other visit's amount";
    EXPECT_EQ(told("OKButton"), "Please Re-Select Patient Name! Bill No (StrCon needed");
    ws.run("delete from hRecords");
    pick("cboVehNo", 1);
    EXPECT_BOXES(ui, {"Patient does not Exist"});
    EXPECT_EQ(value("lblScreen"), "Process Bill");
    EXPECT_EQ(lines(), "PARACETAMOL 500MG|50") << "of the first load";

    // One that was read in half cannot be saved.
    layVisit({.pno = "P/0002"}, {.consultID = "001OFL0000002", .pno = "P/0002"});
    breakAt("hApprvCode");
    load("001OFL0000002");
    mend();
    click("OKButton");
    EXPECT_BOXES(ui, {"disk full", "Please Re-Select Patient Name! Bill No (StrCon needed"});
}

TEST_P(Verify, AdmissionSetsTheDates) {
    layVisit();
    ws.run("insert into hAdmission (consultID, PNo, admdate) values ('001OFL0000001','P/0001','2026-03-10')");
    load();
    EXPECT_BOXES(ui, {"This Patient is on Admission!!! Discharge Patient before Collating Bill"});
    EXPECT_EQ(value("dtAdmit") + state("dtAdmit") + state("dtDisch"),
              "2026-03-10visible enabled lockedvisible enabled");
    ws.run("update hAdmission set DischDate='2026-03-13'");
    EXPECT_EQ(told("cmdRefresh"), "This Patient has been Discharged!!! Please Collate Bill");
    EXPECT_EQ(value("dtDisch"), "2026-03-13");
    save();
    EXPECT_BOXES(ui, {"Record Succesfully saved"});
    EXPECT_EQ(rows("select exitDate, BillDate from hRecords"), "2026-03-13|2026-03-13");
    EXPECT_EQ(rows("select admdate, DischDate from Billing"), "2026-03-10|2026-03-13");
    ws.run("delete from hAdmission");
    click("cmdRefresh");
    EXPECT_EQ(value("dtDisch"), "2026-03-13") << "the bill keeps the dates";
}

/// Each refusal of the save, in the order of its checks: every step makes the next check fail.
TEST_P(Verify, SaveRefusalsInOrder) {
    layVisit();
    layItem({.price = 5000});
    open();
    click("OKButton");
    set("chkRct", "yes");
    EXPECT_BOXES(ui, {"Bill No field cannot be empty", "Specify Name of Patient"});
    EXPECT_EQ(value("chkRct"), "no");
    load();
    ws.program.session.gConsultID = "001OFL0000009";
    EXPECT_EQ(told("OKButton"), "Please Re-Select Patient Name! Bill No (StrCon needed");
    ws.program.session.gConsultID = billNo;
    expectChecks({{"dtAdmit", "2026-03-12",
                   "Please Specify Discharge date of Patient OR tick Deposit Checkbox to enter Deposits", "dtDisch"},
                  {"dtAdmit", ""},
                  {"dtDisch", "2026-03-13", "Discharge date of Patient Requires Admission Date"},
                  {"chkRct", "yes", "Please enter Amount Paid", "txtHt"},
                  {"txtHt", "0"},
                  {"dtRctDate", "", "Please enter Receipt Date", "dtRctDate"},
                  {"dtRctDate", "2026-03-14", "Please enter Payment Purpose", "cboPayFor"},
                  {"cboPayFor", "DRUGS", "Please enter Payment type", "cboPay"},
                  {"txtAmt(2)", "700", "Please enter Cheque No", "txtCheque"},
                  {"txtCheque", "CH1"},
                  {"txtHt", "-700", "Please enter Amount Paid", "txtHt"},
                  {"txtHt", "7 00x", "Please enter Amount Paid", "txtHt"}});
    EXPECT_EQ(value("SSTab1") + value("dtDisch"), "1");
    ws.run("insert into Payments (ReceiptNo, billNo, AmountPaid) values ('7','001OFL0000001',5000)");
    click("cmdRefresh");
    expectChecks({{"txtHt", "700", "Please tick Deposit CheckBox to Specify Deposit", "chkDep"},
                  {"chkDep", "yes", "Specify Bank Name for CHEQUE", "cboBank(2)"},
                  {"txtAmt(2)", ""},
                  {"txtAmt(0)", "700"},
                  {"txtProf", "10"},
                  {"dtDate", ""}});
    EXPECT_EQ(value("cboPayFor"), "DEPOSIT");
    click("OKButton");
    EXPECT_EQ(ui.takeBoxesWithTitles(),
              (QList<TestUi::Box>{{"Confirm Prof Fee Entry", "Prof Fee"}, {"Specify Bill Date", ""}}));
    set("dtDate", "2026-03-14");
    set("txtProf", "");
    ui.answer(false);
    click("OKButton");
    EXPECT_QUESTIONS(ui, {"Are you sure to save?"});
}

TEST_P(Verify, SaveWithoutReceiptFreezesTheVisit) {
    layVisit({.category = "HMO", .client = "0201"}, {.category = "HMO", .client = "0201"});
    layItem({.name = "CAPITATED", .client = "0201", .price = 40, .capitated = "YES"});
    layItem({.name = "CHARGED", .client = "0201", .price = 1200.75, .capitated = "NO"});
    load();
    EXPECT_EQ(value("lblBilled"), "0.00") << "what is charged waits for the save";
    set("txtDiag", "  d'orbigny syndrome ");
    set("txtApprv", "CH/88");
    save();
    EXPECT_BOXES(ui, {"Record Succesfully saved"});
    EXPECT_EQ(lines(), "CHARGED|1200.75");
    EXPECT_EQ(rows("select bdate, billNo, PNo, clientID, Amountbilled, AmountBIlledInWord, billingMonth, "
                   "billingYear, isProcess from Billing"),
              "2026-03-14|001OFL0000001|P/0001|0201|1200.75|ONE THOUSAND, TWO HUNDRED NAIRA AND SEVENTY FIVE KOBO ONLY|"
              "March|2026|0");
    EXPECT_EQ(rows("select diagnosis, exitDate, BillDate from hRecords"), "D'ORBIGNY SYNDROME|2026-03-14|2026-03-14");
    EXPECT_EQ(rows("select ApprvCode, billType, PNo from hApprvCode"), "CH/88|CLAIMS|P/0001");
    EXPECT_EQ(ws.tableCount("Payments") + ws.tableCount("Tranxaction"), 0);
    EXPECT_EQ(state("OKButton"), "visible disabled");

    // A second save finds nothing new and changes the code.
    click("cmdRefresh");
    set("txtApprv", "CH/99");
    save();
    ui.forgetBoxes();
    EXPECT_EQ(rows("select ApprvCode from hApprvCode"), "CH/99");
    EXPECT_EQ(ws.scalar("select Amountbilled from Billing"), "1200.75");
}

TEST_P(Verify, LateVisitGoesToAnOpenMonth) {
    layVisit({.category = "MTHLY", .client = "0102"}, {.category = "MTHLY", .client = "0102"});
    ws.run("update hRetainership set BillEndDate=10 where retainID='0102'");
    layItem({.client = "0102"});
    load();
    save();
    EXPECT_EQ(ws.scalar("select BillDate from hRecords"), "2026-04-01");
    ws.run("insert into BillsForClients (CoyCode, BatchNo) values ('0102','2026/04'), ('0201','2026/09')");
    click("cmdRefresh");
    save();
    EXPECT_EQ(ws.scalar("select BillDate from hRecords"), "2026-05-01");
    ui.forgetBoxes();
}

TEST_P(Verify, ProcessedBillIsRefusedEverywhere) {
    layVisit();
    layItem({.price = 5000});
    load();
    layItem({.name = "LATE"});
    ws.run("update Billing set isProcess=1");
    const struct {
        const char *field, *button, *words;
    } steps[] = {{"", "cmdRefresh", processed},
                 {"", "OKButton", processed},
                 {"", "cmdPrice", "Please Note! This Bill Item is Already Processed!!! Reverse Processing to Adjust"},
                 {"txtProf", "cmdBill", processed},
                 {"txtNHIS", "cmdNHIS", processed},
                 {"", "cmdCap", processed}};
    for (const auto& step : steps) {
        if (*step.field)
            set(step.field, "10");
        click(step.button);
        EXPECT_BOXES(ui, {step.words}) << step.button << ": before any question, and once";
    }
    EXPECT_EQ(lines(), "PARACETAMOL 500MG|5000");
}

/// On SQLite nobody else writes while a transaction is open.
TEST_P(Verify, FeeIsNotTakenForAnItemOfAnotherDepartment) {
    if (GetParam() == Engine::Sqlite)
        GTEST_SKIP() << "one writer at a time";
    layVisit();
    layItem({.name = "DRUG", .price = 1000});
    load();
    SecondHome otherHome(home);
    Workstation laboratory(otherHome.folder());
    ws.program.data().setStatementHook([&](const QString& tsql) {
        if (!tsql.contains("SNo,drgName from billaccum", Qt::CaseInsensitive))
            return;
        mend();
        Connection connection = laboratory.billing();
        makeItem(connection, {.consultID = "001OFL0000009", .pno = "P/0009", .name = "MALARIA PARASITE"});
    });
    set("txtNHIS", "10");
    ui.answer(QString("SCHEME FEE "));
    click("cmdNHIS");
    EXPECT_EQ(rows("select drgName, attendedto from BillAccum where SNo not in (select SNo from BillingDetails)"),
              "MALARIA PARASITE|0");
    click("cmdRefresh");
    EXPECT_EQ(lines(), "DRUG|1000\nSCHEME FEE |100") << "the fee was charged twice";
    EXPECT_EQ(debt(), "-1100");
}

TEST_P(Verify, OtherActions) {
    layVisit();
    open();
    for (const char* button : {"cmdAddBill", "cmdBill", "cmdNHIS", "cmdCap", "cmdPrice", "cmdSplit"})
        click(button);
    EXPECT_BOXES(ui, {"Specify name of Patient", "Specify Patient Name", "Specify Patient Name",
                      "No Patient is selected", "No Patient is selected", "No Patient is selected"});
    load();
    Connection connection = ws.billing();
    for (const char* button : {"cmdPresc", "cmdDispense", "cmdSplit"})
        click(button);
    EXPECT_BOXES(ui, {"No prescription ", "No Treatment Plan ", "this bill cannot be Split! Already a Split  Bill"});
    makeConsultation(connection, {.date = QDate(2026, 3, 14), .diagnosis = "MALARIA", .prescription = "ACT"});
    makeConsultation(connection, {.date = QDate(2026, 3, 1), .diagnosis = "FEVER"});
    EXPECT_EQ(told("cmdLastDiag"), "01/03/2026\nFEVER");
    makeVisit(connection, {.consultID = "OFL000000001", .date = QDate(2026, 1, 5)});
    for (const char* part : {"A", "B", "C"})
        makeVisit(connection, {.consultID = QString("OFL000000001") + part});
    load("OFL000000001");
    EXPECT_EQ(told("cmdSplit"), "No of Bill Splitting Exceeded");
    ws.run("update hRecords set clientCat='HMO'");
    click("cmdRefresh");
    EXPECT_EQ(told("cmdPR"), "Printing of RECEIPT is for PRIVATE Patient only");
}

} // namespace
} // namespace orvane
