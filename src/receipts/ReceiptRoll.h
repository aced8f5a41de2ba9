#pragma once

#include "receipts/ReceiptPage.h"

#include <QVector>

namespace orvane {

/// What a receipt says on a roll beside the particulars of every receipt; every text as it is printed.
struct RollText {
    QString patientNo, billNo;
    struct Line {
        QString item, amount;
    };
    QVector<Line> lines; ///< what was paid for
    QString credit;      ///< naira, what was paid too much, in place of a balance; empty: nothing
};

/// One copy of a receipt on paper of 80 mm, as long as what it says.
Page receiptRoll(const ReceiptText& receipt, const RollText& roll);

} // namespace orvane
