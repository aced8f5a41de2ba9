#pragma once

#include "books/Books.h"

namespace orvane {

/// A row of Billing; what is not named starts at 0 or empty.
struct Bill {
    QDate date; ///< also gives the billing month and year
    QString billNo, pno;
    QString clientID;                                     ///< the client's retainID
    double amountBilled = 0, amountPaid = 0, profFee = 0; ///< naira; the fee is what was calculated for the bill
    QString words = {};                                   ///< the amount billed in upper-case words
    std::optional<double> broughtForward = {};            ///< naira, the patient's balance; none: null
    QString diagnosis = {};
    std::optional<QString> billType = {};
    QDate admitted = {}, discharged = {};
    bool isPaid = false;
};

/// The bill's row as it stands; none without one.
std::optional<Bill> readBill(Connection& connection, const QString& billNo);

/// Adds the row; the caller has seen, behind the gate, that the bill has none.
void addBill(Books& books, const Bill& bill);

/// Writes all of it over the row that the caller has read behind the gate.
void changeBill(Books& books, const Bill& bill);

/// Adds what `stated` bills and says was paid to the bill's row, in naira, writes its other columns over it, and works
/// out isPaid; a bill without its row gets it. Gives the new total. Refuses a processed bill.
Given<double> enlargeBill(Books& books, const Bill& stated);

/// Adds to what was paid on the bill, in naira, minus for a reversal, and works out isPaid afresh. A bill without its
/// row is left so.
void payBill(Books& books, const QString& billNo, double amount);

bool hasBill(Connection& connection, const QString& billNo);

/// Whether a monthly batch holds the bill, which freezes it. Asked inside the transaction it stays so.
bool isBillProcessed(Connection& connection, const QString& billNo);

/// What the lines of a bill come to, in whole kobo; none without a line.
std::optional<double> billDetailsTotal(Connection& connection, const QString& billNo);

/// What the bill's row says that it bills: `amount` naira, and its words.
void setBillAmount(Books& books, const QString& billNo, double amount);

/// A bill of the month's run.
struct BillToProcess {
    QString billNo;
    std::optional<double> total; ///< naira, of its lines; none where the bill has no visit
};

/// Takes each bill's amount from its lines once more and puts it on its client's invoice, which freezes it.
void processBills(Books& books, const QString& invNo, const QVector<BillToProcess>& bills);

/// Takes all bills off an invoice; they can be changed again. Their number of an invoice is then the text 0.
void releaseBills(Books& books, const QString& invNo);

/// Amount and words of the bill's row as its lines now come to; without a line they stay. Gives that amount.
std::optional<double> refreshBillTotal(Books& books, const QString& billNo);

/// The same after a change of the lines: without a line the amount becomes 0; one that was 0 before keeps its words,
/// which may say that the bill is capitated.
void refreshBillFromLines(Books& books, const QString& billNo);

/// What the bill's Payments come to, in naira; none without a payment.
std::optional<double> sumOfPayments(Connection& connection, const QString& billNo);

/// Makes Billing.AmountPaid the sum of the bill's Payments and gives that sum in naira; without a payment it changes
/// nothing and gives 0.
double refreshBillAmountPaid(Books& books, const QString& billNo);

/// Billing.isPaid: 1 when what was paid covers what was billed, both in naira and compared to the kobo, else 0.
int isPaidFlag(double paid, double billed);

} // namespace orvane
