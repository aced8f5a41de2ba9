#pragma once

#include "data/rows/Connection.h"

#include <QDate>

namespace orvane {

/// What a visit's consultation charge is worked out from.
struct ConsultationCharge {
    QString clinic;  ///< clinicTypes.clinicID
    QString purpose; ///< "CONSULTATION", "REVIEW", "FOLLOW-UP" or empty
    QString pno;
    QString consultID;
    QDate date; ///< the server's
};

/// What a visit of this purpose costs, in naira: a follow-up half of the whole-number fee, a review nothing, anything
/// else the full fee.
double consultationFee(double fullFee, const QString& purpose);

/// Adds the "CONSULTATION" row of a visit to BillAccum, also for a fee of 0; a clinic without a fee row charges
/// nothing. Runs in the caller's transaction. Raises DataError.
void postConsultationFee(Connection& connection, const ConsultationCharge& charge);

} // namespace orvane
