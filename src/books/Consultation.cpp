#include "books/Consultation.h"

#include "data/words/Money.h"

#include <cmath>

namespace orvane {

namespace {

void addConsultationItem(Books& books, const ConsultationCharge& charge, double fee) {
    Recordset item(books.connection, Sql("select *  from billAccum where 1=2"));
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

} // namespace

double consultationFee(double fullFee, const QString& purpose) {
    if (purpose == "REVIEW")
        return 0;
    if (purpose == "FOLLOW-UP")
        return double(std::llround(fullFee) / 2);
    return fullFee;
}

double postConsultationFee(Books& books, const ConsultationCharge& charge) {
    const Recordset clinic(books.connection, Sql("select * from clinicTypes where clinicID ='")
                                                 << charge.clinic << "'");
    if (clinic.eof())
        return 0;
    const double fee = consultationFee(round2(clinic.number("ConFee")), charge.purpose);
    addConsultationItem(books, charge, fee);
    return fee;
}

} // namespace orvane
