#include "books/VisitFacts.h"

namespace orvane {

QString clinicOfVisit(Connection& connection, const QString& consultID) {
    const Recordset visit(connection, Sql("select clinicType from qryhVisitsForAttend where consultID ='")
                                          << consultID << "'");
    return visit.eof() ? QString() : visit.text("clinicType");
}

QString diagnosisOfVisit(Connection& connection, const QString& consultID) {
    QStringList diagnoses;
    for (Recordset visit(connection, Sql("select consultID,diagnosis from hconsulting where consultID='")
                                         << consultID << "'");
         !visit.eof(); visit.moveNext())
        diagnoses << visit.text("diagnosis");
    return diagnoses.join(" ; ");
}

} // namespace orvane
