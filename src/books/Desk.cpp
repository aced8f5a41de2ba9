#include "books/Desk.h"

#include "books/OpenStep.h"
#include "data/rows/Transaction.h"

namespace orvane {

Desk::Desk(DataSource& data, const QString& connectionString, BookContext context)
    : m_data(data), m_connectionString(connectionString), m_context(std::move(context)) {}

Connection Desk::open() const {
    return m_data.open(m_connectionString);
}

void Desk::run(const QString& action, const std::function<bool(Books&)>& step) const {
    const OpenStep counted(m_context.openSteps);
    Connection connection = open();
    Transaction transaction(connection);
    Books books(connection, m_context);
    if (!step(books))
        return;
    if (const std::optional<SavedAction> saved = books.savedAction(action))
        transaction.commit(*saved);
    else
        transaction.commit();
}

} // namespace orvane
