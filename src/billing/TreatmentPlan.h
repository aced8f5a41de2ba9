#pragma once

#include "data/rows/Recordset.h"

namespace orvane {

/// What the doctors wrote about a visit, one block a consultation in the order of the rows of
/// vwhConsultingDetailsForBillingAlt; "N/A" without a row.
QString treatmentPlan(const Recordset& consultations);

/// The prescriptions of a visit with their doctors, and its treatment plans, a block a consultation; empty without one.
QString prescriptions(Connection& connection, const QString& consultID);
QString treatmentPlans(Connection& connection, const QString& consultID);

/// The diagnoses of the visit's consultations in one line, ";" between them.
QString diagnosesInOneLine(Connection& connection, const QString& consultID);

/// The patient's diagnosis before the newest one, with its date; empty without one.
QString lastDiagnosis(Connection& connection, const QString& pno);

} // namespace orvane
