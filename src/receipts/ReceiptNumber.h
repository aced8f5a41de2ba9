#pragma once

#include "books/ReceiptNumber.h"
#include "session/Screen.h"

namespace orvane {

/// The five forms of a receipt number in use.
enum class ReceiptForm {
    Generated,   ///< the next number of the counter "RECEIPT2"
    ClinicCoded, ///< hospital (3) + the clinic's receipt code (2) + seven digits; the key is the consult id
    OutletCoded, ///< hospital (3) + the outlet's item code (2) + seven digits; the key is the consult id
    Paper,       ///< "SN" and the number typed from the paper receipt; the key is that number
    Counter      ///< the next value of the counter "Receipt" of IDgen; storeReceiptCounter writes it back
};

struct FormedNumber {
    QString number;     ///< empty: none could be formed, and `refusal` says why
    QString refusal;    ///< the message for the user
    QString clinicType; ///< coded forms: the clinic or outlet of the visit
    QString clinicID;   ///< clinic-coded form
};

/// Forms the next number. Whoever saves under it does so in the transaction of `connection`, whose gate keeps two
/// cashiers from forming the same one. Raises DataError.
FormedNumber formReceiptNumber(Program& program, Connection& connection, ReceiptForm form, const QString& key = {});

/// Writes the number of the form Counter back to IDgen. Raises DataError.
void storeReceiptCounter(Connection& connection, const QString& number);

} // namespace orvane
