#pragma once

#include "books/Given.h"
#include "data/rows/Connection.h"
#include "data/rows/Recordset.h"
#include "data/rows/Transaction.h"

#include <QDate>
#include <QMap>
#include <functional>

namespace orvane {

/// The name under which the tools work.
inline const QString toolUser = QStringLiteral("orvane-db");

/// Who acts and from where.
struct Actor {
    QString user;        ///< the name he signed in with
    QString empID;       ///< his number among the employees
    QString workstation; ///< the computer's name
};

/// The few settings that rules of money read, as the session holds them.
struct BookSettings {
    QString hospital;      ///< the three characters in front of its numbers
    QString privateClient; ///< retainCode of the private account, whose charges stand in the patients' running accounts
    QString privateTariff; ///< retainID of the private price template
    QString suspenseAccount;                 ///< ledger account of money that no line takes
    QString suspenseRevenue;                 ///< and its revenue type
    QString nhisFeeBase;                     ///< what the NHIS fee is a percentage of: "ALL", empty or "DRUG"
    QString costCenter = {};                 ///< that every leg of the ledger names
    QMap<QString, QString> wayAccounts = {}; ///< ledger account of a way of payment, by its capital name
    QString salesAccount = {};               ///< ledger account that the clients' invoices are credited to
};

/// One row of the audit trail.
struct AuditEntry {
    QString action;
    QString document; ///< the number of the bill or receipt
    QString remarks;
    QString user = {};  ///< empty: by the name that he signed in with
    QString token = {}; ///< of the save that it belongs to
};

/// What the work is done with, the same for all that a user does at one moment.
struct BookContext {
    Actor actor;
    BookSettings settings;
    QDate today; ///< of the shell's clock, which follows the server's
    QTime now;
    std::function<void(const AuditEntry&)> audit; ///< on a connection of its own, so that it survives a rollback
    int* openSteps = nullptr;                     ///< counted up while a step runs; for tests
};

/// The work in hand: a connection inside its transaction, the clock, who acts, and the settings that rules read.
/// Every writer and rule of the books takes one; all of them raise DataError, which rolls the transaction back.
class Books {
public:
    Books(Connection& open, const BookContext& context) : connection(open), m_context(context), m_token(freshToken()) {}

    Connection& connection;
    const Actor& actor() const { return m_context.actor; }
    const BookSettings& settings() const { return m_context.settings; }
    QDate today() const { return m_context.today; }
    QTime now() const { return m_context.now; }

    void audit(AuditEntry entry);
    /// So many rows of the audit trail follow once this save is in; they name its token.
    void expectTrail(int rows) { m_trailRows += rows; }
    /// What the save adds to the rows of money, or takes from them; see SavedPart.
    void note(const SavedPart& part);
    /// What this save comes to, for its row in SavedActions: the number of its bill or receipt, and naira.
    void record(const QString& document, double amount);

    const QString& document() const { return m_document; }
    double amount() const { return m_amount; }
    const QString& token() const { return m_token; }
    /// The row of SavedActions under this name; nothing for a save that did nothing which is to be remembered.
    std::optional<SavedAction> savedAction(const QString& name) const;

private:
    const BookContext& m_context;
    QString m_document;
    double m_amount = 0;
    QString m_token;
    int m_trailRows = 0;
    QVector<SavedPart> m_parts; ///< one a kind and document
};

/// For a column that is null where there is nothing to say.
QVariant nullIfEmpty(const QString& text);

} // namespace orvane
