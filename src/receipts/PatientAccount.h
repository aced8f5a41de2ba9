#pragma once

#include "session/Program.h"

namespace orvane {

/// Appends one event to the patient's running account and repeats the new balance in hPatients.DebtBF, on the caller's
/// connection, usually in the caller's transaction. `amount` in naira: minus for a charge, plus for money received.
/// Writes only when `clientCode` is the private client (session.gBillTo); for any other client it does nothing. `date`
/// is not used: the row bears the shell's server date. Raises DataError.
void postPatientTran(Program& program, Connection& connection, QDate date, const QString& pno, const QString& billNo,
                     double amount, const QString& clientCode, const QString& remarks);

/// Makes Billing.AmountPaid the sum of the bill's Payments and gives that sum in naira; without a payment it changes
/// nothing and gives 0. Faults are not raised: it gives what was reached. Opens its own connection.
double refreshBillAmountPaid(Program& program, const QString& billNo);

} // namespace orvane
