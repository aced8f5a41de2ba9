#pragma once

#include "books/BillItem.h"
#include "books/PatientAccount.h"

#include <functional>

namespace orvane {

/// A row of BillingDetails: one line of a bill.
struct BillLine {
    qlonglong sno = 0; ///< number of its item; 0: it has none and takes its own key below zero, which no item has
    QString billNo;
    QDate date;
    QString pno;
    QString name;
    double price = 0, qty = 1, subTotal = 0; ///< naira a unit, units, naira
    QString billType;
    QVariant conID = {};
    QString dosage = {};
    QString coyName = {}, billTo = {}; ///< the visit's client; code of the client who pays the line
    QString revType = {}, capitated = {}, billBy = {};
    QString remarks = {}; ///< of its charge on the running account; empty: its name
};

/// What the patient's running account bears for a line of this name, payer and amount, in naira: its amount where the
/// private client pays it. A carried balance is in the account already.
double chargeOf(const Books& books, const QString& name, const QString& billTo, double subTotal);

/// What the running account bears for a row of BillingDetails, in naira: its Charged, and where that is null what its
/// payer says.
double chargedFor(const Books& books, const Recordset& line);

/// Adds the lines in their order, all of one patient, and charges his running account for them.
void addLines(Books& books, const QVector<BillLine>& lines);

/// How a row of BillingDetails reads from now on; what is not given stays.
struct LineChange {
    QString name;
    double price = 0, qty = 0, subTotal = 0;
    QString billTo;
    std::optional<QString> revType = {}, billType = {}, billHead = {};
};

/// Changes the line that `row` (all columns) stands on. What it had charged goes back to the account that bore it, and
/// its new payer is charged, as one entry under `remarks`; a change of neither amount nor payer leaves the charge
/// where it is.
void changeLine(Books& books, Recordset& row, const LineChange& now, const QString& pno, const QString& remarks);

/// Names another payer and nothing else: the charge stays where it is.
void changePayer(Books& books, Recordset& row, const QString& billTo);

/// Moves the line that `row` (all columns) stands on to another bill, whose client pays it, and gives how its charge
/// goes with it, for postPatientTrans: back to whoever bore it, and on to the new payer. A line without an item is
/// charged to nobody.
QVector<AccountEntry> moveLine(Books& books, const Recordset& row, const NewPayer& to, const QString& pno);

/// Writes down what each line of the bill has charged so far, where that is not known yet. Whoever changes the payer of
/// many lines by one statement does this first, or their charges would seem to have moved.
void keepCharges(Books& books, const QString& billNo);

/// Runs what deletes lines of the bill, and notes how many and how much it was.
void removeLines(Books& books, const QString& billNo, const std::function<void()>& removal);

/// A line at no charge is none.
void removeEmptyLines(Books& books, const QString& billNo);

} // namespace orvane
