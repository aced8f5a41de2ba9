#include "demo/Check.h"

#include "demo/QuietUi.h"
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
    "insert into Billing (billNo,PNo,Amountbilled,AmountPaid,billType) values ('001OFL0000002','1/001',900,900,'CASH')",
    "insert into Payments (ReceiptNo,billNo,PNo,AmountPaid) values ('SN12','001OFL0000002','1/001',450)",
    "insert into Payments (ReceiptNo,billNo,PNo,AmountPaid) values ('SN12','001OFL0000002','1/001',450)",
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
    {"receipt's items", {"update PaymentDetails set AmountPaid=999"}},
    {"way of payment without receipt", {"insert into PaymentTypes (ReceiptNo,AmountPaid) values ('8',10)"}},
    {"receipt's item without receipt", {"insert into PaymentDetails (ReceiptNo,AmountPaid) values ('8',10)"}},
    {"receipt without bill", {"insert into Payments (ReceiptNo,billNo,AmountPaid) values ('8','001OFL0000077',10)"}},
    {"bill line without item", {"delete from BillAccum where SNo=2"}},
    {"saved visit without bill", {"delete from Billing where billNo='001OFL0000001'"}},
    {"amount that is not stated", {"update BillAccum set SubTotal=null where SNo=1"}},
    {"amount that is no number", {"update BillAccum set Price=1e308*10 where SNo=1"}},
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
        const QStringList findings = checkDatabases(sick).findings;
        EXPECT_FALSE(findings.filter(QString(plant.check) + ": ").isEmpty())
            << "found instead: " << findings.join(" / ").toStdString();
    }
    QStringList all = checkNames();
    all.sort();
    planted.sort();
    EXPECT_EQ(planted, all) << "a check without a planted fault, or the other way round";
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
