#pragma once

#include "support/Workstation.h"

#include <ostream>
#include <span>

namespace orvane {

/// What a user does that moves money, up to its last step, and that step.
struct MoneyAction {
    const char* name;
    void (*lay)(Workstation&);   ///< rows and earlier work, once
    void (*enter)(Workstation&); ///< in a fresh program, up to the last press
    void (*act)(Workstation&);
    /// By which the user knows that it is saved: "box TEXT", "opened FORM" or "closed FORM".
    const char* report;
    bool byItem = false; ///< saves item by item and reports nothing: what is missing follows the next time
};

void PrintTo(const MoneyAction& action, std::ostream* out);

/// Attendance, collation, items, save with and without receipt, receipt, reversal, deposit, manual receipt, adjustment,
/// discount.
std::span<const MoneyAction> moneyActions();

/// What they may change, in numbers: rows and sums of every table of money, a line each.
QString moneyFigures(Workstation& ws);

} // namespace orvane
