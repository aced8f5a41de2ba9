#pragma once

#include "receipts/ReceiptPage.h"
#include "session/Program.h"

namespace orvane {

/// "Cash Receipt": the hospital receipt of session.sPrintBillNo, twice on one page. What the screen shows is what is
/// printed.
class frmCashReceipt : public Screen {
public:
    explicit frmCashReceipt(Program& program);

    void Form_Load() override;
    Layout layout() const override;
    std::optional<Page> page() const override;
    Button* defaultButton() override { return &cmdPrint; }

private:
    /// The controls of one copy.
    struct Copy {
        Copy(Form& form, const QString& fieldSuffix, const QString& headSuffix);

        Picture Image1;
        Label lblHead, lblHead2, lblHead3, lblHead4;
        TextBox txtReceiptNo, txtDate, txtRecFrom, txtSumOf, txtBeingPayFor, txtBill, txtAmount, txtBal, txtChequeNo;
        Label lblName;

        void fill(const Recordset& receipt);
        void fillHeading(const Session& session);
        Layout layout(const QString& heading) const;
        ReceiptText text(const QString& copyName) const;
    };

    void loadHeading(Connection& connection);
    void cmdPrint_Click();

    Copy customer{*this, {}, {}};
    Copy office{*this, "2", "Copy"};
    Button cmdPrint{*this, "cmdPrint", "&Print"};
};

/// Shows the receipt of this number, in place of one that is still on the screen.
void showCashReceipt(Program& program, const QString& receiptNo);

} // namespace orvane
