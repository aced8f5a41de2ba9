#pragma once

#include "books/BillInHand.h"

namespace orvane {

/// A fee that is a percentage of a bill; it becomes an ordinary item of the visit.
struct PercentFee {
    QString item; ///< its text
    QDate date;
    double percent = 0;
};

/// Adds the professional fee on `bill` naira to the items that wait for collation, and gives it in whole kobo. Refuses
/// a processed bill.
Given<double> addProfessionalFee(Books& books, const BillInHand& visit, const PercentFee& fee, double bill);

/// The item's text of a professional fee; `percent` as it was typed.
QString professionalFeeItem(const QString& percent);

/// What the professional fees on a bill come to, in naira.
double professionalFees(Connection& connection, const QString& billNo);

/// Adds the fee of the scheme, on all items of the visit or on its drugs as the settings say, with its line and its
/// charge, and gives it in whole kobo. Refuses a processed bill.
Given<double> addNhisFee(Books& books, const BillInHand& visit, const PercentFee& fee);

} // namespace orvane
