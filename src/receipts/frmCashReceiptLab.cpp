#include "receipts/frmCashReceiptLab.h"

namespace orvane {

frmCashReceiptLab::frmCashReceiptLab(Program& owner) : ReceiptScreen(owner, "frmCashReceiptLab") {}

Sql frmCashReceiptLab::receiptsByNumber() const {
    if (session.bReceiptHeadLoaded)
        return Sql("select * from qryhBillingReceipt where receiptNo='");
    return Sql("select * from qryhBillingReceiptPublic where receiptNo='");
}

/// The outlet's two characters stand behind the hospital's three; a number of the older form begins with them.
QString frmCashReceiptLab::headingCode(const Recordset& receipt) const {
    const QString number = receipt.text("ReceiptNo");
    return (session.bReceiptHeadLoaded ? number.left(2) : number.mid(3, 2)).trimmed();
}

void showOutletReceipt(Program& program, const QString& receiptNo) {
    showReceipt(program, "frmCashReceiptLab", receiptNo);
}

} // namespace orvane
