#include "support/Check.h"

#include "play/QuietUi.h"
#include "session/Main.h"
#include "support/TestHome.h"

#include <QFile>

using namespace orvane;

namespace {

/// A patient with a visit, a bill of two lines, and a receipt over two ways, all in order.
const QStringList soundRows = {
    "insert into hPatients (PNo,psurname,DebtBF) values ('1/001','BELLO',-500)",
    "insert into hRecords (consultID,PNo,recDate,BillDate) values ('001OFL0000001','1/001','2026-03-01','2026-03-01')",
    "insert into BillAccum (consultID,PNo,drgName,SubTotal) values ('001OFL0000001','1/001','A',1000)",
    "insert into BillAccum (consultID,PNo,drgName,SubTotal) values ('001OFL0000001','1/001','B',500)",
    "insert into BillingDetails (SNo,billNo,drgName,SubTotal) values (1,'001OFL0000001','A',1000)",
    "insert into BillingDetails (SNo,billNo,drgName,SubTotal) values (2,'001OFL0000001','B',500)",
    "insert into Billing (billNo,PNo,Amountbilled,AmountPaid) values ('001OFL0000001','1/001',1500,1000)",
    "insert into Payments (ReceiptNo,billNo,PNo,AmountPaid) values ('7','001OFL0000001','1/001',1000)",
    "insert into PaymentTypes (ReceiptNo,PayType,AmountPaid) values ('7','CASH',400)",
    "insert into PaymentTypes (ReceiptNo,PayType,AmountPaid) values ('7','POS',600)",
    "insert into PaymentDetails (ReceiptNo,billNo,BillItem,AmountPaid) values ('7','001OFL0000001','A',1000)",
    "insert into Tranxaction (PNo,billNo,Amount,RunningTotal) values ('1/001','001OFL0000001',-1000,-1000)",
    "insert into Tranxaction (PNo,billNo,Amount,RunningTotal) values ('1/001','001OFL0000001',-500,-1500)",
    "insert into Tranxaction (PNo,billNo,Amount,RunningTotal) values ('1/001','001OFL0000001',1000,-500)",
    // What the program's own actions leave and no check may mind.
    "insert into BillAccum (consultID,PNo,drgName,SubTotal) values ('001OFL0000099','1/001','OF A DELETED VISIT',70)",
    "insert into BillingDetails (SNo,billNo,drgName,SubTotal) values (-3,'001OFL0000001','DISCOUNT',0)",
    // A paper receipt whose number comes twice, both reversed.
    "insert into Billing (billNo,PNo,Amountbilled,AmountPaid,billType) values ('001OFL0000002','1/001',900,0,'CASH')",
    "insert into Payments (ReceiptNo,billNo,PNo,AmountPaid) values ('SN12','001OFL0000002','1/001',450)",
    "insert into Payments (ReceiptNo,billNo,PNo,AmountPaid) values ('SN12','001OFL0000002','1/001',450)",
    "insert into Payments (ReceiptNo,billNo,AmountPaid,Remarks) values "
    "('11','001OFL0000002',-450,'REVERSAL for RctNo: SN12')",
    "insert into Payments (ReceiptNo,billNo,AmountPaid,Remarks) values "
    "('12','001OFL0000002',-450,'REVERSAL for RctNo: SN12')",
    // Visits that took receipts before they had a bill; a reversal comes to whole kobo.
    "insert into hRecords (consultID,PNo,recDate) values ('001OFL0000003','1/001','2026-03-01')",
    "insert into hRecordsPublic (consultID) values ('001/26/000009')",
    "insert into Payments (ReceiptNo,billNo,AmountPaid) values ('13','001/26/000009',60)",
    "insert into Payments (ReceiptNo,billNo,AmountPaid) values ('8','001OFL0000003',300.005)",
    "insert into PaymentDetails (ReceiptNo,billNo,snoID,BillItem,AmountPaid) values "
    "('8','001OFL0000003',4,'C',300.005)",
    "insert into Payments (ReceiptNo,billNo,AmountPaid,Remarks) values "
    "('9','001OFL0000003',-300.01,'REVERSAL for RctNo: 8')",
    // Three lines were covered by the name of the first; the others were renamed, one of them as an item only.
    "insert into BillAccum (consultID,drgName,SubTotal,isRct) values ('001OFL0000003','C',400,1)",
    "insert into BillAccum (consultID,drgName,SubTotal,isRct) values ('001OFL0000003','E',400,1)",
    "insert into BillingDetails (SNo,billNo,drgName,SubTotal,isRct) values (4,'001OFL0000003','F',400,1)",
    "insert into BillingDetails (SNo,billNo,drgName,SubTotal,isRct) values (5,'001OFL0000003','C',400,1)",
    "insert into BillAccum (consultID,drgName,SubTotal,isRct) values ('001OFL0000004','H',70,1)",
    "insert into BillingDetailsAdjust (billNo,BillItem) values ('001OFL0000004','G')",
    "insert into PaymentDetails (ReceiptNo,billNo,snoID,BillItem,AmountPaid) values ('13','001OFL0000004',9,'G',60)",
    // A carried debt corrected; a carried credit that was removed from a visit deleted later; one renamed to the other.
    "insert into BillAccum (consultID,drgName,SubTotal) values ('001OFL0000003','PREVIOUS DEBT',200)",
    "insert into hDebtReview (billNo,PNo,Debt) values ('001OFL0000003','1/001',-200)",
    "insert into BillingDetailsAdjust (billNo,BillItem) values ('001OFL0000098','PREVIOUS CREDIT')",
    "insert into hDebtReview (billNo,PNo,Debt) values ('001OFL0000098','1/001',50)",
    "insert into BillAccum (consultID,drgName,SubTotal) values ('001OFL0000097','PREVIOUS CREDIT',80)",
    "insert into hDebtReview (billNo,PNo,Debt) values ('001OFL0000097','1/001',-80)",
    "insert into hDebtReview (billNo,PNo,Debt) values ('001OFL0000097','1/001',80)",
    "insert into hApprvCode (consultID,ApprvCode) values ('001OFL0000003','OFH/1')",
    "insert into hApprvCode (consultID,ApprvCode) values ('001OFL0000099','OFH/2')",
};

struct Plant {
    const char* check;
    QStringList statements;
    bool ofAccounting = false;
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
     {"insert into Payments (ReceiptNo,billNo,AmountPaid,Remarks) values "
      "('14','001OFL0000003',-300.01,'REVERSAL for RctNo: 8')"}},
    {"receipt reversed again",
     {"insert into Payments (ReceiptNo,billNo,AmountPaid,Remarks) values "
      "('14','001OFL0000002',-450,'REVERSAL for RctNo: SN12')"}},
    {"bill line without item", {"delete from BillAccum where SNo=2"}},
    {"saved visit without bill", {"delete from Billing where billNo='001OFL0000001'"}},
    {"covered item without payment", {"update BillAccum set isRct=1 where drgName='B'"}},
    {"covered item without payment", {"delete from PaymentDetails where BillItem='G'"}},
    {"covered line without payment", {"update BillingDetails set isRct=1 where drgName='B'"}},
    {"correction without patient", {"update hDebtReview set PNo='9/001' where Debt=50"}},
    {"correction without bill", {"update hDebtReview set billNo='001OFL0000077' where Debt=50"}},
    {"correction's sign", {"update hDebtReview set Debt=200 where Debt=-200"}},
    {"approval code without visit", {"update hApprvCode set consultID='001OFL0000077' where ApprvCode='OFH/1'"}},
    {"amount that is not stated", {"update BillAccum set SubTotal=null where SNo=1"}},
    {"amount that is no number", {"update BillAccum set Price=1e308*10 where SNo=1"}},
    {"repeated table", {"insert into AccountMonth (Period) values ('202603')"}, true},
    {"repeated table", {"insert into ChartOfAccounts (AccountNo,AccountName) values ('1210010','CASH')"}, true},
    {"part of a kobo",
     {"update hPatients set DebtBF=-500.0049", "update Tranxaction set RunningTotal=-500.0049 where SNo=3"}},
    {"paper receipt on a bill that has lines",
     {"update Billing set Amountbilled=1950,billType='CASH' where billNo='001OFL0000001'"}},
    {"account beside bills", {"delete from BillingDetails where billNo='001OFL0000001'"}},
    {"ledger transaction",
     {"insert into Tranxaction (TranID,AccountNo,Amount) values ('T1','1210010',100)",
      "insert into Tranxaction (TranID,AccountNo,Amount) values ('T1','4110010',-99.5)"},
     true},
};

