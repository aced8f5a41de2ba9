#include "receipts/frmCashReceipt.h"

namespace orvane {

frmCashReceipt::frmCashReceipt(Program& owner) : ReceiptScreen(owner, "frmCashReceipt") {}

Recordset frmCashReceipt::readReceipt(Connection& connection) const {
    return Recordset(connection, Sql("select * from qryhBillingReceipt where receiptNo='")
                                     << session.sPrintBillNo << "'");
}

void showCashReceipt(Program& program, const QString& receiptNo) {
    showReceipt(program, "frmCashReceipt", receiptNo);
}

} // namespace orvane
