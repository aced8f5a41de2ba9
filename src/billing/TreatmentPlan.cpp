#include "billing/TreatmentPlan.h"

namespace orvane {

namespace {

QString textUnlessNull(const Recordset& row, const QString& before, const QString& column, const QString& after) {
    return row.isNull(column) ? QString() : before + row.text(column) + after;
}

QString consultation(const Recordset& row) {
    return "Clinic: " + row.text("Remarks") + "\n" + "Diagnosis: " + row.text("diagnosis") + "\n" +
           "##### Treatment by Dr. " + row.text("treatedby") + " on " + row.date("CDate").toString("dd/MM/yyyy") + " " +
           row.text("ctime") + " #####" + "\n" + textUnlessNull(row, {}, "investigate", {}) +
           textUnlessNull(row, "\n", "prescription", {}) + textUnlessNull(row, "\n", "services", "\n") +
           textUnlessNull(row, "-----BILL ADVICE---", "billRemarks", "\n") + "\n" +
           "--------------------------------------" + "\n";
}

} // namespace

QString treatmentPlan(const Recordset& consultations) {
    if (consultations.eof())
        return "N/A";
    QString plan;
    // Walked on its own, so that the caller still stands on the first row.
    for (Recordset row = consultations.detached(); !row.eof(); row.moveNext())
        plan += consultation(row);
    return plan + "END OF TREATMENT";
}

} // namespace orvane
