#pragma once

#include <QString>

namespace orvane {

/// An amount of naira in upper-case words, as bills, receipts and invoices store it.
QString getValInWord(double amount);

} // namespace orvane
