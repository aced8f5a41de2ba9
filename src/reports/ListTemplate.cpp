#include "reports/ListTemplate.h"

#include "forms/Grid.h"

#include <algorithm>

namespace orvane {

const QString listTitle = "Title", listSums = "Sums";

namespace {

// Millimetres, but for the letter sizes.
constexpr double hospitalHeight = 7, titleHeight = 9, headHeight = 6, rowHeight = 5, footHeight = 7, gap = 2;
constexpr double sumsHeight = 9;     ///< of two lines
constexpr double letterWidth = 1.75; ///< of 8 points, rounded up
constexpr double hospitalPoints = 10, titlePoints = 13, textPoints = 8;
constexpr int sampledRows = 200;
constexpr qsizetype widestText = 45, widestTotal = 13; ///< characters
constexpr double mostStretch = 1.5;                    ///< of the columns of a narrow list
const QString amountFormat = "#,##0.00";

struct Column {
    QString name, format;
    double x = 0, width = 0;
    bool isNumber = false, isSummed = false;
};

/// What the first rows show of a column: amounts are numbers that may have a fraction.
Column sampled(Recordset& rows, const QString& name, int index) {
    Column column{name, {}, 0, 0, true, false};
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
    column.isSummed = !column.format.isEmpty() && addsUp(name);
    if (column.isSummed)
        widest = std::max(widest, widestTotal);
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
    result.height = column.isNumber ? 0 : rowHeight; // a long text breaks
    return result;
}

void addRule(ReportBand& band, double width, double y, double thickness) {
    ReportElement rule = element(ReportElement::Line, 0, y, width, PageAlign::Left, false);
    rule.thickness = thickness;
    band.elements << rule;
}

/// The columns side by side over the paper; a list wider than turned paper gives every column its share.
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
        column.width *= std::min(mostStretch, room / total);
        x += column.width;
    }
    return columns;
}

void addTotals(ReportTemplate& layout, const QVector<Column>& columns, double room, bool hasSums) {
    ReportBand& foot = layout.reportFoot;
    for (const Column& column : columns)
        if (column.isSummed)
            foot.elements << valueOf(ReportElement::Sum, column, 2, true);
    const bool totals = !foot.elements.isEmpty();
    if (!totals && !hasSums)
        return;
    if (totals && !columns.first().isNumber)
        foot.elements << words("Total", 0, 2, columns.first().width - gap, PageAlign::Left, true);
    foot.line = 1;
    foot.height = 3 + (totals ? rowHeight : 0);
    addRule(foot, room, 1, 0.3);
    if (!hasSums)
        return;
    ReportElement said = words({}, 0, foot.height, room, PageAlign::Left, false);
    said.name = listSums;
    said.height = sumsHeight;
    foot.elements << said;
    foot.height += sumsHeight;
}

void addHeads(ReportTemplate& layout, const QVector<Column>& columns, double room, bool hasHospital) {
    if (hasHospital) {
        layout.reportHead = {1, hospitalHeight, {}, {words("{Hospital}", 0, 0, room, PageAlign::Left, true)}};
        layout.reportHead.elements.first().points = hospitalPoints;
    }
    // As a text object: a title may name a patient, whose name is no text to be filled in.
    ReportElement heading = words({}, 0, 0, room, PageAlign::Left, true);
    heading.name = listTitle;
    heading.points = titlePoints;
    layout.pageHead = {1, titleHeight + headHeight, {}, {heading}};
    for (const Column& column : columns)
        layout.pageHead.elements << words(column.name, column.x, titleHeight, column.width - gap,
                                          column.isNumber ? PageAlign::Right : PageAlign::Left, true);
    addRule(layout.pageHead, room, titleHeight + headHeight - 1, 0.3);
}

} // namespace

ReportTemplate listTemplate(const ReportInput& input) {
    ReportTemplate layout;
    layout.file = input.file;
    layout.title = input.title;
    const QVector<Column> columns = placedColumns(input.rows, layout);
    const double room = layout.width() - 2 * layout.margin;
    addHeads(layout, columns, room, !input.values.value("Hospital").isEmpty());
    layout.detail = {1, rowHeight, {}, {}};
    for (const Column& column : columns)
        layout.detail.elements << valueOf(ReportElement::Field, column, 0, false);
    addTotals(layout, columns, room, input.textObjects.contains(listSums));
    layout.pageFoot = {
        1, footHeight, {}, {words("Page {page} of {pages}", 0, footHeight - 4, room, PageAlign::Right, false)}};
    return layout;
}

} // namespace orvane
