#pragma once

#include <QString>

namespace orvane {

// Each compares a small and a large hospital of the same engine, works on copies of both, and prints a table. Raises
// DataError when a hospital cannot be worked on.

/// What the actions of a visit cost: in the large hospital against the small one, and against the bare engine.
void benchActions(const QString& smallHome, const QString& largeHome, int rounds);
/// What the numbers, views and lists ask, and whether it grows with the tables.
void benchGrowth(const QString& smallHome, const QString& largeHome, int rounds);
/// What the run of a month costs, and its reversal.
void benchMonth(const QString& smallHome, const QString& largeHome, int rounds);

/// What the ledger's reports and postings cost, on the large hospital alone with millions of legs laid into it.
void benchLedger(const QString& smallHome, const QString& largeHome, int rounds);

/// What the list reports of a month and a laboratory's result cost, on the large hospital alone.
void benchCatalogue(const QString& smallHome, const QString& largeHome, int rounds);

} // namespace orvane
