#include "reports/CrosstabReport.h"

#include <algorithm>

namespace orvane {

namespace {

constexpr double headHeight = 9, lineHeight = 5.5, gap = 2; ///< mm

} // namespace

CrosstabReport::CrosstabReport(const ReportTemplate& layout, const ReportInput& input)
    : m_layout(layout), m_data(layout, input), m_title(input.title.isEmpty() ? layout.title : input.title) {
    readTable();
    choosePaper();
    splitIntoSheets();
}

QString CrosstabReport::format(const QString& column) const {
    return column.compare(m_layout.crosstab.cell, Qt::CaseInsensitive) == 0 ? m_layout.crosstab.format : QString();
}

void CrosstabReport::readTable() {
    const ReportCrosstab& table = m_layout.crosstab;
    const int across = m_data.column(table.across), cell = m_data.column(table.cell);
    QHash<QString, int> known;
    for (int row = 0; m_data.has(row); ++row) {
        QString key;
        for (const ReportCrosstab::Row& name : table.rows)
            key += m_data.value(row, m_data.column(name.column)).toString().toLower() + QChar(0x1f);
        const QString column = shownValue(m_data.value(row, across), {});
        const double amount = m_data.number(row, cell);
        if (!known.contains(key)) {
            known.insert(key, int(m_lines.size()));
            m_lines.append({row, {}, 0});
        }
        for (Line* line : {&m_lines[known.value(key)], &m_totals}) {
            line->at[column] += amount;
            line->total += amount;
        }
    }
    m_columns = m_totals.at.keys();
    m_columns.sort(Qt::CaseInsensitive);
}

double CrosstabReport::namesWidth() const {
    double width = 0;
    for (const ReportCrosstab::Row& row : m_layout.crosstab.rows)
        width += row.width;
    return width;
}

int CrosstabReport::columnsAPage() const {
    const double room = m_layout.width() - 2 * m_layout.margin - namesWidth();
    return std::max(1, int((room + 0.001) / m_layout.crosstab.acrossWidth));
}

void CrosstabReport::choosePaper() {
    if (m_layout.paper != ReportTemplate::Auto)
        return;
    m_layout.paper = ReportTemplate::Portrait;
    if (m_columns.size() + 1 > columnsAPage())
        m_layout.paper = ReportTemplate::Landscape;
}

double CrosstabReport::top(bool first) const {
    return m_layout.margin + (first ? m_layout.reportHead.height : 0) + m_layout.pageHead.height + headHeight;
}

double CrosstabReport::bottom() const {
    return m_layout.height() - m_layout.margin - m_layout.pageFoot.height;
}

void CrosstabReport::splitIntoSheets() {
    const int count = int(m_lines.size());
    for (int line = 0; line <= count;) {
        const bool first = line == 0;
        const double room = bottom() - top(first);
        const int fit = std::max(1, int(room / lineHeight));
        // The totals and the foot stand below the last line, or on a page of their own.
        const bool last = (count - line + 1) * lineHeight + m_layout.reportFoot.height <= room || line == count;
        const int lines = last ? count - line : std::min(fit, count - line);
        addSheets(line, lines, first, last);
        if (last)
            return;
        line += lines;
    }
}

void CrosstabReport::addSheets(int firstLine, int lines, bool first, bool last) {
    const int all = int(m_columns.size()) + 1, most = columnsAPage();
    for (int column = 0; column < all; column += most)
        m_sheets.append({firstLine, lines, column, std::min(most, all - column), first, last});
}

void CrosstabReport::text(Page& page, double x, double y, double width, const QString& words, PageAlign align,
                          bool bold, double height) const {
    page.texts.append({x, y, width - gap, height, words, m_layout.points, align, bold, height > 0});
}

void CrosstabReport::rule(Page& page, double y, double right, double thickness) const {
    page.lines.append({m_layout.margin, y, right, y, thickness, false});
}

void CrosstabReport::paintHeads(Page& page, const Sheet& sheet, double y) const {
    double x = m_layout.margin;
    for (const ReportCrosstab::Row& row : m_layout.crosstab.rows) {
        text(page, x, y, row.width, row.heading, PageAlign::Left, true, headHeight - 1);
        x += row.width;
    }
    for (int i = sheet.firstColumn; i < sheet.firstColumn + sheet.columns; ++i) {
        const QString head = i < m_columns.size() ? m_columns.at(i) : m_layout.crosstab.total;
        text(page, x, y, m_layout.crosstab.acrossWidth, head, PageAlign::Right, true, headHeight - 1);
        x += m_layout.crosstab.acrossWidth;
    }
    rule(page, y + headHeight - 0.8, x - gap, 0.3);
}

void CrosstabReport::paintLine(Page& page, const Sheet& sheet, double y, const Line& line, bool isTotal) const {
    const ReportCrosstab& table = m_layout.crosstab;
    double x = m_layout.margin;
    if (isTotal)
        text(page, x, y, namesWidth(), table.total, PageAlign::Left, true);
    for (const ReportCrosstab::Row& row : table.rows) {
        if (!isTotal)
            text(page, x, y, row.width, shownValue(m_data.value(line.row, m_data.column(row.column)), {}),
                 PageAlign::Left, false, lineHeight - 1);
        x += row.width;
    }
    for (int i = sheet.firstColumn; i < sheet.firstColumn + sheet.columns; ++i) {
        const bool inTotals = i == m_columns.size();
        const bool shown = inTotals || line.at.contains(m_columns.at(i));
        const double amount = inTotals ? line.total : line.at.value(m_columns.at(i));
        if (shown)
            text(page, x, y, table.acrossWidth, shownValue(amount, table.format), PageAlign::Right,
                 isTotal || inTotals);
        x += table.acrossWidth;
    }
    rule(page, y + lineHeight - 0.8, x - gap, isTotal ? 0.3 : 0.1);
}

Page CrosstabReport::page(int number) {
    const Sheet& sheet = m_sheets.at(number);
    Page page;
    page.widthMm = m_layout.width();
    page.heightMm = m_layout.height();
    const BandPlace place{m_data.has(0) ? 0 : -1, number, QString::number(m_sheets.size()),
                          [this](const ReportElement& element) {
                              return element.kind == ReportElement::Count ? double(m_lines.size()) : m_totals.total;
                          }};
    const auto band = [&](const ReportBand& shown, double y) {
        paintBand(page, m_layout.margin, y, shown, m_layout, m_data, place);
    };
    if (sheet.first)
        band(m_layout.reportHead, m_layout.margin);
    double y = top(sheet.first);
    band(m_layout.pageHead, y - headHeight - m_layout.pageHead.height);
    paintHeads(page, sheet, y - headHeight);
    for (int line = sheet.firstLine; line < sheet.firstLine + sheet.lines; ++line, y += lineHeight)
        paintLine(page, sheet, y, m_lines.at(line), false);
    if (sheet.last) {
        paintLine(page, sheet, y, m_totals, true);
        if (sheet.firstColumn + sheet.columns > m_columns.size())
            band(m_layout.reportFoot, y + lineHeight);
    }
    band(m_layout.pageFoot, bottom());
    return page;
}

} // namespace orvane
