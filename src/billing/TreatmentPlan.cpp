#include "billing/TreatmentPlan.h"

#include <QRegularExpression>

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

QString prescriptions(Connection& connection, const QString& consultID) {
    QStringList found;
    for (Recordset rows(connection,
                        Sql("select consultid,prescription,treatedby,policytype from qryhconsulting where consultid='")
                            << consultID << "'");
         !rows.eof(); rows.moveNext())
        found << "Policy/HMO Type: " + rows.text("policytype") + "\n" + rows.text("prescription") +
                     "\nTreated by Dr. " + rows.text("treatedby");
    return found.join("\n\n");
}

QString treatmentPlans(Connection& connection, const QString& consultID) {
    QStringList found;
    for (Recordset rows(connection, Sql("select consultid,treatplan from qryhconsulting where consultid='")
                                        << consultID << "'");
         !rows.eof(); rows.moveNext())
        found << rows.text("treatplan");
    return found.join("\n\n");
}

QString diagnosesInOneLine(Connection& connection, const QString& consultID) {
    static const QRegularExpression lineEnd("\r\n|\r|\n");
    QStringList found;
    for (Recordset rows(connection, Sql("select Diagnosis from hconsulting where consultid='") << consultID << "'");
         !rows.eof(); rows.moveNext())
        if (const QString diagnosis = rows.text("Diagnosis"); !diagnosis.trimmed().isEmpty())
            found << diagnosis;
    return found.join('\n').replace(lineEnd, ";");
}

QString lastDiagnosis(Connection& connection, const QString& pno) {
    Recordset rows(connection, Sql("select CDate,diagnosis from qryhconsulting where pno='")
                                   << pno << "' order by CDate desc");
    if (!rows.eof())
        rows.moveNext();
    return rows.eof() ? QString() : rows.date("CDate").toString("dd/MM/yyyy") + "\n" + rows.text("diagnosis");
}

} // namespace orvane
