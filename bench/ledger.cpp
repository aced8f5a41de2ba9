// The ledger: its reports over many legs and the posting of a day's receipts and of a month's invoices, against the
// same statements replayed through the bare engine on another copy.
#include "bench/BareEngine.h"
#include "bench/Benches.h"
#include "bench/Site.h"
#include "books/Batch.h"
#include "books/CashPosting.h"
#include "books/InvoicePosting.h"
#include "data/dialect/Translator.h"
#include "data/rows/BulkInsert.h"
#include "data/rows/Transaction.h"
#include "forms/ReportViewer.h"
#include "play/Hand.h"
#include "session/Main.h"

#include <QRegularExpression>
#include <cstdio>

namespace orvane {

namespace {

constexpr int legs = 3'000'000, legsOfCash = 200'000;
constexpr int receiptsOfMonth = 60'000, receiptsOfDay = 5'000, invoicesOfMonth = 500;
const QString cashAccount = "1210010", revenueAccount = "4110010";

/// Where what is laid stands: behind the hospital's own days, in periods that are open.
struct Days {
    QDate month;                                                             ///< of its receipts nothing waits
    QDate day(int round) const { return month.addMonths(1).addDays(round); } ///< of cash that waits
    QDate invoices(int round) const { return month.addMonths(2 + round); }
};

class Laying {
public:
    explicit Laying(const QString& home) : m_program(home, m_ui) {
        if (!prepareServer(m_program))
            throw DataError("The copied hospital cannot be opened.");
        m_program.data().setDisposable();
    }

