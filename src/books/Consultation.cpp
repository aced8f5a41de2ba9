#include "books/Consultation.h"

#include "books/BillItem.h"
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

double postConsultationFee(Books& books, const ConsultationCharge& charge) {
    const Recordset clinic(books.connection, Sql("select * from clinicTypes where clinicID ='")
                                                 << charge.clinic << "'");
    if (clinic.eof())
        return 0;
    const double fee = consultationFee(round2(clinic.number("ConFee")), charge.purpose);
    // Who pays it, and whether a contract covers it, the collation settles.
    addItem(books, {.date = charge.date,
                    .consultID = charge.consultID,
                    .pno = charge.pno,
                    .name = "CONSULTATION",
                    .price = fee,
                    .subTotal = fee,
                    .billType = "SERVICE",
                    .capitated = {}});
    return fee;
}

} // namespace orvane
