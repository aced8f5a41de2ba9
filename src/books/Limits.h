#pragma once

#include "books/Books.h"

namespace orvane {

// What is refused whatever a screen lets its user type. A fault of the keyboard makes such entries, and fraud.

/// WrongYear for a day before 1990 or after the next year: a document bears none of these. An empty day is no fault
/// here.
std::optional<Refusal> whyNotDated(const Books& books, QDate day);

/// LessThanNothing for an item of a negative amount, in naira, unless it is a carried credit, or its line was negative
/// before, as a discount is.
std::optional<Refusal> whyNotCharged(const QString& item, double amount, double before = 0);

} // namespace orvane
