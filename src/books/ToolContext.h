#pragma once

#include "books/Books.h"

namespace orvane {

/// The context in which the tools work, before anybody has signed in: their name, the database's clock, and the audit
/// trail beside `billing`, which must live as long.
BookContext toolContext(Connection& billing);

} // namespace orvane
