#include "books/NextCode.h"

namespace orvane {

std::optional<QString> nextCode(Connection& connection, const Sql& highest, int digits) {
    const Recordset row(connection, highest);
    if (row.eof())
        return std::nullopt;
    bool isNumber = true;
    const qlonglong last = row.isNull("ID") ? 0 : row.text("ID").toLongLong(&isNumber);
    if (!isNumber)
        return std::nullopt;
    return (QString(digits, u'0') + QString::number(last + 1)).right(digits);
}

} // namespace orvane
