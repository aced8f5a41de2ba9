#include "attendance/ConsultationFee.h"

#include "data/rows/Recordset.h"
#include "data/words/Money.h"

#include <cmath>

namespace orvane {

double consultationFee(double fullFee, const QString& purpose) {
    if (purpose == "REVIEW")
        return 0;
    if (purpose == "FOLLOW-UP")
        return double(std::llround(fullFee) / 2);
    return fullFee;
}

void postConsultationFee(Connection& connection, const ConsultationCharge& charge) {
    const Recordset clinic(connection, Sql("select * from clinicTypes where clinicID ='") << charge.clinic << "'");
    if (clinic.eof())
        return;
    const double fee = consultationFee(round2(clinic.number("ConFee")), charge.purpose);
    Recordset item(connection, Sql("select *  from billAccum where 1=2"));
    item.addNew();
    item.set("dtDate", charge.date);
    item.set("drgName", "CONSULTATION");
    item.set("Price", fee);
    item.set("Qty", 1);
    item.set("SubTotal", fee);
    item.set("PNo", charge.pno);
    item.set("consultID", charge.consultID);
    item.set("billType", "SERVICE");
    item.update();
}

} // namespace orvane
