#include "support/Check.h"

#include "data/rows/ActionParts.h"
#include "play/QuietUi.h"
#include "session/Main.h"
#include "support/Rows.h"
#include "support/TestHome.h"

#include <QFile>
#include <span>

using namespace orvane;

namespace {

struct Rows {
    const char* into;
    std::initializer_list<const char*> rows;
};

/// A patient with a visit, a bill of two lines, and a receipt over two ways, all in order; and what the program's own
/// actions leave and no check may mind.
const Rows soundRows[] = {
    {"hPatients (PNo,psurname,DebtBF)", {"'1/001','BELLO',-500"}},
    {"hRecords (consultID,PNo,recDate,BillDate)",
     {"'001OFL0000001','1/001','2026-03-01','2026-03-01'", "'001OFL0000003','1/001','2026-03-01',null"}},
    {"hRecordsPublic (consultID)", {"'001/26/000009'"}},
    // Of a deleted visit; of a visit whose first line covered three by its name, the others were renamed, one of them
    // as an item only; a carried debt corrected, and a credit on a visit deleted later.
    {"BillAccum (consultID,PNo,drgName,SubTotal,isRct)",
     {"'001OFL0000001','1/001','A',1000,0", "'001OFL0000001','1/001','B',500,0",
      "'001OFL0000099','1/001','OF A DELETED VISIT',70,0", "'001OFL0000003',null,'C',400,1",
      "'001OFL0000003',null,'E',400,1", "'001OFL0000004',null,'H',70,1", "'001OFL0000003',null,'PREVIOUS DEBT',200,0",
      "'001OFL0000097',null,'PREVIOUS CREDIT',80,0"}},
    {"BillingDetails (SNo,billNo,drgName,SubTotal,isRct)",
     {"1,'001OFL0000001','A',1000,0", "2,'001OFL0000001','B',500,0", "-3,'001OFL0000001','DISCOUNT',0,0",
      "4,'001OFL0000003','F',400,1", "5,'001OFL0000003','C',400,1"}},
    {"BillingDetailsAdjust (billNo,BillItem)", {"'001OFL0000004','G'", "'001OFL0000098','PREVIOUS CREDIT'"}},
    {"Billing (billNo,PNo,Amountbilled,AmountPaid,billType)",
     {"'001OFL0000001','1/001',1500,1000,null", "'001OFL0000002','1/001',900,0,'CASH'"}},
    // A paper receipt whose number comes twice, both reversed; visits that took receipts before they had a bill, of
    // which a reversal comes to whole kobo.
    {"Payments (ReceiptNo,billNo,PNo,AmountPaid,Remarks)",
     {"'7','001OFL0000001','1/001',1000,null", "'SN12','001OFL0000002','1/001',450,null",
      "'SN12','001OFL0000002','1/001',450,null", "'11','001OFL0000002',null,-450,'REVERSAL for RctNo: SN12'",
      "'12','001OFL0000002',null,-450,'REVERSAL for RctNo: SN12'", "'13','001/26/000009',null,60,null",
      "'8','001OFL0000003',null,300.005,null", "'9','001OFL0000003',null,-300.01,'REVERSAL for RctNo: 8'"}},
    {"PaymentTypes (ReceiptNo,PayType,AmountPaid)", {"'7','CASH',400", "'7','POS',600"}},
    {"PaymentDetails (ReceiptNo,billNo,snoID,BillItem,AmountPaid)",
     {"'7','001OFL0000001',null,'A',1000", "'8','001OFL0000003',4,'C',300.005", "'13','001OFL0000004',9,'G',60"}},
    {"Tranxaction (PNo,billNo,Amount,RunningTotal)",
     {"'1/001','001OFL0000001',-1000,-1000", "'1/001','001OFL0000001',-500,-1500",
      "'1/001','001OFL0000001',1000,-500"}},
    {"hDebtReview (billNo,PNo,Debt)",
     {"'001OFL0000003','1/001',-200", "'001OFL0000098','1/001',50", "'001OFL0000097','1/001',-80",
      "'001OFL0000097','1/001',80"}},
    // A client's invoice of two runs, after one that is older; a bill that was taken back.
    {"hRetainership (retainID,retainCode,retainName,Debt)", {"'0102','0102','MILLS',950", "'0103','0103','SALT',0"}},
    {"hRecords (consultID,PNo,recDate,BillDate,coyName,clientCat)",
     {"'001OFL0000011','1/001','2026-03-01','2026-03-01','0102','MTHLY'",
      "'001OFL0000012','1/001','2026-02-01','2026-02-01','0102','MTHLY'"}},
    {"BillAccum (consultID,PNo,drgName,SubTotal)",
     {"'001OFL0000011','1/001','A',900", "'001OFL0000012','1/001','B',50"}},
    {"BillingDetails (SNo,billNo,drgName,SubTotal,billTo)",
     {"9,'001OFL0000011','A',900,'0102'", "10,'001OFL0000012','B',50,'0102'"}},
    {"Billing (billNo,PNo,Amountbilled,isProcess,InvNo)",
     {"'001OFL0000011','1/001',900,1,'0102/2026/03'", "'001OFL0000012','1/001',50,1,'0102/2026/02'",
      "'001OFL0000013','1/001',0,0,'0'"}},
    {"BillsForClients (BatchNo,CoyCode,invNo,AmountInvoiced,isOLD)",
     {"'2026/02','0102','0102/2026/02',50,1", "'2026/03','0102','0102/2026/03',900,0"}},
    {"hDebtors (billNo,clientNo,invNo,Amount)",
     {"'0102','0102','0102/2026/02',50", "'0102','0102','0102/2026/03',500", "'0102','0102','0102/2026/03',400"}},
    {"hApprvCode (consultID,ApprvCode)", {"'001OFL0000003','OFH/1'", "'001OFL0000099','OFH/2'"}},
    // A voucher paid in part, which closes it, and one that waits.
    {"hExpenseApprvFinal (vouchNo,Amount,AmountPaid,isPaid)", {"'V1',100,90.5,1", "'V2',70,0,0"}},
    {"hExpensePay (vouchNo,Amount)", {"'V1',90.5"}},
    {"hExpensePayDetails (vouchNo,Amount)", {"'V1',50.25", "'V1',40.25"}},
};

/// Lays rows and does to them what the statements say.
void lay(Program& program, std::span<const Rows> laid, const QStringList& statements = {}, bool ofAccounting = false) {
    ASSERT_TRUE(prepareServer(program));
    Connection billing = program.openBilling();
    for (const Rows& rows : laid)
        addRows(billing, rows.into, rows.rows);
    noteOpening(billing);
    for (const QString& statement : statements)
        (ofAccounting ? program.openAccounting() : program.openBilling()).run(statement);
}

struct Plant {
    const char* check;
    QStringList statements;
    bool ofAccounting = false;
    QStringList accounting = {}; ///< beside those of billing
};

const Plant plants[] = {
    {"visit number",
     {"drop index uxRecordsConsultID",
      "insert into hRecords (consultID,PNo,recDate) values ('001OFL0000001','1/001','2026-03-02')"}},
    {"outlet visit number",
     {"drop index uxRecordsPublicConsultID", "insert into hRecordsPublic (consultID) values ('001/26/000001')",
      "insert into hRecordsPublic (consultID) values ('001/26/000001')"}},
    {"bill number",
     {"drop index uxBillingBillNo",
      "insert into Billing (billNo,Amountbilled,AmountPaid) values ('001OFL0000001',1500,1000)"}},
    {"receipt number",
     {"drop index uxPaymentsReceiptNoBelowSN",
      "insert into Payments (ReceiptNo,billNo,AmountPaid) values ('7','001OFL0000001',0)"}},
    {"item billed twice",
     {"drop index uxDetailsSNo", "insert into BillingDetails (SNo,billNo,SubTotal) values (2,'001OFL0000001',500)"}},
    {"running account", {"update Tranxaction set RunningTotal=-1500.01 where Amount=-500"}},
    {"patient's balance", {"update hPatients set DebtBF=-499.99"}},
    {"account without patient",
     {"insert into Tranxaction (PNo,billNo,Amount,RunningTotal) values ('9/001','001OFL0000001',5,5)"}},
    {"outlet's debt", {"insert into Billing (billNo,billType,Amountbilled) values ('001/26/000009','CASH',0.01)"}},
    {"outlet item without visit", {"insert into BillAccum (consultID,drgName) values ('001/26/000010','PCV')"}},
    {"amount billed", {"update Billing set Amountbilled=1499.99 where billNo='001OFL0000001'"}},
    {"amount paid", {"update Billing set AmountPaid=2000 where billNo='001OFL0000001'"}},
    {"ways of payment", {"update PaymentTypes set AmountPaid=600.01 where PayType='POS'"}},
    {"receipt's items", {"update PaymentDetails set AmountPaid=999 where ReceiptNo='7'"}},
    {"way of payment without receipt", {"insert into PaymentTypes (ReceiptNo,AmountPaid) values ('88',10)"}},
    {"receipt's item without receipt", {"insert into PaymentDetails (ReceiptNo,AmountPaid) values ('88',10)"}},
    {"receipt without bill", {"insert into Payments (ReceiptNo,billNo,AmountPaid) values ('88','001OFL0000077',10)"}},
    {"reversal without receipt", {"update Payments set Remarks='REVERSAL for RctNo: 88' where ReceiptNo='9'"}},
    {"reversal without receipt", {"update Payments set Remarks='REVERSAL for RctNo: 7' where ReceiptNo='9'"}},
    {"reversal's amount", {"update Payments set AmountPaid=-300.02 where ReceiptNo='9'"}},
    {"reversal's amount", {"update Payments set AmountPaid=300.005 where ReceiptNo='9'"}},
    {"receipt reversed again",
     {"insert into Payments (ReceiptNo,billNo,AmountPaid,Remarks) values ('14','001OFL0000003',-300.01,'REVERSAL for "
      "RctNo: 8')"}},
    {"receipt reversed again",
     {"insert into Payments (ReceiptNo,billNo,AmountPaid,Remarks) values ('14','001OFL0000002',-450,'REVERSAL for "
      "RctNo: SN12')"}},
    {"bill line without item", {"delete from BillAccum where SNo=2"}},
    {"saved visit without bill", {"delete from Billing where billNo='001OFL0000001'"}},
    {"covered item without payment", {"update BillAccum set isRct=1 where drgName='B'"}},
    {"covered item without payment", {"delete from PaymentDetails where BillItem='G'"}},
    {"covered line without payment", {"update BillingDetails set isRct=1 where drgName='B'"}},
    {"correction without patient", {"update hDebtReview set PNo='9/001' where Debt=50"}},
    {"correction without bill", {"update hDebtReview set billNo='001OFL0000077' where Debt=50"}},
    {"correction's sign", {"update hDebtReview set Debt=200 where Debt=-200"}},
    {"amount paid on a voucher", {"update hExpenseApprvFinal set AmountPaid=90.01 where vouchNo='V1'"}},
    {"items of a voucher's payment", {"update hExpensePayDetails set Amount=40.24 where vouchNo='V1'"}},
    {"payment without voucher", {"update hExpenseApprvFinal set isPaid=0 where vouchNo='V1'"}},
    {"paid voucher without payment", {"update hExpenseApprvFinal set isPaid=1 where vouchNo='V2'"}},
    {"approval code without visit", {"update hApprvCode set consultID='001OFL0000077' where ApprvCode='OFH/1'"}},
    {"amount that is not stated", {"update BillAccum set SubTotal=null where SNo=1"}},
    {"amount that is no number", {"update BillAccum set Price=1e308*10 where SNo=1"}},
    {"repeated table", {"insert into AccountMonth (Period) values ('202603')"}, true},
    {"repeated table", {"insert into ChartOfAccounts (AccountNo,AccountName) values ('1210010','CASH')"}, true},
    {"part of a kobo",
     {"update hPatients set DebtBF=-500.0049", "update Tranxaction set RunningTotal=-500.0049 where SNo=3"}},
    {"paper receipt on a bill that has lines",
     {"update Billing set Amountbilled=1950,billType='CASH' where billNo='001OFL0000001'"}},
    {"line below nothing", {"update BillingDetails set SubTotal=-5 where billNo='001OFL0000001'"}},
    {"discount above its bill",
     {"insert into billDiscounts (billNo,Amount,Remarks) values ('001OFL0000001',5000000,'GOODWILL')"}},
    {"day out of bounds", {"update hRecords set recDate='1989-12-31' where consultID='001OFL0000001'"}},
    {"account beside bills", {"delete from BillingDetails where billNo='001OFL0000001'"}},
    {"invoice", {"update BillsForClients set AmountInvoiced=899.99 where isOLD=0"}},
    {"invoice above its bills", {"delete from BillingDetails where SNo=9"}},
    {"processed bill without lines", {"delete from BillingDetails where SNo=9"}},
    {"invoice given twice",
     {"insert into BillsForClients (BatchNo,CoyCode,invNo,isOLD) values ('2026/03','0102','0102/2026/03',1)"}},
    {"invoice without bills", {"update Billing set InvNo='0',isProcess=0 where billNo='001OFL0000011'"}},
    {"processed bill without invoice", {"delete from BillsForClients where isOLD=0"}},
    {"invoice number on an open bill", {"update Billing set isProcess=0 where billNo='001OFL0000011'"}},
    {"bill on another client's invoice", {"update hRecords set coyName='0103' where consultID='001OFL0000011'"}},
    {"newest invoice", {"update BillsForClients set isOLD=0"}},
    {"client's debt", {"update hRetainership set Debt=949.99 where retainCode='0102'"}},
    {"invoice's debts", {"update hDebtors set Amount=399.99 where Amount=400"}},
    {"bill in a past batch",
     {"update hRecords set BillDate='2026-01-01',coyName='0102',clientCat='MTHLY' where consultID='001OFL0000001'"}},
    {"debt without invoice", {"update hDebtors set invNo='0102/2026/04' where Amount=50"}},
    {"item of another bill", {"update BillAccum set consultID='001OFL0000011' where SNo=10"}},
    {"split bill without its visit",
     {"insert into hRecords (consultID,PNo,recDate,AttndStatus) values "
      "('001OFL9999999B','1/001','2026-03-01','SPLIT')"}},
    {"ledger transaction",
     {"insert into Tranxaction (TranID,AccountNo,Amount) values ('T1','1210010',100)",
      "insert into Tranxaction (TranID,AccountNo,Amount) values ('T1','4110010',-99.5)"},
     true},
    {"ledger entry without its source",
     {"insert into Tranxaction (TranID,AccountNo,Amount) values ('T1','1',0)"},
     true},
    {"posting without its entry",
     {"insert into TranFromAppsTrail (TranID,TranNoApp,Remarks) values ('T1','V1','EXPENSE')"},
     true},
    {"source posted twice",
     {"insert into TranFromAppsTrail (TranID,TranNoApp,Remarks) values ('T1','V1','EXPENSE'), ('T2','V1','EXPENSE')"},
     true},
    {"leg of another period",
     {"insert into AccountMonth (Period) values ('2026/03')",
      "insert into TranxactionTemp (TranID,AccountNo,Amount,Period) values ('T1','1',0,'2026/03')"},
     true},
    {"gap between periods",
     {"insert into AccountMonthOpen (Period,PeriodVal,PrdClose) values ('2025/11',202511,'2025-11-30'), "
      "('2026/01',202601,'2026-01-31')"},
     true},
    {"period closed out of turn",
     {"insert into AccountMonthOpen (Period,PeriodVal,PrdClose,isClose) values ('2025/12',202512,'2025-12-31',0), "
      "('2026/01',202601,'2026-01-31',1)"},
     true},
    {"account unknown to the chart", {"insert into Tranxaction (TranID,AccountNo,Amount) values ('T1','1',5)"}, true},
    {"posted receipts", {"update PaymentTypes set isPost=1,ReceiptDate='2026-03-01' where PayType='POS'"}},
    {"posted receipts by way or revenue type",
     {"insert into PaymentTypes (ReceiptDate,ReceiptNo,PayType,AmountPaid,isPost) values "
      "('2026-03-01','70','CASH',5,1), ('2026-03-01','71','POS',-5,1)"}},
    {"posted invoice",
     {"update BillsForClients set isPost=1,AmountBilled=AmountInvoiced"},
     false,
     {"insert into TranFromAppsTrail (TranID,TranNoApp,Remarks) select 'T1','0102/2026/03','RECEIVABLE'"}},
    {"invoice flagged without its entry", {"update BillsForClients set isPost=1"}},
    {"invoice's entry without its flag",
     {"insert into TranFromAppsTrail (TranID,TranNoApp,Remarks) values ('T1','0102/2026/03','RECEIVABLE')"},
     true},
    {"voucher flagged without its entry", {"update hExpensePayDetails set isPost=1"}},
    {"voucher's entry without its flag",
     {"insert into TranFromAppsTrail (TranID,TranNoApp,Remarks) values ('T1','V1','EXPENSE')"},
     true},
    {"posted voucher",
     {"update hExpensePayDetails set isPost=1"},
     false,
     {"insert into TranFromAppsTrail (TranID,TranNoApp,Remarks) values ('T1','V1','EXPENSE')"}},
    {"supplier's entry flagged and not posted",
     {"insert into StockEntryAcct (InvoiceNo,EntryDate,InvoiceDate,Amount,isPost) values "
      "('I1','2026-03-01','2026-03-01',5,1)"}},
    {"supplier's entry posted and not flagged",
     {"insert into StockEntryAcct (InvoiceNo,EntryDate,InvoiceDate,Amount,TranID) values "
      "('I1','2026-03-01','2026-02-28',0,'T1')"}},
    {"supplier's entry of another ledger",
     {"insert into StockEntryAcct (InvoiceNo,Amount,TranID) values ('I1',5,'T1')"}},
    {"posted supplier's entries",
     {"insert into Tranxaction (TranID,AccountNo,Amount) values ('T1','1',5)",
      "insert into TranFromAppsTrail (TranID,TranNoApp,Remarks) values ('T1','I1','PAYABLE')"},
     true},
    {"stock entry without item", {"insert into StockEntryRetail (ItemID,Qty) values ('GONE',5)"}},
    {"quantity of a stock entry",
     {"insert into StockItemsRetail (ItemID) values ('A')",
      "insert into StockEntryRetail (ItemID,Qty) values ('A',-1)"}},
    {"injection in part",
     {"insert into hInjAndDressing (consultID,injname) values ('001OFL0000001','A')",
      "insert into hMedChartMonitor (consultID,drgName) values ('001OFL0000001','A')"}},
    {"stock below nothing", {"insert into StockItemsRetail (ItemID,UnitsInStock) values ('A',-1)"}},
    {"receipt beside its saves", {"update Payments set AmountPaid=AmountPaid+1 where ReceiptNo='7'"}},
    {"bill beside its saves", {"insert into Billing (billNo) values ('001OFL0000050')"}},
    {"bill's lines beside its saves", {"delete from BillingDetails where SNo=4"}},
    {"discount beside its saves", {"insert into billDiscounts (billNo,Amount) values ('001OFL0000001',10)"}},
    {"money without its save", {"delete from SavedActions"}},
    {"save without its trail", {"insert into SavedActions (token,trailRows) values ('T1',1)"}},
    {"posting without its save",
     {"insert into SavedParts (token,kind,document,counted,amount) values ('T1','POSTING','8',1,0)"},
     false,
     {"insert into TranFromAppsTrail (TranID,TranNoApp,Remarks) values ('8','I8','RECEIPT')",
      "insert into TranFromAppsTrail (TranID,TranNoApp,Remarks) values ('9','I9','RECEIPT')"}},
    {"posting left over", {"insert into PostingNotes (gTranID,kind) values ('T1','RECEIPT')"}},
};

class CheckTest : public ::testing::TestWithParam<Engine> {
protected:
    TestHome home{GetParam()};
    QuietUi ui;
    Program program{home.folder(), ui};
};

TEST_P(CheckTest, passesASoundHospital) {
    lay(program, soundRows);
    EXPECT_EQ(checkDatabases(program).findings, QStringList());
}

TEST_P(CheckTest, everyCheckFindsItsFault) {
    QStringList planted;
    for (const Plant& plant : plants) {
        SCOPED_TRACE(plant.check);
        planted.append(plant.check);
        if (GetParam() == Engine::Postgresql && planted.last() == "amount that is no number")
            continue; // that engine refuses the sum that would make one
        TestHome fresh(GetParam());
        Program sick(fresh.folder(), ui);
        lay(sick, soundRows, plant.statements, plant.ofAccounting);
        for (const QString& statement : plant.accounting)
            sick.openAccounting().run(statement);
        const CheckReport report = checkDatabases(sick);
        const QStringList findings = report.findings + report.notices;
        EXPECT_FALSE(findings.filter(QString(plant.check) + ": ").isEmpty())
            << "found instead: " << findings.join(" / ").toStdString();
    }
    QStringList all = checkNames();
    all.sort();
    planted.removeDuplicates();
    planted.sort();
    EXPECT_EQ(planted, all) << "a check without a planted fault, or the other way round";
}

/// What the program's own actions leave between a private patient's account and his bills is told with its cause, and
/// is no finding.
TEST_P(CheckTest, aNoticeTellsWhyAnAccountDiffersFromItsBills) {
    const Rows agreeing[] = {
        {"hPatients (PNo,psurname,clientcatID,DebtBF)", {"'2/001','OJO','PRIVATE',-1500"}},
        {"hRecords (consultID,PNo,recDate,clientCat)", {"'B1','2/001','2026-03-01','PRIVATE'"}},
        {"BillAccum (consultID,PNo,drgName,SubTotal)", {"'B1','2/001','A',1000", "'B1','2/001','B',800"}},
        {"BillingDetails (SNo,billNo,drgName,SubTotal,billTo)",
         {"1,'B1','A',1000,'0001'", "2,'B1','B',800,'0001'", "-9,'B1','PREVIOUS DEBT',70,'0001'"}},
        {"Billing (billNo,PNo,Amountbilled,AmountPaid)", {"'B1','2/001',1870,300"}},
        {"Payments (ReceiptNo,billNo,PNo,AmountPaid)", {"'21','B1','2/001',300"}},
        {"Tranxaction (PNo,billNo,Amount,RunningTotal)",
         {"'2/001','B1',-1000,-1000", "'2/001','B1',-800,-1800", "'2/001','B1',300,-1500"}}};
    const struct {
        QStringList statements;
        QString told; ///< empty: nothing
    } cases[] = {
        {{}, ""},
        {{"update BillingDetails set billTo='0007',Charged=0 where drgName='B'",
          "insert into Tranxaction (PNo,billNo,Amount,RunningTotal) values ('2/001','B1',800,-700)",
          "update hPatients set DebtBF=-700 where PNo='2/001'"},
         ""},
        {{"insert into BillingDetails (SNo,billNo,drgName,SubTotal) values (-10,'B1','DISCOUNT',-100)",
          "update Billing set Amountbilled=1770 where billNo='B1'"},
         "stands at -1500.00 for bills that say -1400.00, -100.00 apart from the bill B1 on; likely cause: a discount"},
        {{"insert into Payments (ReceiptNo,billNo,PNo,AmountPaid) values ('SN4','B1','2/001',50)",
          "update Billing set AmountPaid=350 where billNo='B1'"},
         "likely cause: a paper receipt on a bill that has lines"},
        {{"update BillingDetails set billTo='0007'", "update hRecords set clientCat='HMO'"},
         "likely cause: a move to another client"},
    };
    for (const auto& test : cases) {
        SCOPED_TRACE(test.statements.join(" / ").toStdString());
        const TestHome fresh(GetParam());
        Program owed(fresh.folder(), ui);
        lay(owed, agreeing, test.statements);
        const CheckReport report = checkDatabases(owed);
        EXPECT_EQ(report.findings.filter("account"), QStringList());
        const QString notices = report.notices.join('\n');
        EXPECT_TRUE(test.told.isEmpty() ? notices.isEmpty() : notices.contains(test.told)) << notices.toStdString();
    }
}

// A disk that lost the end of an index page.
TEST(CheckOfFiles, tellsOfADamagedFile) {
    constexpr qint64 pageSize = 4096;
    const TestHome home;
    QuietUi ui;
    qint64 page = 0;
    {
        Program writer(home.folder(), ui);
        lay(writer, soundRows);
        Connection billing = writer.openBilling();
        page =
            billing.run("select rootpage from sqlite_master where name like 'ixPatientsSurname%'").integer("rootpage");
        billing.run("pragma wal_checkpoint(truncate)");
    }
    QFile file(home.folder() + "/data/Dunmarch.db");
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.seek(page * pageSize - 20));
    file.write(QByteArray(20, '\x55'));
    file.close();

    Program program(home.folder(), ui);
    ASSERT_TRUE(prepareServer(program));
    const QStringList findings = checkDatabases(program).findings;
    EXPECT_FALSE(findings.filter("integrity of the billing database: ").isEmpty())
        << findings.join(" / ").toStdString();
}

ORVANE_ON_EACH_ENGINE(CheckTest);

} // namespace
