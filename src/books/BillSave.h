#pragma once

#include "books/BillInHand.h"
#include "books/Payment.h"

namespace orvane {

/// A receipt taken with the save of a bill.
struct ReceiptInSave {
    Receipt row;
    QVector<WayOfPayment> ways;
    QString customer; ///< as the audit trail names him
};

/// A collated bill as its officer saves it.
struct BillToSave {
    BillInHand visit;
    QDate date;
    QString diagnosis;
    QDate admitted, discharged; ///< of an in-patient; empty: none, or not yet
    std::optional<ReceiptInSave> receipt;
};

/// Saves the visit's diagnosis and dates, bills what still waits, brings the Billing row in step with its lines, writes
/// the receipt and settles the bill's date. A bill without lines keeps the amount that it has, such as that of a paper
/// receipt, and "XXX" for its words: the mark of a capitated or paper bill. Refuses a processed bill and a visit that
/// was changed since it was read.
Given<Saved> saveBill(Books& books, const BillToSave& bill);

} // namespace orvane
