#pragma once

#include "receipts/ReceiptLines.h"
#include "receipts/ReceiptRoll.h"
#include "session/Screen.h"

namespace orvane {

/// "Cash Receipt": the receipt of session.sPrintBillNo, twice on one page. Two paper receipts may bear one number:
/// session.lWorkSNo is then the key of the one that was picked. What the screen shows is what is printed.
/// The two receipt screens differ in where they find the receipt and in whose heading it bears. Its paper is A4 or a
/// roll, as orvane.ini says until its user chooses; his choice holds for the receipts that follow.
class ReceiptScreen : public Screen {
public:
    ReceiptScreen(Program& program, const QString& name);

    void Form_Load() override;
    Layout layout() const override;
    std::optional<Page> page() const override;
    Button* defaultButton() override { return &cmdPrint; }
    /// What the receipt is called as a file: its number and its patient.
    QString documentName() const override;

protected:
    virtual Sql receiptsByNumber() const = 0; ///< up to the number, which comes behind it
    virtual QString missingText() const = 0;  ///< what to say when there is no such receipt
    /// The row of appSettings with the heading; empty: the receipt names none.
    virtual QString headingCode(const Recordset& receipt) const = 0;

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

    Recordset readReceipt(Connection& connection) const;
    void refuse(const QString& reason);
    void loadHeading(Connection& connection, const QString& code);
    void choosePaper(bool roll);
    RollText rollText() const;
    void cmdPrint_Click();

    Copy customer{*this, {}, {}};
    Copy office{*this, "2", "Copy"};
    OptionButton optA4{*this, "optA4", "A4, two copies"};
    OptionButton optRoll{*this, "optRoll", "80 mm roll"};
    Button cmdPrint{*this, "cmdPrint", "&Print", &ReceiptScreen::cmdPrint_Click};

    PaidReceipt m_paid;
    QString m_patientNo;
    QVector<PaidLine> m_lines; ///< read when a roll is asked for
};

/// Shows the receipt of this number on the receipt screen `form`, in place of one that is still on the screen. `sno`:
/// its key, where several bear the number; 0: the newest.
void showReceipt(Program& program, const QString& form, const QString& receiptNo, qlonglong sno = 0);

} // namespace orvane
