#include "Worker.h"

#include "support/Check.h"
#include "support/Workstation.h"

#include <QMap>
#include <QRegularExpression>
#include <algorithm>
#include <gtest/gtest.h>

namespace orvane {

namespace {

/// Each worker's rounds, of six saves each; ORVANE_PROOF_COUNT asks for a longer run.
int roundsOfAWorker() {
    return std::max(1, qEnvironmentVariable("ORVANE_PROOF_COUNT", "3").toInt());
}

QString naira(double amount) {
    return QString::number(amount, 'f', 2);
}

QStringList sorted(QStringList lines) {
    lines.sort();
    return lines;
}

constexpr double consultationFee = 2000;
constexpr double firstItem = 1000000;

/// What the books must say by what the workers told alone: lines of cells apart by tabs, amounts in naira.
struct Books {
    QMap<QString, double> billed, paid, balance; ///< of each bill, of each bill, of each patient
    QMap<QString, QString> patients;             ///< of each visit
    QStringList account, receipts, cashed;       ///< bill and amount; number, bill and amount; number and amount
    int lines = 0;                               ///< of all bills

    void take(const QStringList& told) {
        const QString &kind = told.at(0), &number = told.at(1), &amount = told.last();
        if (kind == "visit")
            charge(number, told.at(2), consultationFee);
        else if (kind == "item")
            charge(number, patients.value(number), amount.toDouble());
        else if (told.size() == 4) {
            receipts << told.mid(1).join('\t');
            if (kind == "paidbill")
                cashed << number + '\t' + amount;
            paid[told.at(2)] += amount.toDouble();
            enter(told.at(2), amount.toDouble());
        }
    }
    void charge(const QString& visit, const QString& patient, double amount) {
        ++lines;
        patients[visit] = patient;
        billed[visit] += amount;
        enter(visit, -amount);
    }

private:
    void enter(const QString& visit, double amount) {
        account << visit + '\t' + naira(amount);
        balance[patients.value(visit)] += amount;
    }
};

/// Several workstations, each a process of its own, at work on the same patients and bills.
class Proof : public WorkstationTest {
protected:
    void prepare() override {
        Connection connection = ws.billing();
        for (int i = 0; i < sharedPatients; ++i)
            makePatient(connection,
                        {.pno = patientOfWorkers(i), .surname = "PROOF", .firstname = QString("NO %1").arg(i)});
        for (int i = 0; i < sharedVisits; ++i) {
            makeVisit(connection, {.consultID = visitOfWorkers(i), .pno = patientOfWorkers(i)});
            makeItem(connection, {.consultID = visitOfWorkers(i), .pno = patientOfWorkers(i), .price = firstItem});
        }
    }

    /// Has the workers do their rounds at the same time and gathers what they told.
    void work(int workers, const QStringList& options) {
        const QStringList worker = QStringList{QString::number(roundsOfAWorker())} + options;
        workTogether(home, QList<QStringList>(workers, worker), told);
    }

    /// What was told of a kind, without the kind.
    QStringList toldOf(const QString& kind) const {
        return told.filter(QRegularExpression('^' + kind + '\t')).replaceInStrings(kind + '\t', QString());
    }

    Books books() const {
        Books result;
        for (int i = 0; i < sharedVisits; ++i)
            result.charge(visitOfWorkers(i), patientOfWorkers(i), firstItem);
        for (const QString& line : told)
            result.take(line.split('\t'));
        return result;
    }

    /// The rows of a query as the workers tell them, in order.
    QStringList stored(Connection connection, const QString& tsql) {
        QStringList lines;
        for (Recordset row = connection.run(tsql); !row.eof(); row.moveNext()) {
            QStringList cells;
            for (int column = 0; column < row.columns().size(); ++column)
                cells << (row.value(column).typeId() == QMetaType::Double ? naira(row.value(column).toDouble())
                                                                          : row.text(column));
            lines << cells.join('\t');
        }
        return sorted(lines);
    }
    QStringList stored(const QString& tsql) { return stored(ws.billing(), tsql); }
    QStringList trail(const QString& filter) {
        return stored(ws.billing().beside(GetParam() == Engine::Sqlite ? "Audit" : ""),
                      "select TranCode,Remarks from AuditTrail where userAction like " + filter);
    }

