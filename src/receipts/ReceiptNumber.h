#pragma once

#include "session/Program.h"

namespace orvane {

/// The five forms of a receipt number in use.
enum class ReceiptForm {
    Generated,   ///< the next number of the counter "RECEIPT2"
    ClinicCoded, ///< hospital (3) + the clinic's receipt code (2) + seven digits; the key is the consult id
    OutletCoded, ///< hospital (3) + the outlet's item code (2) + seven digits; the key is the consult id
    Paper,       ///< "SN" and the number typed from the paper receipt; the key is that number
    Counter      ///< the next value of the counter "Receipt" of IDgen; storeReceiptCounter writes it back
};

struct ReceiptNumber {
    QString number;     ///< empty: none could be formed, and `refusal` says why
    QString refusal;    ///< the message for the user
    QString clinicType; ///< coded forms: the clinic or outlet of the visit
    QString clinicID;   ///< clinic-coded form
};

/// Forms the next number. Whoever saves under it does so in the transaction of `connection`, whose gate keeps two
/// cashiers from forming the same one. Raises DataError.
ReceiptNumber formReceiptNumber(Program& program, Connection& connection, ReceiptForm form, const QString& key = {});

/// Writes the number of the form Counter back to IDgen. Raises DataError.
void storeReceiptCounter(Connection& connection, const QString& number);

/// The last `width` digits of the number behind `last`, zero-padded; null or below 1 counts as 0. High digits beyond
/// the width are lost.
QString nextDigits(qlonglong last, int width);

} // namespace orvane
