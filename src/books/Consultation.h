#pragma once

#include "books/Books.h"

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

/// Charges a visit with its consultation, also with a fee of 0, and gives the fee in naira; a clinic without a row of
/// its own charges nothing.
double postConsultationFee(Books& books, const ConsultationCharge& charge);

} // namespace orvane
