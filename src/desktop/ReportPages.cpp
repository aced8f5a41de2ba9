#include "desktop/ReportPages.h"

#include <algorithm>

namespace orvane {

namespace {

// Millimetres, but for the letter sizes.
constexpr double shortSide = 210, longSide = 297, edge = 12;
constexpr double titleHeight = 9, headHeight = 6, rowHeight = 5, footHeight = 7, columnGap = 2, pageNumberWidth = 25;
constexpr double charWidth = 1.75; ///< of a letter of 8 points, rounded up
constexpr double titlePoints = 13, textPoints = 8;
constexpr int sampledRows = 200, widestText = 45; ///< characters

int widestCharacters(const Grid& grid, int column) {
    qsizetype widest = grid.columnName(column).size() + 1;
    for (int row = 0; row < std::min(grid.rowCount(), sampledRows); ++row)
        widest = std::max(widest, grid.cellText(row, column).size());
    return int(std::clamp<qsizetype>(widest, 3, widestText));
}

} // namespace

ReportPages::ReportPages(const Grid& grid, const QString& title, const QString& sums)
    : m_grid(grid), m_title(title), m_sums(sums) {
    placeColumns();
    const double height = (m_landscape ? shortSide : longSide) - 2 * edge - titleHeight - headHeight - footHeight;
    m_rowsPerPage = std::max(1, int(height / rowHeight));
}

void ReportPages::placeColumns() {
    double total = 0;
    for (int column = 0; column < m_grid.columnCount(); ++column) {
        if (m_grid.isHidden(column))
            continue;
        const double width = widestCharacters(m_grid, column) * charWidth + columnGap;
        m_columns << Column{column, 0, width, m_grid.isNumber(column) ? PageAlign::Right : PageAlign::Left};
        total += width;
    }
    m_landscape = total > shortSide - 2 * edge;
    // A list wider than the paper gives every column its share; its texts are then shown smaller.
    const double room = (m_landscape ? longSide : shortSide) - 2 * edge;
    const double share = total > room ? room / total : 1;
    double x = edge;
    for (Column& column : m_columns) {
        column.x = x;
        column.width *= share;
        x += column.width;
    }
}

int ReportPages::count() const {
    return std::max(1, (m_grid.rowCount() + m_rowsPerPage - 1) / m_rowsPerPage);
}

void ReportPages::addRow(Page& page, double y, int row) const {
    for (const Column& column : m_columns) {
        const QString text = row < 0 ? m_grid.columnName(column.index) : m_grid.cellText(row, column.index);
        page.texts << PageText{column.x, y,    column.width - columnGap, 0, text, textPoints, column.align,
                               row < 0,  false};
    }
}

Page ReportPages::page(int number) const {
    Page page;
    if (m_landscape)
        std::swap(page.widthMm, page.heightMm);
    const double right = page.widthMm - edge, bottom = page.heightMm - edge;
    page.texts << PageText{edge, edge, right - edge, 0, m_title, titlePoints, PageAlign::Left, true, false};
    double y = edge + titleHeight;
    addRow(page, y, -1);
    y += headHeight;
    page.lines << PageLine{edge, y - 1, right, y - 1, 0.3, false};
    const int end = std::min(m_grid.rowCount(), (number + 1) * m_rowsPerPage);
    for (int row = number * m_rowsPerPage; row < end; ++row, y += rowHeight)
        addRow(page, y, row);
    const QString foot = QStringLiteral("Page %1 of %2").arg(number + 1).arg(count());
    // The foot has room for them however many rows the last page has.
    if (end == m_grid.rowCount() && !m_sums.isEmpty())
        page.texts << PageText{edge, bottom - 4, right - edge - pageNumberWidth, 0, m_sums, textPoints, PageAlign::Left,
                               true, false};
    page.texts << PageText{edge, bottom - 4, right - edge, 0, foot, textPoints, PageAlign::Right, false, false};
    return page;
}

} // namespace orvane
