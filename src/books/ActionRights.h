#pragma once

#include "books/Books.h"
#include "books/Refusal.h"

namespace orvane {

/// Whether the user of the books may save under this name, as the database says now: the menu that opens the screens of
/// the Accounts was asked when the program started, and the right may have been taken away since. The tools may.
std::optional<Refusal> missingRight(Books& books, const QString& action);

} // namespace orvane
