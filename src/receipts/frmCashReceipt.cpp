#include "receipts/frmCashReceipt.h"

namespace orvane {

frmCashReceipt::frmCashReceipt(Program& owner) : ReceiptScreen(owner, "frmCashReceipt") {}

void showCashReceipt(Program& program, const QString& receiptNo, qlonglong sno) {
    showReceipt(program, "frmCashReceipt", receiptNo, sno);
}

} // namespace orvane
