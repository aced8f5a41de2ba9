#include "reports/Workbook.h"

#include "data/DataError.h"
#include "reports/ReportData.h"

#include <QRegularExpression>
#include <algorithm>
#include <memory>
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
    int number;
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
int writeCell(lxw_worksheet* sheet, lxw_row_t row, lxw_col_t column, const QVariant& value, const QString& shown,
              const SheetColumn& look, lxw_format* dateFormat) {
    if (value.isNull())
        return 0;
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

QVector<SheetColumn> writeHeads(lxw_workbook* book, lxw_worksheet* page, const Sheet& sheet) {
    lxw_format* bold = workbook_add_format(book);
    format_set_bold(bold);
    QVector<SheetColumn> columns;
    for (const Sheet::Column& column : sheet.columns) {
        worksheet_write_string(page, 0, lxw_col_t(columns.size()), column.head.toUtf8().constData(), bold);
        columns.append({column.number, columnFormat(book, column.format), int(column.head.size())});
    }
    return columns;
}

void writeRows(lxw_workbook* book, lxw_worksheet* page, const Sheet& sheet, QVector<SheetColumn>& columns) {
    lxw_format* dateFormat = workbook_add_format(book);
    format_set_num_format(dateFormat, "dd/mm/yyyy");
    for (int row = 0; row < sheet.rows; ++row)
        for (qsizetype i = 0; i < columns.size(); ++i) {
            SheetColumn& column = columns[i];
            const int shown = writeCell(page, lxw_row_t(row + 1), lxw_col_t(i), sheet.value(row, column.number),
                                        sheet.shown(row, column.number), column, dateFormat);
            column.width = std::max(column.width, shown);
        }
}

Sheet sheetOf(const Grid& grid) {
    Sheet sheet;
    for (int column = 0; column < grid.columnCount(); ++column)
        if (!grid.isHidden(column))
            sheet.columns.append({column, grid.columnName(column), grid.format(column)});
    sheet.rows = grid.rowCount();
    sheet.value = [&grid](int row, int column) { return grid.value(row, column); };
    sheet.shown = [&grid](int row, int column) { return grid.cellText(row, column); };
    return sheet;
}

Sheet sheetOf(const PageSource& report) {
    const auto rows = std::make_shared<Recordset>(report.rows().detached());
    Sheet sheet;
    const QStringList columns = rows->columns();
    for (int column = 0; column < columns.size(); ++column)
        sheet.columns.append({column, columns.at(column), report.format(columns.at(column))});
    sheet.rows = rows->count();
    sheet.value = [rows](int row, int column) {
        rows->moveTo(row);
        return rows->value(column);
    };
    sheet.shown = [rows, columns = sheet.columns](int row, int column) {
        rows->moveTo(row);
        return shownValue(rows->value(column), columns.at(column).format);
    };
    return sheet;
}

} // namespace

void exportWorkbook(const PageSource& report, const QString& file) {
    exportWorkbook(sheetOf(report), file);
}

void exportWorkbook(const Grid& grid, const QString& file) {
    exportWorkbook(sheetOf(grid), file);
}

void exportWorkbook(const Sheet& sheet, const QString& file) {
    lxw_workbook* book = workbook_new(QFile::encodeName(file).constData());
    if (!book)
        throw DataError(QStringLiteral("%1 cannot be written.").arg(file));
    lxw_worksheet* page = workbook_add_worksheet(book, "Sheet1");
    QVector<SheetColumn> columns = writeHeads(book, page, sheet);
    writeRows(book, page, sheet, columns);
    for (qsizetype i = 0; i < columns.size(); ++i)
        worksheet_set_column(page, lxw_col_t(i), lxw_col_t(i), std::min(columns.at(i).width, widestColumn) + 2,
                             nullptr);
    worksheet_freeze_panes(page, 1, 0);
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
