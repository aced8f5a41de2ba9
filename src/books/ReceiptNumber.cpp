#include "books/ReceiptNumber.h"

#include <algorithm>

namespace orvane {

namespace {

/// Where a coded form finds the code of a visit, and what it says when there is none.
struct CodedForm {
    SqlLiteral lookup;
    const char* codeColumn;
    const char* clinicColumn; ///< null: the form has no clinic
    Refusal refusal;
};

constexpr CodedForm clinicForm{"select clinicType,Code,ClinicID,rctcode from vwClinicCode where consultID ='",
                               "rctcode", "ClinicID", Refusal::NoConsultID};
constexpr CodedForm outletForm{"select ItemName,ItemCode ,clinicType from vwClinicCodePublic where consultID ='",
                               "ItemCode", nullptr, Refusal::NoTranID};

qlonglong lastNumber(Connection& connection, const Sql& sql) {
    const Recordset last(connection, sql);
    return last.eof() ? 0 : last.integer("ID");
}

/// The number of the newest receipt of a code; a code without numbers carries on from the older form without the
/// hospital.
qlonglong lastOfCode(Connection& connection, const QString& code, const QString& hospital) {
    const qlonglong last =
        lastNumber(connection, Sql("select MAX(cast(SUBSTRING(ReceiptNo, 6, 7)as bigint))  as ID from Payments WHERE  "
                                   "SUBSTRING(ReceiptNo, 4, 2)='")
                                   << code << " ' and SUBSTRING(ReceiptNo, 1, 3)='" << hospital << " '");
    if (last >= 1)
        return last;
    return lastNumber(connection, Sql("select MAX(cast(SUBSTRING(ReceiptNo, 3, 7)as bigint))  as ID from Payments "
                                      "WHERE  (SUBSTRING(ReceiptNo, 1, 2)='")
                                      << code << " ')");
}

Given<ReceiptNumber> codedNumber(Connection& connection, const CodedForm& form, const QString& hospital,
                                 const QString& consultID) {
    const Recordset visit(connection, Sql(form.lookup) << consultID << "'");
    const QString code = visit.eof() ? QString() : visit.text(form.codeColumn);
    if (code.isEmpty())
        return form.refusal;
    return ReceiptNumber{hospital + code + nextDigits(lastOfCode(connection, code, hospital), 7),
                         visit.text("clinicType"), form.clinicColumn ? visit.text(form.clinicColumn) : QString()};
}

} // namespace

QString nextDigits(qlonglong last, int width) {
    const QString digits = QString::number(std::max<qlonglong>(last, 0) + 1);
    return (QString(width, '0') + digits).right(width);
}

Given<ReceiptNumber> generatedReceiptNumber(Connection& connection) {
    const Recordset next = connection.call("getIDNo", {{"DestName", "RECEIPT2"}});
    const QString number = next.eof() ? QString() : next.text(0);
    if (number.isEmpty())
        return Refusal::NoNumber;
    return ReceiptNumber{number};
}

Given<ReceiptNumber> clinicReceiptNumber(Connection& connection, const QString& hospital, const QString& consultID) {
    return codedNumber(connection, clinicForm, hospital, consultID);
}

Given<ReceiptNumber> outletReceiptNumber(Connection& connection, const QString& hospital, const QString& consultID) {
    return codedNumber(connection, outletForm, hospital, consultID);
}

QString paperReceiptNumber(const QString& typed) {
    return "SN" + typed.trimmed();
}

} // namespace orvane