class CheckTest : public EngineTest {
protected:
    void SetUp() override {
        ASSERT_TRUE(prepareServer(program));
        for (const QString& row : soundRows)
            billing.run(row);
    }

    QuietUi ui;
    Program program{home.folder(), ui};
};

TEST_P(CheckTest, passesASoundHospital) {
    const CheckReport report = checkDatabases(program);
    EXPECT_EQ(report.findings, QStringList());
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
        ASSERT_TRUE(prepareServer(sick));
        Connection connection = sick.openBilling();
        for (const QString& row : soundRows)
            connection.run(row);
        for (const QString& statement : plant.statements)
            (plant.ofAccounting ? sick.openAccounting() : sick.openBilling()).run(statement);
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
    const QStringList agreeing = {
        "insert into hPatients (PNo,psurname,clientcatID,DebtBF) values ('2/001','OJO','PRIVATE',-1500)",
        "insert into hRecords (consultID,PNo,recDate,clientCat) values ('B1','2/001','2026-03-01','PRIVATE')",
        "insert into BillAccum (consultID,PNo,drgName,SubTotal) values ('B1','2/001','A',1000)",
        "insert into BillAccum (consultID,PNo,drgName,SubTotal) values ('B1','2/001','B',800)",
        "insert into BillingDetails (SNo,billNo,drgName,SubTotal,billTo) select SNo,'B1',drgName,SubTotal,'0001' from "
        "BillAccum where consultID='B1'",
        "insert into BillingDetails (SNo,billNo,drgName,SubTotal,billTo) values (-9,'B1','PREVIOUS DEBT',70,'0001')",
        "insert into Billing (billNo,PNo,Amountbilled,AmountPaid) values ('B1','2/001',1870,300)",
        "insert into Payments (ReceiptNo,billNo,PNo,AmountPaid) values ('21','B1','2/001',300)",
        "insert into Tranxaction (PNo,billNo,Amount,RunningTotal) values ('2/001','B1',-1000,-1000)",
        "insert into Tranxaction (PNo,billNo,Amount,RunningTotal) values ('2/001','B1',-800,-1800)",
        "insert into Tranxaction (PNo,billNo,Amount,RunningTotal) values ('2/001','B1',300,-1500)",
    };
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
        ASSERT_TRUE(prepareServer(owed));
        Connection connection = owed.openBilling();
        for (const QString& statement : agreeing + test.statements)
            connection.run(statement);
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
        ASSERT_TRUE(prepareServer(writer));
        Connection billing = writer.openBilling();
        for (const QString& row : soundRows)
            billing.run(row);
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
