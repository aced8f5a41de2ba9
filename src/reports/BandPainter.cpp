#include "reports/BandPainter.h"

namespace orvane {

namespace {

QString fieldOf(const ReportElement& element, const ReportData& data, const BandPlace& place) {
    if (place.row < 0 || !data.has(place.row))
        return {};
    const int column = data.column(element.name);
    if (element.side == ReportElement::Whole)
        return shownValue(data.value(place.row, column), element.format);
    const auto amount = data.number(place.row, column, element.side);
    return amount ? shownValue(*amount, element.format) : QString();
}

QString wordsOf(const ReportElement& element, const ReportData& data, const BandPlace& place) {
    switch (element.kind) {
    case ReportElement::Text:
        return data.words(element, place.row, place.page, place.pages);
    case ReportElement::Field:
        return fieldOf(element, data, place);
    case ReportElement::Sum:
        return shownValue(place.sum(element), element.format.isEmpty() ? QStringLiteral("#,##0.00") : element.format);
    case ReportElement::Count:
        return shownValue(place.sum(element), element.format.isEmpty() ? QStringLiteral("#,##0") : element.format);
    case ReportElement::Line:
    case ReportElement::Picture:
        break;
    }
    return {};
}

} // namespace

void paintBand(Page& page, double x, double y, const ReportBand& band, const ReportTemplate& layout,
               const ReportData& data, const BandPlace& place) {
    for (const ReportElement& element : band.elements) {
        const double left = x + element.x, top = y + element.y;
        if (element.kind == ReportElement::Line) {
            page.lines.append(
                {left, top, left + element.width, top + element.height, element.thickness, element.dashed});
        } else if (element.kind == ReportElement::Picture) {
            page.pictures.append({left, top, element.width, element.height, data.picture(element.text)});
        } else if (const QString text = wordsOf(element, data, place); !text.isEmpty()) {
            const double points = element.points > 0 ? element.points : layout.points;
            page.texts.append({left, top, element.width, element.height, text, points, element.align, element.bold,
                               element.height > 0});
        }
    }
}

} // namespace orvane
