#pragma once

#include "forms/Page.h"

#include <QStringList>

namespace orvane {

/// What one copy of a receipt says; every text as it is printed.
struct ReceiptText {
    QString copyName;     ///< whose copy it is
    QStringList headings; ///< four lines
    QString picture;      ///< a file; empty: none
    QString receiptNo, date, receivedFrom, sumOf, paymentFor, payType, receivedBy;
    QString bill, amount, balance; ///< naira, two decimals
};

/// An A4 page with both copies of a receipt and the line between them to cut along.
Page receiptPage(const ReceiptText& upper, const ReceiptText& lower);

} // namespace orvane
