#pragma once

#include "forms/Grid.h"
#include "forms/PageSource.h"

#include <functional>

namespace orvane {

/// What goes into a workbook, asked for by row and by the column's own number.
struct Sheet {
    struct Column {
        int number;
        QString head, format; ///< format: of its numbers; empty: as they are
    };
    QVector<Column> columns;
    int rows = 0;
    std::function<QVariant(int row, int column)> value;
    std::function<QString(int row, int column)> shown; ///< the value as a person reads it
};

/// Writes what a grid shows to a new .xlsx file with one sheet, "Sheet1": heads, number formats, dates and column
/// widths; hidden columns are left out. A text is always a text cell, so that none can become a formula. A value too
/// long for a cell is cut at the file format's limit. Raises DataError when the file cannot be written; nothing is left
/// of it then.
void exportWorkbook(const Grid& grid, const QString& file);
/// The rows of a report, with the formats that it gives them; every column of theirs.
void exportWorkbook(const PageSource& report, const QString& file);
void exportWorkbook(const Sheet& sheet, const QString& file);

/// A file for an export in a folder (made when missing): title and time of day, without characters that a file name
/// cannot bear.
QString exportFileName(const QString& folder, const QString& title, const QDateTime& now);

} // namespace orvane
