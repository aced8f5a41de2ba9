#include "books/Batch.h"

#include "data/rows/Recordset.h"

#include <QLocale>

namespace orvane {

QString monthCode(const QString& name) {
    for (int month = 1; month <= 12; ++month)
        if (name == monthName(month))
            return QString::number(month).rightJustified(2, u'0');
    return {};
}

QString monthName(int month) {
    return month >= 1 && month <= 12 ? QLocale::c().standaloneMonthName(month) : QString();
}

QString batchNumber(const QString& year, const QString& monthCode) {
    return year + u'/' + monthCode;
}

int batchValue(const QString& batchNo) {
    return (batchNo.mid(0, 4) + batchNo.mid(5, 2)).toInt();
}

QString paddedClientCode(qlonglong code) {
    const QString digits = QString::number(code);
    const int width = digits.size() < 5 ? 4 : 7;
    return (QString(width, u'0') + digits).right(width);
}

QString invoiceNumber(const QString& clientCode, const QString& batchNo) {
    return clientCode + u'/' + batchNo;
}

bool isBatchPast(Connection& connection, const QString& batchNo) {
    const Recordset newest(connection,
                           Sql("select  top 1 batchVal  from vwBillsForClientsBatchVal order by batchval desc "));
    return !newest.eof() && batchValue(batchNo) < newest.integer("batchVal");
}

} // namespace orvane
