#pragma once

#include "books/Receipt.h"

#include <QMap>

namespace orvane {

/// One means of payment of a receipt and the ledger account that it goes to.
struct WayOfPayment {
    QString payType, accountNo;
    double amount = 0; ///< naira
};

/// One row of PaymentTypes for each way with an amount above zero.
void addPaymentTypes(Books& books, const Receipt& receipt, const QVector<WayOfPayment>& ways);

/// One row of PaymentTypes, of any amount.
void addPaymentType(Books& books, const Receipt& receipt, const WayOfPayment& way);

/// What came in on the day by each way of payment, in naira by its capital name: a receipt split over several ways
/// counts by its shares, any other by its pay type, a reversal against it. Ways that come to nothing are left out.
QMap<QString, double> incomeByWay(Connection& connection, QDate day);

/// Spreads the receipt over the lines of its bill that no receipt covers yet, in their order, as rows of
/// PaymentDetails, and marks the lines by their name as covered. A bill without such lines takes the whole as
/// "DEPOSIT_PAYMENT"; what is left after the last line becomes "BALANCE_PAYMENT".
void distributePayment(Books& books, const Receipt& receipt);

/// Adds money of the receipt that no line takes, of the suspense account, as a row of PaymentDetails of this item.
void addSummaryShare(Books& books, const Receipt& receipt, const QString& item, double amount);

/// Takes back in PaymentDetails, under the number of the reversal, what the reversed receipt's rows had spread. Gives
/// what they come to, below nothing, in naira; null: there are none.
std::optional<double> takeBackShares(Books& books, const Receipt& reversal, const QString& reversedNo);

} // namespace orvane
