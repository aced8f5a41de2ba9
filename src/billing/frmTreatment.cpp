#include "billing/frmTreatment.h"

#include "billing/TreatmentPlan.h"

namespace orvane {

frmTreatment::frmTreatment(Program& owner) : Screen(owner, "frmTreatment", "Treatment For") {
    txtPresc.multiline().setLocked(true);
}

Layout frmTreatment::layout() const {
    using namespace orvane::layout;
    return column({cell(Label5), growing(cell(txtPresc, 80)), buttons({}, {&CancelButton})});
}

void frmTreatment::Form_Load() {
    Connection connection = program.openBilling();
    const Recordset visit(
        connection,
        Sql("select distinct  "
            "FullName,RetainName,ClientCatID,retainID,RetainCode,cdate,cTime,ref,BillRemarks,company,prescription,"
            "Diagnosis,Investigate,services,consultID,clientcat,pno,remarks,treatedby,Age from "
            "vwhConsultingDetailsForBillingAlt "
            "where consultID='")
            << session.gConsultID << "' order by cdate desc");
    txtPresc.setText(treatmentPlan(visit));
    if (!visit.eof())
        Label5.setText(visit.text("FullName") + ": " + visit.text("RetainName") + " [" + visit.text("ClientCatID") +
                       "]");
}

} // namespace orvane
