#include "reports/ListTemplate.h"

#include "reports/ReportData.h"

#include <algorithm>

namespace orvane {

const QString listTitle = "Title";

namespace {

// Millimetres, but for the letter sizes.
constexpr double titleHeight = 9, headHeight = 6, rowHeight = 5, footHeight = 7, gap = 2;
constexpr double letterWidth = 1.75; ///< of 8 points, rounded up
constexpr double titlePoints = 13, textPoints = 8;
constexpr int sampledRows = 200, widestText = 45; ///< characters
const QString amountFormat = "#,##0.00";

struct Column {
    QString name, format;
    double x = 0, width = 0;
    bool isNumber = false;
};

/// What the first rows show of a column: amounts are numbers that may have a fraction.
Column sampled(Recordset& rows, const QString& name, int index) {
    Column column{name, {}, 0, 0, true};
    qsizetype widest = name.size() + 1;
    bool any = false, amount = true;
    for (int row = 0; row < sampledRows && rows.has(row); ++row) {
        rows.moveTo(row);
        const QVariant value = rows.value(index);
        if (value.isNull())
            continue;
        const bool fraction = value.typeId() == QMetaType::Double;
        column.isNumber &= fraction || value.typeId() == QMetaType::LongLong;
        amount &= fraction;
        any = true;
        widest = std::max(widest, shownValue(value, fraction ? amountFormat : QString()).size());
    }
    column.isNumber &= any;
    column.format = column.isNumber && amount ? amountFormat : QString();
    column.width = double(std::clamp<qsizetype>(widest, 3, widestText)) * letterWidth + gap;
    return column;
}

ReportElement element(ReportElement::Kind kind, double x, double y, double width, PageAlign align, bool bold) {
    ReportElement result;
    result.kind = kind;
    result.x = x, result.y = y, result.width = width;
    result.points = textPoints;
    result.align = align;
    result.bold = bold;
    return result;
}

ReportElement words(const QString& text, double x, double y, double width, PageAlign align, bool bold) {
    ReportElement result = element(ReportElement::Text, x, y, width, align, bold);
    result.text = text;
    return result;
}

ReportElement valueOf(ReportElement::Kind kind, const Column& column, double y, bool bold) {
    ReportElement result =
        element(kind, column.x, y, column.width - gap, column.isNumber ? PageAlign::Right : PageAlign::Left, bold);
    result.name = column.name;
    result.format = column.format;
    return result;
}

void addRule(ReportBand& band, double width, double y, double thickness) {
    ReportElement rule = element(ReportElement::Line, 0, y, width, PageAlign::Left, false);
    rule.thickness = thickness;
    band.elements << rule;
}

/// The columns side by side; a list wider than turned paper gives every column its share.
QVector<Column> placedColumns(const Recordset& shown, ReportTemplate& layout) {
    Recordset rows = shown.detached();
    const QStringList names = rows.columns();
    QVector<Column> columns;
    double total = 0;
    for (int i = 0; i < names.size(); ++i) {
        columns << sampled(rows, names.at(i), i);
        total += columns.last().width;
    }
    if (total > layout.width() - 2 * layout.margin)
        layout.paper = ReportTemplate::Landscape;
    const double room = layout.width() - 2 * layout.margin;
    double x = 0;
    for (Column& column : columns) {
        column.x = x;
        column.width *= std::min(1.0, room / total);
        x += column.width;
    }
    return columns;
}

void addTotals(ReportTemplate& layout, const QVector<Column>& columns, const QStringList& summed, double room) {
    ReportBand& foot = layout.reportFoot;
    for (const Column& column : columns)
        if (summed.contains(column.name, Qt::CaseInsensitive) && column.isNumber)
            foot.elements << valueOf(ReportElement::Sum, column, 2, true);
    if (foot.elements.isEmpty())
        return;
    foot.line = 1;
    foot.height = rowHeight + 3;
    addRule(foot, room, 1, 0.3);
    if (!columns.first().isNumber)
        foot.elements << words("Total", 0, 2, columns.first().width - gap, PageAlign::Left, true);
}

} // namespace

ReportTemplate listTemplate(const QString& file, const QString& title, const Recordset& rows,
                            const QStringList& summed) {
    ReportTemplate layout;
    layout.file = file;
    layout.title = title;
    const QVector<Column> columns = placedColumns(rows, layout);
    const double room = layout.width() - 2 * layout.margin;
    // As a text object: a title may name a patient, whose name is no text to be filled in.
    ReportElement heading = words({}, 0, 0, room, PageAlign::Left, true);
    heading.name = listTitle;
    heading.points = titlePoints;
    layout.pageHead = {1, titleHeight + headHeight, {}, {heading}};
    layout.detail = {1, rowHeight, {}, {}};
    for (const Column& column : columns) {
        layout.pageHead.elements << words(column.name, column.x, titleHeight, column.width - gap,
                                          column.isNumber ? PageAlign::Right : PageAlign::Left, true);
        layout.detail.elements << valueOf(ReportElement::Field, column, 0, false);
    }
    addRule(layout.pageHead, room, titleHeight + headHeight - 1, 0.3);
    addTotals(layout, columns, summed, room);
    layout.pageFoot = {
        1, footHeight, {}, {words("Page {page} of {pages}", 0, footHeight - 4, room, PageAlign::Right, false)}};
    return layout;
}

} // namespace orvane
