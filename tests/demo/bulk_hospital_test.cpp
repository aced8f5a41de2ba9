#include "play/Hand.h"
#include "play/QuietUi.h"
#include "tool/Home.h"
#include "tool/Tool.h"

#include "data/dialect/Catalog.h"
#include "data/engine/ServerList.h"
#include "screens/Screens.h"
#include "session/Main.h"
#include "support/Rows.h"
#include "support/TestHome.h"

#include <QSet>

using namespace orvane;

namespace {

const QDate lastDay(2026, 3, 13);

int runTool(const QString& command, const QString& home, const QStringList& options, QString* said) {
    QTextStream out(said);
    return runDatabaseTool(QStringList{command, "--home", home} + options, out, out);
}

void makeHospital(const QString& home, const QStringList& options) {
    QString said;
    ASSERT_EQ(runTool("demo", home, QStringList{"--until", "2026-03-13"} + options, &said), 0) << said.toStdString();
}

void expectSound(const QString& home) {
    QString said;
    EXPECT_EQ(runTool("check", home, {}, &said), 0) << said.toStdString();
}

/// Rows that the screens leave behind a saved visit; the others of the bulk load are written by shared routines.
const QStringList traces = QString("hRecords where BillDate is not null|BillAccum where attendedto=1|BillingDetails|"
                                   "Billing where admdate is null|Payments|PaymentTypes|PaymentDetails where snoID > 0|"
                                   "Tranxaction|hApprvCode|UserActivities")
                               .split(u'|');

/// What the rows of a table have in common: which columns are empty, and the words of columns that hold states.
QSet<QString> shapes(Connection& connection, const QString& trace) {
    static const QStringList stateColumns = {"Capitated", "usage", "dosage", "PaymentFor", "referal"};
    const Table& table = *Catalog::instance().table(trace.section(u' ', 0, 0));
    QSet<QString> found;
    for (Recordset row = connection.run("select * from " + trace); !row.eof(); row.moveNext()) {
        QStringList cells;
        for (const Column& column : table.columns) {
            const bool state =
                column.kind == ColumnKind::Flag || stateColumns.contains(column.name, Qt::CaseInsensitive);
            const QString text = row.text(column.name);
            cells.append(column.name + (row.isNull(column.name) ? " null"
                                        : state                 ? ' ' + text
                                        : text.isEmpty()        ? " empty"
                                                                : " given"));
        }
        found.insert(cells.join(','));
    }
    return found;
}

TEST(BulkHospitalShape, leavesNoRowThatTheScreensWouldNotHaveLeft) {
    const TestHome bulk, ordinary;
    makeHospital(bulk.folder(), {"--bills", "200", "--days", "10"});
    makeHospital(ordinary.folder(), {"--patients", "80", "--days", "8"});
    DataSource bulkData(bulk.folder()), ordinaryData(ordinary.folder());
    Connection loaded = bulkData.open(TestHome::billing()), known = ordinaryData.open(TestHome::billing());
    for (const QString& trace : traces) {
        const QSet<QString> shapesLoaded = shapes(loaded, trace);
        EXPECT_FALSE(shapesLoaded.isEmpty()) << trace.toStdString();
        for (const QString& shape : shapesLoaded - shapes(known, trace))
            ADD_FAILURE() << trace.toStdString() << ": " << shape.toStdString();
    }
}

/// Every row of tables that a bill consists of.
QString rowsOf(Connection& connection, const QStringList& tables) {
    QString rows;
    for (const QString& table : tables)
        rows += rowsOf(connection, "select * from [" + table + "] order by 1");
    return rows;
}

class BulkHospital : public ::testing::TestWithParam<Engine> {
protected:
    TestHome home{GetParam()};
    QuietUi ui;
    Program program{home.folder(), ui};

