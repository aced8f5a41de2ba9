#include "books/Limits.h"

#include "books/BillItem.h"

namespace orvane {

namespace {

constexpr int firstYear = 1990;

} // namespace

std::optional<Refusal> whyNotDated(const Books& books, QDate day) {
    const bool fits = !day.isValid() || (day.year() >= firstYear && day.year() <= books.today().year() + 1);
    return fits ? std::nullopt : std::optional(Refusal::WrongYear);
}

std::optional<Refusal> whyNotCharged(const QString& item, double amount, double before) {
    const bool fits = amount >= 0 || before < 0 || isCarriedBalance(item);
    return fits ? std::nullopt : std::optional(Refusal::LessThanNothing);
}

} // namespace orvane
