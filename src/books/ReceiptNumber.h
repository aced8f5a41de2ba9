#pragma once

#include "books/Books.h"

namespace orvane {

/// A receipt's number, and what was read to form it.
struct ReceiptNumber {
    QString number;
    QString clinicType = {}; ///< coded forms: the clinic or outlet of the visit
    QString clinicID = {};   ///< clinic-coded form
};

// Whoever saves under a number forms it inside the transaction, whose gate keeps two cashiers from forming the same
// one; formed outside it is only shown. All raise DataError.

/// The next number of the counter "RECEIPT2".
Given<ReceiptNumber> generatedReceiptNumber(Connection& connection);
/// Hospital (3), the receipt code of the visit's clinic (2), seven digits.
Given<ReceiptNumber> clinicReceiptNumber(Connection& connection, const QString& hospital, const QString& consultID);
/// Hospital (3), the item code of the visit's outlet (2), seven digits.
Given<ReceiptNumber> outletReceiptNumber(Connection& connection, const QString& hospital, const QString& consultID);
/// "SN" and the number on the paper receipt.
QString paperReceiptNumber(const QString& typed);

/// The last `width` digits of the number behind `last`, zero-padded; null or below 1 counts as 0. High digits beyond
/// the width are lost.
QString nextDigits(qlonglong last, int width);

} // namespace orvane
