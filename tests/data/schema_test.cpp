#include "data/dialect/Catalog.h"
#include "data/rows/Recordset.h"
#include "support/Print.h"
#include "support/TestHome.h"

namespace orvane {

class SchemaRules : public EngineTest {
protected:
    void run(const char* statement) { billing.run(QString::fromUtf8(statement)); }
};

TEST_P(SchemaRules, ANumberIsGivenOnce) {
    const struct {
        const char* first;
        const char* second;
        bool accepted;
    } cases[] = {
        {"insert into hPatients (PNo, psurname) values ('P/1', 'A')",
         "insert into hPatients (PNo, psurname) values ('p/1', 'B')", false},
        {"insert into hRecords (consultID, PNo, recDate) values ('001OFL0000001', 'P/1', '2026-03-14')",
         "insert into hRecords (consultID, PNo, recDate) values ('001OFL0000001', 'P/2', '2026-03-14')", false},
        {"insert into hRecordsPublic (consultID) values ('001/26/000001')",
         "insert into hRecordsPublic (consultID) values ('001/26/000001')", false},
        {"insert into Billing (billNo) values ('001OFL0000001')",
         "insert into Billing (billNo) values ('001ofl0000001')", false},
        {"insert into BillingDetails (billNo, SNo) values ('A', 7)",
         "insert into BillingDetails (billNo, SNo) values ('B', 7)", false},
        {"insert into BillingDetails (billNo) values ('A')", "insert into BillingDetails (billNo) values ('A')", true},
        {"insert into Payments (ReceiptNo) values ('001OP0000001')",
         "insert into Payments (ReceiptNo) values ('001op0000001')", false},
        {"insert into Payments (ReceiptNo) values ('1')", "insert into Payments (ReceiptNo) values ('1')", false},
        {"insert into Payments (ReceiptNo) values ('TH0000001')",
         "insert into Payments (ReceiptNo) values ('TH0000001')", false},
        {"insert into Payments (ReceiptNo) values ('SN 4711')", "insert into Payments (ReceiptNo) values ('sn 4711')",
         true},
        {"insert into Payments (ReceiptNo) values ('SN')", "insert into Payments (ReceiptNo) values ('SN')", true},
        {"insert into hRevenueType (revType) values ('DRUGS')", "insert into hRevenueType (revType) values ('Drugs')",
         false},
        {"insert into billingPrice (clientCatID, clientType) values ('HMO', 'HMO')",
         "insert into billingPrice (clientCatID, clientType) values ('hmo', 'NHIS')", true},
        {"insert into billingPrice (clientCatID, clientType) values ('STAFF', 'HMO')",
         "insert into billingPrice (clientCatID, clientType) values ('staff', 'hmo')", false},
        {"insert into UserRoles (RoleID, Username) values (1, 'a')",
         "insert into UserRoles (RoleID, Username) values (1, 'A')", false},
    };
    for (const auto& test : cases) {
        EXPECT_NO_THROW(run(test.first)) << test.first;
        if (test.accepted)
            EXPECT_NO_THROW(run(test.second)) << test.second;
        else
            EXPECT_THROW(run(test.second), DataError) << test.second;
    }
}

TEST_P(SchemaRules, AKeyNeverComesBack) {
    for (const char* table : {"BillAccum", "hRecords", "Payments"}) {
        const QString name = QString::fromLatin1(table);
        const bool visit = name == QLatin1StringView("hRecords");
        const QString key = visit ? "recID" : "SNo";
        const QString insert = visit
                                   ? QStringLiteral("insert into hRecords (consultID, PNo, recDate) values ('A', 'P', "
                                                    "'2026-03-14')")
                                   : QStringLiteral("insert into %1 (PNo) values ('P')").arg(name);
        billing.run(insert);
        const qlonglong first = scalar(QStringLiteral("select max(%1) as n from %2").arg(key, name)).toLongLong();
        billing.run("delete from " + name);
        billing.run(insert);
        EXPECT_GT(scalar(QStringLiteral("select max(%1) as n from %2").arg(key, name)).toLongLong(), first) << table;
    }
}

TEST_P(SchemaRules, AFlagThatIsNotWrittenIsZero) {
    run("insert into BillAccum (consultID) values ('A')");
    run("insert into BillingDetails (billNo) values ('A')");
    run("insert into Billing (billNo) values ('A')");
    run("insert into hRecords (consultID, PNo, recDate) values ('A', 'P', '2026-03-14')");
    run("insert into hRetainership (retainID) values ('0001')");
    EXPECT_EQ(scalar("select attendedto + isBilled + isRct from BillAccum"), "0");
    EXPECT_EQ(scalar("select isRct + isPost from BillingDetails"), "0");
    EXPECT_EQ(scalar("select isProcess + isPaid + AmountPaid + Amountbilled from Billing"), "0");
    EXPECT_EQ(scalar("select attendedto from hRecords"), "0");
    EXPECT_EQ(scalar("select BillEndDate from hRetainership"), "31");
}

TEST_P(SchemaRules, APatientsFullNameFollowsItsParts) {
    run("insert into hPatients (PNo, psurname, pfirstname) values ('P/1', 'O''NEILL', 'Áine')");
    run("insert into hPatients (PNo, psurname) values ('P/2', 'ONE_ILL')");
    run("update hPatients set psurname='One' where PNo='P/2'");
    EXPECT_EQ(scalar("select fullname from hPatients where PNo='P/1'"), "O'NEILL Áine");
    EXPECT_EQ(scalar("select PNo from hPatients where fullname='one'"), "P/2");
    EXPECT_EQ(scalar("select PNo from vwhpatients where fullname like 'o''n%'"), "P/1");
}

/// The account of a patient and the ledger share a table name; each is written with its own columns.
TEST_P(SchemaRules, BothTablesOfOneNameAreWritten) {
    Recordset account(billing, Sql("select * from Tranxaction where 1=2"));
    account.addNew();
    account.set("PNo", "P/1");
    account.set("Amount", -2000.5);
    account.set("RunningTotal", -2000.5);
    account.update();
    EXPECT_EQ(scalar("select RunningTotal from Tranxaction where PNo='P/1'"), "-2000.5");

    Connection accounting = data.open(TestHome::accounting());
    Recordset ledger(accounting, Sql("select * from Tranxaction where 1=2"));
    ledger.addNew();
    ledger.set("TranID", "T1");
    ledger.set("AccountNo", "1001");
    ledger.set("TranDate", QDate(2026, 3, 14));
    ledger.set("Amount", 2000.5);
    ledger.update();
    EXPECT_EQ(accounting.run("select Amount, TranDate from Tranxaction where TranID='T1'").text("TranDate"),
              "2026-03-14");
}

TEST_P(SchemaRules, ADeletedSupplierIsKeptWhole) {
    for (int round = 0; round < 2; ++round) {
        run("insert into suppliers (supplierID, SupplierName, Email) values ('0001', 'ACME', 'a@b.c')");
        run("insert into SuppliersArchive select * from suppliers where supplierID='0001'");
        run("delete from suppliers where supplierID = '0001'");
    }
    EXPECT_EQ(scalar("select count(*) as n from SuppliersArchive where Email='a@b.c'"), "2");
}

TEST_P(SchemaRules, ForeignNumbersDoNotDisturbTheGenerators) {
    for (const char* number :
         {"001OP0000007", "001OP0000041", "SN 900", "0", "OP0000012", "002OP0000090", "001LB0000099"})
        billing.run(QStringLiteral("insert into Payments (ReceiptNo) values ('%1')").arg(QLatin1StringView(number)));
    EXPECT_EQ(scalar("select MAX(cast(SUBSTRING(ReceiptNo, 6, 7)as bigint))  as ID from Payments WHERE  "
                     "SUBSTRING(ReceiptNo, 4, 2)='OP ' and SUBSTRING(ReceiptNo, 1, 3)='001 '"),
              "41");
    EXPECT_EQ(scalar("select MAX(cast(SUBSTRING(ReceiptNo, 3, 7)as bigint))  as ID from Payments WHERE  "
                     "(SUBSTRING(ReceiptNo, 1, 2)='OP ')"),
              "12");
}

ORVANE_ON_EACH_ENGINE(SchemaRules);

} // namespace orvane
