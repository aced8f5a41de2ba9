#include "receipts/ReceiptNumber.h"

#include <algorithm>

namespace orvane {

namespace {

/// Where a coded form finds the code of a visit, and what it says when there is none.
struct CodedForm {
    ReceiptForm form;
    SqlLiteral lookup;
    const char* codeColumn;
    const char* refusal;
};

constexpr CodedForm codedForms[] = {
    {ReceiptForm::ClinicCoded, "select clinicType,Code,ClinicID,rctcode from vwClinicCode where consultID ='",
     "rctcode", "ReceiptNo cannot be generated!!! No Consult ID for this transaction"},
    {ReceiptForm::OutletCoded, "select ItemName,ItemCode ,clinicType from vwClinicCodePublic where consultID ='",
     "ItemCode", "ReceiptNo cannot be generated!!! No Tran ID for this transaction"},
};

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

FormedNumber codedNumber(Program& program, Connection& connection, const CodedForm& form, const QString& consultID) {
    FormedNumber receipt;
    const Recordset visit(connection, Sql(form.lookup) << consultID << "'");
    const QString code = visit.eof() ? QString() : visit.text(QLatin1String(form.codeColumn));
    if (code.isEmpty()) {
        receipt.refusal = QLatin1String(form.refusal);
        return receipt;
    }
    receipt.clinicType = visit.text("clinicType");
    if (form.form == ReceiptForm::ClinicCoded)
        receipt.clinicID = visit.text("ClinicID");
    const QString& hospital = program.session.gHospIDName;
    receipt.number = hospital + code + nextDigits(lastOfCode(connection, code, hospital), 7);
    return receipt;
}

FormedNumber generatedNumber(Program& program, Connection& connection) {
    FormedNumber receipt;
    program.session.gIDNo.clear();
    program.fetchIDNo(connection, "RECEIPT2");
    receipt.number = program.session.gIDNo;
    if (receipt.number.isEmpty())
        receipt.refusal = "Unable to generate No!!! Function getIDNo Failed! Receipt";
    return receipt;
}

} // namespace

FormedNumber formReceiptNumber(Program& program, Connection& connection, ReceiptForm form, const QString& key) {
    for (const CodedForm& coded : codedForms)
        if (coded.form == form)
            return codedNumber(program, connection, coded, key);
    if (form == ReceiptForm::Generated)
        return generatedNumber(program, connection);
    FormedNumber receipt;
    receipt.number =
        form == ReceiptForm::Paper
            ? "SN" + key.trimmed()
            : QString::number(lastNumber(connection, Sql("select ID from IDgen where DestName = 'Receipt'")) + 1);
    return receipt;
}

void storeReceiptCounter(Connection& connection, const QString& number) {
    connection.execute(Sql("Update iDGen set ID=") << number.toLongLong() << " where DestName = 'Receipt'");
}

} // namespace orvane