    QString scalar(const QString& tsql) {
        Connection billing = program.openBilling();
        return orvane::rowsOf(billing, tsql);
    }
};

TEST_P(BulkHospital, isSoundAndGoesOnUnderTheScreens) {
    makeHospital(home.folder(), {"--bills", "60", "--days", "20"});
    expectSound(home.folder());
    ui.setClock(QDateTime(lastDay, QTime(21, 0)));
    program.data().setServerClock(QDateTime(lastDay, QTime(21, 0)));
    registerScreens(program);
    ASSERT_TRUE(Main(program, "amina.b")) << ui.takeBoxes().join(" / ").toStdString();

    const std::pair<const char*, const char*> sizes[] = {
        {"select count(*) from Billing", "66"},
        {"select count(*) from BillingDetails", "306"},
        {"select count(*) from hRecordsPublic", "6"},
        {"select count(*) from hPatients", "150"},
        {"select count(*) from vwhConsultingVisitsForBilling", "312"},
        {"select count(*) from vwhConsultingVisitsForBilling where Date='2026-03-13'", "42"},
        {"select count(*) from (select consultID from BillAccum where attendedto=0 group by consultID "
         "having count(*)=20) t",
         "300"},
        {"select count(*) from hPatients where DebtBF<0 and regdate>'2026-03-13'", "0"},
        {"select count(distinct batchNo) from BillsForClients", "1"},
        {"select count(*) from vwBillingProcess where batchNo='2026/02' and retainID<>'0001'", "0"},
    };
    for (const auto& [statement, count] : sizes)
        EXPECT_EQ(scalar(statement), count) << statement;
    for (const char* kind : {"isPaid=0 and AmountPaid=0", "AmountPaid=Amountbilled", "AmountPaid<>Amountbilled"})
        EXPECT_NE(scalar(QStringLiteral("select count(*) from Billing where Amountbilled>0 and %1").arg(kind)), "0");

    // A look at a saved bill, which collates it again, finds nothing to change.
    const QStringList tables = {"hRecords", "BillAccum", "BillingDetails", "Billing", "Tranxaction", "hPatients"};
    Connection billing = program.openBilling();
    const QString before = rowsOf(billing, tables);
    program.open("frmBillingVerify");
    Form& form = program.form("frmBillingVerify");
    Hand hand(form);
    for (Recordset bill = billing.run("select billNo from Billing where isProcess=0"); !bill.eof(); bill.moveNext()) {
        hand.type("txtSearch", bill.text(0));
        hand.click("cmdOK");
    }
    EXPECT_EQ(ui.takeBoxes(), QStringList());
    EXPECT_TRUE(rowsOf(billing, tables) == before);

    // A waiting visit is collated, paid and saved; its numbers follow the loaded ones.
    const QString receipts = scalar("select ID from IDgen where DestName='RECEIPT2'");
    EXPECT_EQ(receipts, scalar("select count(*) from Payments where billNo not like '001/%'"));
    const QString visit = scalar("select top 1 h.consultID from hRecords h where h.clientCat='PRIVATE' and h.BillDate "
                                 "is null and (select count(*) from BillAccum a where a.consultID=h.consultID)=20");
    hand.type("txtSearch", visit);
    hand.click("cmdOK");
    EXPECT_EQ(scalar("select count(*) from BillingDetails where billNo='" + visit + "'"), "20");
    hand.tick("chkRct");
    hand.choose("cboPayFor", "CONSULTING AND DRUGS");
    hand.type("txtAmt(0)", "1000");
    hand.click("OKButton");
    EXPECT_EQ(ui.takeBoxes(), QStringList());
    EXPECT_EQ(scalar("select ReceiptNo from Payments where billNo='" + visit + "'"),
              QString::number(receipts.toInt() + 1));
    expectSound(home.folder());
}

ORVANE_ON_EACH_ENGINE(BulkHospital);

TEST(HomeFiles, aPrefixKeepsTheHospitalsOfOneServerApart) {
    QTemporaryDir folder;
    writeHomeFiles(folder.filePath("home"), {"postgresql", "db.example", 5433, "big_"});
    const ServerEntry entry = ServerList(folder.filePath("home")).entry("HALDEN");
    EXPECT_EQ(entry.prefix, "big_");
    EXPECT_EQ(entry.host, "db.example");
    EXPECT_EQ(entry.port, 5433);
}

} // namespace
