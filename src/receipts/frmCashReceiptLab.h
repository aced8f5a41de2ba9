#pragma once

#include "receipts/ReceiptScreen.h"

namespace orvane {

/// "Cash Receipt" of a service outlet, under the heading of the outlet whose code stands in the receipt's number.
class frmCashReceiptLab : public ReceiptScreen {
public:
    explicit frmCashReceiptLab(Program& program);

protected:
    Sql receiptsByNumber() const override;
    QString missingText() const override { return "No Receipt to Display"; }
    QString headingCode(const Recordset& receipt) const override;
};

/// Shows the outlet receipt of this number, in place of one that is still on the screen.
void showOutletReceipt(Program& program, const QString& receiptNo);

} // namespace orvane
