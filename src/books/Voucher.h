#pragma once

#include "books/Books.h"

namespace orvane {

/// One item of a voucher as it is paid.
struct VoucherItem {
    QString expID; ///< of the approved item
    QString name, description;
    double qty = 0, price = 0; ///< units, naira a unit
    double amount = 0;         ///< naira, in whole kobo: what is paid, whatever a shown price was rounded to
    QString debit, credit;     ///< accounts of the ledger: the expense, and what pays it
    QString chequeNo;          ///< empty: paid in cash
    QDate valueDate;           ///< of the cheque
    QString itemCode;
};

/// The payment of a voucher.
struct VoucherPayment {
    QString voucher, recipient, description;
    QDate date;
    QTime time; ///< the workstation's
    QVector<VoucherItem> items;

    double total() const; ///< naira
};

/// In words how an item was paid.
QString paymentLine(const QString& voucher, const VoucherItem& item);

/// Pays an approved voucher: adds the payment and its items, none of them posted yet, and marks voucher and items as
/// paid and done. A voucher is paid once, whatever of its amount the payment comes to: refuses one that was paid.
Given<Saved> payVoucher(Books& books, const VoucherPayment& payment);

/// Flags an approved item as entered in the journal of the other accounting system.
void flagInJournal(Books& books, qlonglong expID);

} // namespace orvane
