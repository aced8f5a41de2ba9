#pragma once

#include "receipts/ReceiptScreen.h"

namespace orvane {

/// "Cash Receipt" of the hospital, under the hospital's own heading whatever the form of its number.
class frmCashReceipt : public ReceiptScreen {
public:
    explicit frmCashReceipt(Program& program);

protected:
    Sql receiptsByNumber() const override { return Sql("select * from qryhBillingReceipt where receiptNo='"); }
    QString missingText() const override { return "No Receipt to Generate!"; }
    QString headingCode(const Recordset&) const override { return "00"; }
};

/// Shows the hospital receipt of this number, in place of one that is still on the screen. `sno`: its key, where
/// several bear the number; 0: the newest.
void showCashReceipt(Program& program, const QString& receiptNo, qlonglong sno = 0);

} // namespace orvane
