#pragma once

#include "books/Bill.h"
#include "session/Program.h"

namespace orvane {

/// One means of payment of a receipt and the ledger account that it goes to.
struct PaymentWay {
    QString payType;
    QString accountNo;
    double amount = 0; ///< naira
};

/// One receipt as it is written to Payments.
struct ReceiptEntry {
    QDate receiptDate;
    QString receiptNo, clinicID, billNo, pno, paymentFor;
    double amountBilled = 0; ///< naira: what was due at the moment of the receipt, not the bill's total
    double amountPaid = 0;   ///< naira; minus on a reversal
    QString amountInWord, payType, chequeNo, remarks;
    QString receivedBy; ///< an empID; empty: the user signed in
    QTime time;         ///< of the day, stored as HH:mm
};

// All of these write on the caller's connection, inside the caller's transaction, and raise DataError.

/// The row of Payments.
void addPayment(Program& program, Connection& connection, const ReceiptEntry& receipt);

/// One row of PaymentTypes for each way with an amount above zero.
void addPaymentTypes(Connection& connection, const ReceiptEntry& receipt, const QVector<PaymentWay>& ways);

/// Spreads the receipt over the lines of its bill that no receipt covers yet, in their order, as rows of
/// PaymentDetails, and marks the lines by their name as covered. A bill without such lines takes the whole as
/// "DEPOSIT_PAYMENT"; what is left after the last line becomes "BALANCE_PAYMENT".
void distributePayment(Program& program, Connection& connection, const ReceiptEntry& receipt);

} // namespace orvane
