#pragma once

#include "session/Program.h"

#include <optional>

namespace orvane {

/// A new row of Billing; what is not named starts at 0 or empty.
struct NewBill {
    QDate date;
    QString billNo;
    QString pno;
    QString clientID;  ///< the client's retainID
    double amount = 0; ///< naira
    QString words;     ///< the amount in upper-case words
};

/// Adds it; the caller has seen that the bill has none. Runs in the caller's transaction. Raises DataError.
void addBillingRow(Connection& connection, const NewBill& bill);

/// The bill's total as its details sum up, in naira; empty when it has no details. Raises DataError.
std::optional<double> billDetailsTotal(Connection& connection, const QString& billNo);

/// The amount in upper-case words; session.dBillTotal and session.sAmountWords keep amount and words.
QString getValInWord(Program& program, double amount);

/// Writes amount (naira) and words into the bill's row. Raises DataError.
void updateBillAmount(Connection& connection, const QString& billNo, double amount, const QString& words);

} // namespace orvane
