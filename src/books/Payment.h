#pragma once

#include "books/Receipt.h"

namespace orvane {

/// One means of payment of a receipt and the ledger account that it goes to.
struct WayOfPayment {
    QString payType, accountNo;
    double amount = 0; ///< naira
};

/// One row of PaymentTypes for each way with an amount above zero.
void addPaymentTypes(Books& books, const Receipt& receipt, const QVector<WayOfPayment>& ways);

/// Spreads the receipt over the lines of its bill that no receipt covers yet, in their order, as rows of
/// PaymentDetails, and marks the lines by their name as covered. A bill without such lines takes the whole as
/// "DEPOSIT_PAYMENT"; what is left after the last line becomes "BALANCE_PAYMENT".
void distributePayment(Books& books, const Receipt& receipt);

} // namespace orvane