    QStringList told;
};

ORVANE_ON_EACH_ENGINE(Proof);

/// What was told is what is stored: no save is missing, none is there twice, under another's number or in part.
TEST_P(Proof, WorkstationsLoseAndDoubleNothing) {
    const int workers = GetParam() == Engine::Sqlite ? 8 : 16;
    ASSERT_NO_FATAL_FAILURE(work(workers, {}));
    EXPECT_EQ(toldOf("trouble"), QStringList());
    for (const QString& kind : savesOfARound)
        EXPECT_EQ(toldOf(kind).size(), workers * roundsOfAWorker()) << kind.toStdString();

    const Books books = this->books();
    QStringList bills, balances;
    for (const QString& bill : books.billed.keys())
        bills << bill + '\t' + naira(books.billed.value(bill)) + '\t' + naira(books.paid.value(bill));
    for (int i = 0; i < sharedPatients; ++i)
        balances << patientOfWorkers(i) + '\t' + naira(books.balance.value(patientOfWorkers(i)));
    QStringList payments;
    for (const QString& receipt : books.receipts)
        payments << receipt.section('\t', 1);
    const qsizetype counted = books.receipts.size() - toldOf("deposit").size();

    EXPECT_EQ(stored("select consultID, PNo from hRecords where recID > " + QString::number(sharedVisits)),
              sorted(toldOf("visit")));
    EXPECT_EQ(stored("select ReceiptNo, billNo, AmountPaid from Payments"), sorted(books.receipts));
    EXPECT_EQ(stored("select ReceiptNo, AmountPaid from PaymentTypes"), sorted(books.cashed));
    EXPECT_EQ(stored("select ReceiptNo, sum(AmountPaid) as Paid from PaymentDetails group by ReceiptNo"),
              sorted(books.cashed));
    EXPECT_EQ(ws.scalar("select ID from IDgen where DestName='RECEIPT2'"), QString::number(counted));
    EXPECT_EQ(stored("select billNo, Amountbilled, AmountPaid from Billing"), bills);
    EXPECT_EQ(stored("select SNo, consultID, SubTotal from BillAccum where attendedTo=1 and isBilled=1"),
              stored("select SNo, billNo, SubTotal from BillingDetails"))
        << "each item is on its bill once";
    EXPECT_EQ(ws.tableCount("BillingDetails"), books.lines);
    EXPECT_EQ(stored("select billNo, Amount from Tranxaction"), sorted(books.account));
    EXPECT_EQ(stored("select PNo, DebtBF from hPatients"), balances);
    EXPECT_EQ(trail("'%(Payment) for: %' or userAction like 'insert Payment for: %'"), sorted(payments));
    EXPECT_EQ(trail("'insert Bill Item for %'").size(), books.lines);
    EXPECT_EQ(checkDatabases(ws.program).findings, QStringList());
}

/// Outlets' numbers and their receipts', which are formed by MAX and one more, have no gap and no double.
TEST_P(Proof, OutletsNumberTheirVisitsAndReceiptsInOneRow) {
    const int workers = 8;
    ASSERT_NO_FATAL_FAILURE(work(workers, {"outlet"}));
    EXPECT_EQ(toldOf("trouble"), QStringList());
    QStringList visits, receipts;
    for (int n = 1; n <= workers * roundsOfAWorker(); ++n) {
        visits << QStringLiteral("001/26/%1").arg(n, 6, 10, QLatin1Char('0'));
        receipts << QStringLiteral("001LB%1").arg(n, 7, 10, QLatin1Char('0'));
    }
    EXPECT_EQ(stored("select consultID from hRecordsPublic"), visits);
    EXPECT_EQ(stored("select ReceiptNo from Payments"), receipts);
    EXPECT_EQ(stored("select billNo,ReceiptNo from Payments"), sorted(toldOf("outlet")));
    EXPECT_EQ(checkDatabases(ws.program).findings, QStringList());
}

/// The same work without the gate goes wrong, so the proof above can fail. On the embedded engine the gate is the
/// transaction itself, so there each statement is then for itself.
TEST_P(Proof, WithoutTheGateItFails) {
    ASSERT_NO_FATAL_FAILURE(work(8, {"no-gate"}));
    const CheckReport report = checkDatabases(ws.program);
    EXPECT_GT(report.findings.size(), 0);
    RecordProperty("findings", (report.findings + report.remarks).join('\n').toStdString());
    RecordProperty("troubles", toldOf("trouble").join('\n').toStdString());
}

} // namespace

} // namespace orvane
