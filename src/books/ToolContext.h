#pragma once

#include "books/Books.h"

namespace orvane {

/// The context in which the tools work, before anybody has signed in: their name, the database's clock, and the audit
/// trail beside `billing`, which must live as long.
BookContext toolContext(Connection& billing);

/// A row in SavedActions and one in the audit trail for what a tool did in the accounting database.
void saveToolWork(Connection& billing, const QString& action, const QString& document);

} // namespace orvane
