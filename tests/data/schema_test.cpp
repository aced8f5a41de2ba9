#include "data/DataError.h"
#include "support/Print.h"
#include "support/Rows.h"
#include "support/TestHome.h"

namespace orvane {

class SchemaRules : public EngineTest {};

TEST_P(SchemaRules, ANumberIsGivenOnce) {
    const struct {
        const char* into;
        const char* first;
        const char* second;
        bool accepted;
    } cases[] = {
        {"hPatients (PNo, psurname)", "'P/1', 'A'", "'p/1', 'B'", false},
        {"hRecords (consultID, PNo, recDate)", "'A', 'P/1', '2026-03-14'", "'A', 'P/2', '2026-03-14'", false},
        {"hRecordsPublic (consultID)", "'001/26/000001'", "'001/26/000001'", false},
        {"Billing (billNo)", "'001OFL0000001'", "'001ofl0000001'", false},
        {"BillingDetails (billNo, SNo)", "'A', 7", "'B', 7", false},
        {"BillingDetails (billNo)", "'A'", "'A'", true},
        {"Payments (ReceiptNo)", "'001OP0000001'", "'001op0000001'", false},
        {"Payments (ReceiptNo)", "'1'", "'1'", false},
        {"Payments (ReceiptNo)", "'TH0000001'", "'TH0000001'", false},
        {"Payments (ReceiptNo)", "'SN 4711'", "'sn 4711'", true},
        {"Payments (ReceiptNo)", "'SN'", "'SN'", true},
        {"hRevenueType (revType)", "'DRUGS'", "'Drugs'", false},
        {"billingPrice (clientCatID, clientType)", "'HMO', 'HMO'", "'hmo', 'NHIS'", true},
        {"billingPrice (clientCatID, clientType)", "'STAFF', 'HMO'", "'staff', 'hmo'", false},
        {"UserRoles (RoleID, Username)", "1, 'a'", "1, 'A'", false},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(one.into + std::string(one.second));
        EXPECT_NO_THROW(addRows(billing, one.into, {one.first}));
        if (one.accepted)
            EXPECT_NO_THROW(addRows(billing, one.into, {one.second}));
        else
            EXPECT_THROW(addRows(billing, one.into, {one.second}), DataError);
    }
}

TEST_P(SchemaRules, AKeyNeverComesBack) {
    const struct {
        const char* key;
        QString table;
        const char* columns;
        const char* row;
    } cases[] = {{"SNo", "BillAccum", "(PNo)", "'P'"},
                 {"SNo", "Payments", "(PNo)", "'P'"},
                 {"recID", "hRecords", "(consultID, PNo, recDate)", "'A', 'P', '2026-03-14'"}};
    for (const auto& one : cases) {
        const auto added = [&] {
            addRows(billing, (one.table + one.columns).toUtf8(), {one.row});
            return scalar("select max(" + QString(one.key) + ") as n from " + one.table).toLongLong();
        };
        const qlonglong first = added();
        billing.run("delete from " + one.table);
        EXPECT_GT(added(), first) << one.table.toStdString();
    }
}

TEST_P(SchemaRules, AFlagThatIsNotWrittenIsZero) {
    addRows(billing, "BillAccum (consultID)", {"'A'"});
    addRows(billing, "BillingDetails (billNo)", {"'A'"});
    addRows(billing, "Billing (billNo)", {"'A'"});
    addRows(billing, "hRecords (consultID, PNo, recDate)", {"'A', 'P', '2026-03-14'"});
    addRows(billing, "hRetainership (retainID)", {"'0001'"});
    const std::pair<const char*, const char*> cases[] = {
        {"attendedto + isBilled + isRct from BillAccum", "0"},
        {"isRct + isPost from BillingDetails", "0"},
        {"isProcess + isPaid + AmountPaid + Amountbilled from Billing", "0"},
        {"attendedto from hRecords", "0"},
        {"BillEndDate from hRetainership", "31"}};
    for (const auto& [columns, value] : cases)
        EXPECT_EQ(scalar(QStringLiteral("select ") + columns), value) << columns;
}

/// The account of a patient and the ledger share a table name; each is written with its own columns.
TEST_P(SchemaRules, BothTablesOfOneNameAreWritten) {
    const struct {
        QString database;
        QVariantMap row;
    } cases[] = {{TestHome::billing(), {{"PNo", "P/1"}, {"Amount", -2000.5}, {"RunningTotal", -2000.5}}},
                 {TestHome::accounting(), {{"TranID", "T1"}, {"AccountNo", "1001"}, {"Amount", -2000.5}}}};
    for (const auto& one : cases) {
        Connection connection = data.open(one.database);
        Recordset table(connection, Sql("select * from Tranxaction where 1=2"));
        table.addNew();
        for (auto cell = one.row.begin(); cell != one.row.end(); ++cell)
            table.set(cell.key(), cell.value());
        table.update();
        EXPECT_EQ(rowsOf(connection, "select " + QStringList(one.row.keys()).join(u',') + " from Tranxaction"),
                  one.database == TestHome::billing() ? "-2000.5|P/1|-2000.5" : "1001|-2000.5|T1");
    }
}

ORVANE_ON_EACH_ENGINE(SchemaRules);

} // namespace orvane
