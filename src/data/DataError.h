#pragma once

#include <QString>
#include <exception>

namespace orvane {

/// A fault of the database or of the data layer. Screens show description() in a plain box.
class DataError : public std::exception {
public:
    explicit DataError(QString description, QString statement = {}, QString code = {})
        : m_description(std::move(description)), m_statement(std::move(statement)), m_code(std::move(code)),
          m_what(m_description.toUtf8()) {}

    /// What the user reads: the engine's own text, or the data layer's sentence.
    const QString& description() const { return m_description; }
    /// The statement as the engine got it; empty when none was sent. For logs and tests, not for the user.
    const QString& statement() const { return m_statement; }
    /// The engine's own error number; empty when the data layer itself refused.
    const QString& code() const { return m_code; }
    const char* what() const noexcept override { return m_what.constData(); }

private:
    QString m_description;
    QString m_statement;
    QString m_code;
    QByteArray m_what;
};

/// By which a transaction whose commit was not answered is looked up: the row of SavedActions that it wrote itself.
struct CommitTicket {
    QString connectionString;
    QString token; ///< empty: it wrote none, and cannot be looked up
};

/// What became of such a transaction.
enum class CommitOutcome {
    Saved,
    NotSaved,
    Unknown ///< the database cannot be reached, the transaction may still be under way there, or it has no token
};

/// The connection broke while a commit was under way, and the database could not be asked at once whether the rows were
/// saved; DataSource::outcomeOf asks again.
class CommitUnknown : public DataError {
public:
    CommitUnknown(QString description, QString statement, CommitTicket ticket)
        : DataError(std::move(description), std::move(statement)), m_ticket(std::move(ticket)) {}

    const CommitTicket& ticket() const { return m_ticket; }

private:
    CommitTicket m_ticket;
};

} // namespace orvane
