#pragma once

#include "books/BillSave.h"
#include "forms/Controls.h"
#include "forms/Layout.h"
#include "session/Session.h"

#include <array>

namespace orvane {

/// The frame in which a receipt is taken with the save of a bill: what it is for, and the ways in which it is paid.
class ReceiptFrame {
public:
    ReceiptFrame(Form& form, const Session& session);

    /// One means of payment.
    struct PayWay {
        PayWay(Form& form, int index, const QString& caption);
        double amount() const; ///< naira in whole kobo
        Label lblAmt;
        TextBox txtAmt;
        std::optional<ComboBox> cboBank; ///< none for cash
        Label lblAcctNo;
    };

    Layout layout() const;
    void fillBanks(Connection& connection);
    /// Takes back what was entered.
    void clear();
    /// The receipt as it is entered, of this clinic.
    ReceiptInSave entered(const BillInHand& bill, const QString& clinic, const QString& customer) const;
    double paid() const;                  ///< naira in whole kobo
    double due() const;                   ///< naira
    bool lacksCheque() const;             ///< a cheque is among the ways, but not its number
    const PayWay* wayWithoutBank() const; ///< the first way with an amount and no bank; null when there is none

    Frame fraReceipt;
    Label lblRct;
    DatePicker dtRctDate;
    ComboBox cboPayFor;
    Label lblDep;
    TextBox txtEmp;
    CheckBox chkExact;
    std::array<PayWay, 4> ways;
    TextBox txtCheque;
    ComboBox cboPay;
    TextBox txtHt;
    TextBox txtWord;

private:
    void takeWays();
    QString defaultAccount(size_t way) const;

    const Session& m_session;
    QString m_namedWays; ///< what was written into cboPay here
};

} // namespace orvane