    Days lay(int rounds) {
        Connection billing = m_program.openBilling();
        const Recordset last(billing, Sql("select max(recDate) as Day from hRecords"));
        const QDate first = last.date("Day").addMonths(1);
        const Days days{QDate(first.year(), first.month(), 1)};
        layLegs(days.month.addYears(-1));
        Transaction transaction(billing);
        for (int i = 0; i < receiptsOfMonth; ++i)
            m_receipts << std::pair(days.month.addDays(i % 28), 1);
        for (int round = 0; round < rounds; ++round)
            for (int i = 0; i < receiptsOfDay; ++i)
                m_receipts << std::pair(days.day(round), 0);
        layReceipts(billing);
        layInvoices(billing, days, rounds);
        transaction.commit();
        return days;
    }

private:
    void layLegs(QDate first) {
        Connection ledger = m_program.openAccounting();
        QStringList accounts;
        for (Recordset account(ledger, Sql("select AccountNo from ChartOfAccounts order by AccountNo")); !account.eof();
             account.moveNext())
            if (account.text("AccountNo") != cashAccount)
                accounts << account.text("AccountNo");
        Transaction transaction(ledger);
        BulkInsert current(ledger, "Tranxaction"), other(ledger, "TranxactionTemp");
        for (int i = 0; i < legs; ++i) {
            const QString account = i < legsOfCash ? cashAccount : accounts.at(i % accounts.size());
            const QString id = QString::number(1'000'000 + i / 20);
            (i % 10 ? other : current)
                .add({{"TranID", id},
                      {"AccountNo", account},
                      {"TranNo", id},
                      {"TranDate", first.addDays(i % 360)},
                      {"Amount", (i % 2 ? -1 : 1) * double(i / 2 % 100'000) / 100},
                      {"Description", QStringLiteral("Amount Recvd for CONSULTATION")},
                      {"TranCat", QStringLiteral("j")}});
        }
        current.flush();
        other.flush();
        transaction.commit();
    }

    /// Each table's rows one after the other: a bulk insert is of one table.
    void layReceipts(Connection& billing) {
        const auto layTable = [&](const char* table, const RowValues& of) {
            BulkInsert rows(billing, table);
            for (int i = 0; i < m_receipts.size(); ++i) {
                const auto& [day, isPost] = m_receipts.at(i);
                rows.add(RowValues{{"ReceiptNo", QStringLiteral("LB%1").arg(i)},
                                   {"ReceiptDate", day},
                                   {"AmountPaid", 1000.5 + i % 700},
                                   {"isPost", isPost}} +
                         of);
            }
            rows.flush();
        };
        layTable("Payments", {{"PayType", QStringLiteral("CASH")}, {"billNo", QStringLiteral("LB")}});
        layTable("PaymentTypes", {{"PayType", QStringLiteral("CASH")}, {"AccountNo", cashAccount}});
        layTable("PaymentDetails", {{"revType", QStringLiteral("CONSULTATION")}, {"AccountNo", revenueAccount}});
    }

    static void layInvoices(Connection& billing, const Days& days, int rounds) {
        const Recordset client(billing,
                               Sql("select top 1 retainCode from hRetainership where isnull(AcctID, '') <> ''"));
        BulkInsert rows(billing, "BillsForClients");
        for (int i = 0; i < rounds * invoicesOfMonth; ++i) {
            const QDate month = days.invoices(i / invoicesOfMonth);
            rows.add({{"BatchNo", month.toString("yyyy/MM")},
                      {"CoyCode", client.text("retainCode")},
                      {"invNo", QStringLiteral("LB%1").arg(i)},
                      {"invDate", month},
                      {"AmountInvoiced", 25'000.5},
                      {"Amountbilled", 25'000.5},
                      {"BillMonth", monthName(month.month())},
                      {"BillYear", QString::number(month.year())}});
        }
        rows.flush();
    }

    QuietUi m_ui;
    Program m_program;
    QVector<std::pair<QDate, int>> m_receipts; ///< day, whether it is posted
};

class LedgerHospital {
public:
    LedgerHospital(const QString& home, int rounds)
        : m_laid(home, "laid"), m_days(Laying(m_laid.folder()).lay(rounds)),
          m_site(m_laid.folder(), "ledger", Moment::NextMorning), m_bareCopy(m_laid.folder(), "bare"),
          m_bare(BareEngine::open(m_bareCopy.folder(), m_site.now)) {}

    Engine engine() const { return m_laid.engine(); }
    const Days& days() const { return m_days; }
    Site& site() { return m_site; }

    /// Milliseconds of the program, and of the bare engine for the statements of it.
    std::pair<double, double> measure(const std::function<void()>& action) {
        m_site.recorder.take();
        m_site.recorder.measure("ledger", action);
        std::pair<double, double> cost;
        for (const Stretch& stretch : m_site.recorder.take())
            if (!stretch.name.isEmpty())
                cost = {stretch.milliseconds, replay(stretch.statements)};
        return cost;
    }
    double bare(const QString& tsql) { return replay({tsql}); }

private:
    double replay(const QStringList& statements) {
        const QList<BareStatement> replayed = ofBoth(statements);
        return milliseconds(engine(), [&] {
            for (const BareStatement& statement : replayed)
                m_bare->run(statement);
        });
    }

    static bool isOfLedger(const QString& statement) {
        static const QRegularExpression names(
            "tranxaction|TranFromAppsTrail|AccountMonth|ChartOfAccounts|'TRANID'|vwTrialBalance|vwGeneralLedger",
            QRegularExpression::CaseInsensitiveOption);
        return statement.contains(names);
    }

    /// Whose transaction begins here: a second one is the other database's; else it is that of its first change, unless
    /// another one begins before it.
    static bool beginsLedger(const QStringList& statements, qsizetype at, const QVector<bool>& open) {
        static const QRegularExpression change("^(insert|update|delete)", QRegularExpression::CaseInsensitiveOption);
        if (!open.isEmpty())
            return !open.last();
        for (++at; at < statements.size() && statements.at(at) != "begin transaction"; ++at)
            if (statements.at(at).contains(change))
                return isOfLedger(statements.at(at));
        return true;
    }

    /// The statements of a workstation, each for its database, with the transactions of both.
    QList<BareStatement> ofBoth(const QStringList& statements) const {
        QList<BareStatement> result;
        QVector<bool> open; // transactions, whether of the ledger
        for (qsizetype at = 0; at < statements.size(); ++at) {
            const QString& statement = statements.at(at);
            if (statement == "begin transaction") {
                open << beginsLedger(statements, at, open);
                result << BareStatement{engine() == Engine::Sqlite ? "begin immediate" : "begin", false, open.last()};
            } else if (statement.endsWith(" transaction")) {
                result << BareStatement{statement.section(' ', 0, 0).toUtf8(), false, open.takeLast()};
            } else {
                result << BareStatement{translate(statement, engine()).toUtf8(), statement.contains("AuditTrail"),
                                        isOfLedger(statement)};
            }
        }
        return result;
    }

    HomeCopy m_laid;
    Days m_days;
    Site m_site;
    HomeCopy m_bareCopy;
    std::unique_ptr<BareEngine> m_bare;
};

void print(const char* what, QVector<double> program, QVector<double> bare) {
    std::printf("  %-52s %9.0f %9.0f %8.2f\n", what, median(program), median(bare), median(program) / median(bare));
    std::fflush(stdout);
}

/// `rounds` times, medians.
void compare(LedgerHospital& hospital, const char* what, int rounds, const std::function<void(int)>& action) {
    QVector<double> program, bare;
    for (int round = 0; round < rounds; ++round) {
        const auto [taken, replayed] = hospital.measure([&] { action(round); });
        program << taken;
        bare << replayed;
        const QStringList said = hospital.site().ui.takeBoxes();
        if (!said.isEmpty())
            throw DataError(said.join('\n'));
    }
    print(what, program, bare);
}

/// Opens the report of the kind and prepares it; gives its form.
Hand ledgerReport(Site& site, const QString& kind, QDate from, QDate to) {
    site.tidy();
    site.program.session.sRptKind = kind;
    site.program.open("frmRptTB");
    Hand hand(site.program.form("frmRptTB"));
    if (kind != "TB")
        hand.date("DTPicker1", from);
    hand.date("DTPicker2", to);
    return hand;
}

void showFirstPage(Site& site, Hand& hand, const QString& button) {
    hand.click(button);
    auto& viewer = dynamic_cast<ReportViewer&>(*site.program.form("frmRptTB").find("crViewer1"));
    if (viewer.has(0))
        viewer.page(0);
}

void benchReports(LedgerHospital& hospital, int rounds) {
    Site& site = hospital.site();
    const QDate last = hospital.days().month, first = last.addMonths(-6);
    QVector<double> grouped;
    for (int round = 0; round < rounds; ++round)
        grouped << hospital.bare("select AccountNo,sum(Amount) from Tranxaction group by AccountNo union all select "
                                 "AccountNo,sum(Amount) from TranxactionTemp group by AccountNo");
    std::printf("  %-52s %9s %9.0f\n", "the engine's own group by, by account", "", median(grouped));
    for (const auto& [what, kind, button] : {std::tuple("trial balance, page", "TB", "cmdDisplay"),
                                             std::tuple("trial balance by period, page", "TB2", "cmdDisplay"),
                                             std::tuple("general ledger of all accounts, first page", "GL", "cmdGL")}) {
        Hand hand = ledgerReport(site, kind, first, last);
        compare(hospital, what, rounds, [&](int) { showFirstPage(site, hand, button); });
    }
    Hand hand = ledgerReport(site, "GL", last.addYears(-1), last);
    hand.chooseContaining("cboAcct", cashAccount);
    compare(hospital, "general ledger of 200,000 entries, first page", rounds,
            [&](int) { showFirstPage(site, hand, "cmdGL"); });
}

} // namespace

void benchLedger(const QString&, const QString& largeHome, int rounds) {
    LedgerHospital hospital(largeHome, rounds);
    Site& site = hospital.site();
    std::printf("%s, %d legs, %d rounds, medians. Commits do not wait for the disk on either side.\n",
                hospital.engine() == Engine::Sqlite ? "SQLite, processor time" : "PostgreSQL, elapsed time", legs,
                rounds);
    std::printf("  %-52s %9s %9s %8s\n", "", "ms", "bare ms", "ratio");
    benchReports(hospital, rounds);
    site.tidy();
    site.program.open("frmRevCashAcct");
    Hand cash(site.program.form("frmRevCashAcct"));
    cash.date("DTPicker1", hospital.days().month);
    cash.date("DTPicker2", hospital.days().month.addDays(27));
    compare(hospital, "cash list of 60,000 receipts", rounds, [&](int) { cash.click("cmdList"); });
    compare(hospital, "posting of a day of 5,000 receipts", rounds, [&](int round) {
        LedgerDesk ledger = site.program.ledgerDesk();
        const QDate day = hospital.days().day(round);
        if (!ledger.post(cashPosting(ledger.billing().context(), day, day)))
            throw DataError("The day's receipts were not posted.");
    });
    compare(hospital, "posting of 500 invoices", rounds, [&](int round) {
        LedgerDesk ledger = site.program.ledgerDesk();
        const QDate month = hospital.days().invoices(round);
        if (!postInvoices(ledger, monthName(month.month()), QString::number(month.year()), [](int, int) {}))
            throw DataError("The invoices were not posted.");
    });
}

} // namespace orvane
