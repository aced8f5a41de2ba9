#pragma once

#include "books/Books.h"
#include "books/OpenStep.h"

#include <QHash>
#include <QSet>
#include <optional>

namespace orvane {

/// One leg of a transaction of the ledger.
struct LedgerLeg {
    QDate date;
    QString account;
    double amount = 0; ///< naira; a debit is plus, a credit minus
    QString description;
};

/// A row of TranFromAppsTrail: what the ledger knows of the source of a transaction.
struct LedgerTrail {
    QDate date;
    QString source; ///< the number of the invoice or voucher, or the days
    QString kind;   ///< "RECEIPT", "RECEIVABLE", "EXPENSE" or "PAYABLE"
};

/// The ledger in hand: a connection to the accounting database inside the transaction of one run.
class Ledger {
public:
    Ledger(Connection& open, const BookContext& context);

    /// Draws the id that the legs from here on share.
    void fetchTranID();
    const QString& tranID() const { return m_tranID; }

    /// Writes one leg: in the first open period that ends on its day or later, to its account, or to the suspense
    /// account where the chart does not have it. Where no period is open for its day the next one is opened; where that
    /// does not end behind the day, the leg falls in the period of the leg before it. A description longer than its
    /// column ends in "...".
    void postToLedger(const LedgerLeg& leg);

    /// What the legs of this id come to, in naira, in the table of the last one's period; none when it has none there.
    std::optional<double> balance() const;

    void addTrail(const LedgerTrail& trail);

private:
    QString periodOf(QDate date);
    QString lookUpPeriod(QDate date);
    QString known(const QString& account);

    const OpenStep m_counted;
    Connection& m_connection;
    const BookContext& m_context;
    QString m_currentPeriod; ///< of the database, which may have moved on since the program was started
    QString m_tranID, m_period;
    QHash<QDate, QString> m_periods;    ///< looked up so far
    QHash<QString, QString> m_accounts; ///< where the legs of an account go, likewise
};

/// Why the legs of the ledger's id may not stay: there are none where the last one's period is looked up (NoLegPosted),
/// or they do not make exactly 0 there (NotBalanced).
std::optional<Refusal> imbalance(const Ledger& ledger);

/// Whether the ledger's trail bears the transaction.
bool isPosted(Connection& accounting, const QString& tranID);
/// The sources, such as invoice numbers, that the ledger's trail bears under this kind.
QSet<QString> postedSources(Connection& accounting, const QString& kind);
/// The legs of all transactions that the trail has for the source under this kind.
qlonglong countLegs(Connection& accounting, const QString& source, const QString& kind);

} // namespace orvane
