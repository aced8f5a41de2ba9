#include "billing/frmBillPatAdjust.h"

namespace orvane {

/// The items are of the day of the visit, so that they fall into its month.
void frmBillPatAdjust::Form_Load() {
    ItemCapture::Form_Load();
    Connection connection = program.openBilling();
    const Recordset visit(connection, Sql("select recdate from qryhVisitsForAttend where consultid ='")
                                          << session.gConsultID << "'");
    dtDate.setDate(visit.eof() ? QDate() : visit.date("recdate"));
}

} // namespace orvane
