#include "reports/Workbook.h"

#include "data/DataError.h"

#include <QRegularExpression>
#include <algorithm>
#include <xlsxwriter.h>

namespace orvane {

namespace {

constexpr int longestCell = 32767; ///< characters, the limit of the file format
constexpr int widestColumn = 60;   ///< characters
constexpr int firstSheetYear = 1900;

/// The sheet's format of a grid's column; the grids' "#,###.00" shows zero as ".00", which a sheet does alike.
lxw_format* columnFormat(lxw_workbook* book, const QString& look) {
    if (look.isEmpty())
        return nullptr;
    lxw_format* format = workbook_add_format(book);
    format_set_num_format(format, look.toUtf8().constData());
    return format;
}

struct SheetColumn {
    int gridColumn;
    lxw_format* format;
    int width; ///< characters
};

/// The date that a cell holds; the embedded engine keeps dates as ISO texts. None before the sheet's calendar begins.
QDate cellDate(const QVariant& value) {
    const QString text = value.toString();
    const QDate date = value.userType() == QMetaType::QDate ? value.toDate()
                       : text.size() == 10                  ? QDate::fromString(text, Qt::ISODate)
                                                            : QDate();
    return date.year() >= firstSheetYear ? date : QDate();
}

/// Writes one cell; gives the characters that it shows.
int writeCell(lxw_worksheet* sheet, lxw_row_t row, lxw_col_t column, const Grid& grid, int gridRow,
              const SheetColumn& look, lxw_format* dateFormat) {
    const QVariant value = grid.value(gridRow, look.gridColumn);
    if (value.isNull())
        return 0;
    const QString shown = grid.cellText(gridRow, look.gridColumn);
    const QDate date = cellDate(value);
    if (date.isValid()) {
        lxw_datetime day = {date.year(), date.month(), date.day(), 0, 0, 0};
        worksheet_write_datetime(sheet, row, column, &day, dateFormat);
    } else if (value.userType() == QMetaType::Double || value.userType() == QMetaType::LongLong ||
               value.userType() == QMetaType::Int) {
        worksheet_write_number(sheet, row, column, value.toDouble(), look.format);
    } else {
        worksheet_write_string(sheet, row, column, shown.left(longestCell).toUtf8().constData(), nullptr);
    }
    return int(shown.size());
}

QVector<SheetColumn> writeHeads(lxw_workbook* book, lxw_worksheet* sheet, const Grid& grid) {
    lxw_format* bold = workbook_add_format(book);
    format_set_bold(bold);
    QVector<SheetColumn> columns;
    for (int column = 0; column < grid.columnCount(); ++column) {
        if (grid.isHidden(column))
            continue;
        const QString name = grid.columnName(column);
        worksheet_write_string(sheet, 0, lxw_col_t(columns.size()), name.toUtf8().constData(), bold);
        columns.append({column, columnFormat(book, grid.format(column)), int(name.size())});
    }
    return columns;
}

} // namespace

void exportWorkbook(const Grid& grid, const QString& file) {
    lxw_workbook* book = workbook_new(QFile::encodeName(file).constData());
    if (!book)
        throw DataError(QStringLiteral("%1 cannot be written.").arg(file));
    lxw_worksheet* sheet = workbook_add_worksheet(book, "Sheet1");
    QVector<SheetColumn> columns = writeHeads(book, sheet, grid);
    lxw_format* dateFormat = workbook_add_format(book);
    format_set_num_format(dateFormat, "dd/mm/yyyy");
    for (int row = 0; row < grid.rowCount(); ++row)
        for (qsizetype i = 0; i < columns.size(); ++i) {
            const int shown = writeCell(sheet, lxw_row_t(row + 1), lxw_col_t(i), grid, row, columns.at(i), dateFormat);
            columns[i].width = std::max(columns.at(i).width, shown);
        }
    for (qsizetype i = 0; i < columns.size(); ++i)
        worksheet_set_column(sheet, lxw_col_t(i), lxw_col_t(i), std::min(columns.at(i).width, widestColumn) + 2,
                             nullptr);
    worksheet_freeze_panes(sheet, 1, 0);
    const lxw_error failure = workbook_close(book);
    if (failure != LXW_NO_ERROR) {
        QFile::remove(file);
        throw DataError(QStringLiteral("%1 cannot be written: %2").arg(file, QString::fromUtf8(lxw_strerror(failure))));
    }
    QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner);
}

QString exportFileName(const QString& folder, const QString& title, const QDateTime& now) {
    static const QRegularExpression unfit("[^\\w .-]+", QRegularExpression::UseUnicodePropertiesOption);
    QString name = title;
    name.replace(unfit, " ");
    QDir().mkpath(folder);
    return folder + QLatin1Char('/') + name.simplified().left(80) + now.toString(" yyyy-MM-dd HH.mm.ss") + ".xlsx";
}

} // namespace orvane
