#include "reports/ReportData.h"

#include "data/words/FigToWrd.h"
#include "data/words/Money.h"
#include "data/words/ShownText.h"
#include "reports/RowOrder.h"

#include <QDir>
#include <QRegularExpression>
#include <algorithm>

namespace orvane {

namespace {

const QString dayFormat = "dd/MM/yyyy";

bool isNumber(const QVariant& value) {
    return value.typeId() == QMetaType::Double || value.typeId() == QMetaType::LongLong ||
           value.typeId() == QMetaType::Int;
}

/// The date that a value is; an embedded engine gives the date of an expression as an ISO text.
QDate dateOf(const QVariant& value) {
    if (value.typeId() == QMetaType::QDate || value.typeId() == QMetaType::QDateTime)
        return value.toDate();
    static const QRegularExpression iso(R"(^\d{4}-\d\d-\d\d$)");
    const QString text = value.toString();
    return text.size() == 10 && iso.match(text).hasMatch() ? QDate::fromString(text, Qt::ISODate) : QDate();
}

QString amountInWords(const QVariant& value) {
    return isNumber(value) || parseAmount(value.toString())
               ? figToWrd().amountToWords(isNumber(value) ? value.toDouble() : *parseAmount(value.toString()))
               : value.toString();
}

const QRegularExpression& blanks() {
    static const QRegularExpression pattern(R"(\{(\w+)\})", QRegularExpression::UseUnicodePropertiesOption);
    return pattern;
}

QString inOneLine(const QString& text) {
    static const QRegularExpression breaks(R"(\s*[\r\n]+\s*)");
    return text.contains(u'\n') ? text.split(breaks, Qt::SkipEmptyParts).join(", ") : text;
}

QHash<QString, QString> lowerCased(const QHash<QString, QString>& texts) {
    QHash<QString, QString> result;
    for (auto text = texts.cbegin(); text != texts.cend(); ++text)
        result.insert(text.key().toLower(), text.value());
    return result;
}

} // namespace

QString shownValue(const QVariant& value, const QString& format) {
    if (value.isNull())
        return {};
    if (format == QLatin1String("words"))
        return amountInWords(value);
    if (const QDate date = dateOf(value); date.isValid())
        return date.toString(format.isEmpty() ? dayFormat : format);
    if (format.isEmpty())
        return value.typeId() == QMetaType::Double ? QString::number(value.toDouble(), 'g', 15) : value.toString();
    if (isNumber(value))
        return formatNumber(value.toDouble(), format);
    const std::optional<double> number = parseAmount(value.toString());
    return number ? formatNumber(*number, format) : value.toString();
}

ReportData::ReportData(const ReportTemplate& layout, const ReportInput& input)
    : m_rows(input.rows.detached()), m_folder(input.folder), m_textObjects(lowerCased(input.textObjects)),
      m_values(lowerCased(input.values)) {
    const QStringList names = m_rows.columns();
    for (int i = 0; i < names.size(); ++i)
        m_columns.insert(names.at(i).toLower(), i);
    for (const ReportBand* band : layout.bands())
        for (const ReportElement& element : band->elements)
            checkElement(layout, *band, element);
    for (const SortKey& key : layout.sort)
        demandField(layout, key.line, key.column);
    for (const ReportGroup& group : layout.groups)
        demandField(layout, group.line, group.column);
    const ReportCrosstab& table = layout.crosstab;
    for (const ReportCrosstab::Row& row : table.rows)
        demandField(layout, row.line, row.column);
    if (table.line > 0) {
        demandField(layout, table.acrossLine, table.across);
        demandField(layout, table.cellLine, table.cell);
    }
    checkTextObjects(layout, input);
    if (!layout.sort.isEmpty() || (!layout.groups.isEmpty() && !layout.givenOrder))
        sort(layout);
}

void ReportData::checkElement(const ReportTemplate& layout, const ReportBand& band,
                              const ReportElement& element) const {
    const auto isOneOf = [&](std::initializer_list<const ReportBand*> bands) {
        return std::find(bands.begin(), bands.end(), &band) != bands.end();
    };
    if (element.kind == ReportElement::Field || element.kind == ReportElement::Sum)
        demandField(layout, element.line, element.name);
    if (element.kind == ReportElement::Text)
        checkWords(layout, element);
    if (element.kind != ReportElement::Sum && element.kind != ReportElement::Count)
        return;
    const bool named = element.of.isEmpty() || element.of.compare("report", Qt::CaseInsensitive) == 0 ||
                       element.of.compare("page", Qt::CaseInsensitive) == 0;
    if (!named && layout.groupIndex(element.of) < 0)
        refuseTemplate(layout.file, element.line, "there is no group by " + shownText(element.of));
    const bool inGroupHead = std::any_of(layout.groups.cbegin(), layout.groups.cend(),
                                         [&band](const ReportGroup& group) { return &group.head == &band; });
    if (inGroupHead || isOneOf({&layout.reportHead, &layout.pageHead}))
        refuseTemplate(layout.file, element.line, "a sum or count stands in a detail, carry or foot band");
}

void ReportData::demandField(const ReportTemplate& layout, int line, const QString& name) const {
    if (column(name) < 0)
        refuseTemplate(layout.file, line, "the data has no field " + shownText(name));
}

void ReportData::checkTextObjects(const ReportTemplate& layout, const ReportInput& input) const {
    for (auto text = input.textObjects.cbegin(); text != input.textObjects.cend(); ++text) {
        const auto isThis = [&text](const ReportElement& element) {
            return element.name.compare(text.key(), Qt::CaseInsensitive) == 0;
        };
        const QVector<const ReportBand*> bands = layout.bands();
        if (std::none_of(bands.cbegin(), bands.cend(), [&isThis](const ReportBand* band) {
                return std::any_of(band->elements.cbegin(), band->elements.cend(), isThis);
            }))
            refuseTemplate(layout.file, 1,
                           "the template has no text object " + text.key() + ", which the program sets");
    }
}

void ReportData::checkWords(const ReportTemplate& layout, const ReportElement& element) const {
    for (auto found = blanks().globalMatch(element.text); found.hasNext();) {
        const QString name = found.next().captured(1).toLower();
        if (column(name) < 0 && !m_values.contains(name) && name != "page" && name != "pages")
            refuseTemplate(layout.file, element.line, "the data has no field " + shownText(name));
    }
}

int ReportData::column(const QString& name) const {
    return m_columns.value(name.toLower(), -1);
}

QVariant ReportData::value(int row, int column) const {
    m_rows.moveTo(m_order.isEmpty() ? row : m_order.at(row));
    return m_rows.value(column);
}

double ReportData::number(int row, int column) const {
    const QVariant found = value(row, column);
    return isNumber(found) ? found.toDouble() : parseAmount(found.toString()).value_or(0);
}

std::optional<double> ReportData::number(int row, int column, ReportElement::Side side) const {
    const double found = number(row, column);
    if (side == ReportElement::Whole)
        return found;
    const double amount = side == ReportElement::Debit ? found : -found;
    return amount > 0 ? std::optional(amount) : std::nullopt;
}

QString ReportData::words(const ReportElement& element, int row, int page, const QString& pages) const {
    QString text = m_textObjects.value(element.name.toLower(), element.text);
    if (!text.contains(u'{') || m_textObjects.contains(element.name.toLower()))
        return text;
    QString result;
    qsizetype at = 0;
    for (auto found = blanks().globalMatch(text); found.hasNext();) {
        const QRegularExpressionMatch blank = found.next();
        result += text.mid(at, blank.capturedStart() - at) + filled(blank.captured(1).toLower(), row, page, pages);
        at = blank.capturedEnd();
    }
    return result + text.mid(at);
}

/// A value of several lines goes on within the words around it.
QString ReportData::filled(const QString& name, int row, int page, const QString& pages) const {
    if (name == "page")
        return QString::number(page + 1);
    if (name == "pages")
        return pages;
    const int found = column(name);
    if (found < 0)
        return m_values.value(name);
    return row < 0 || !has(row) ? QString() : inOneLine(shownValue(value(row, found), {}));
}

QString ReportData::picture(const QString& file) const {
    return QDir(m_folder).filePath(file);
}

/// Rows of one group stand together.
void ReportData::sort(const ReportTemplate& layout) {
    QVector<RowKey> keys;
    for (const SortKey& key : layout.sort)
        keys.append(RowKey{column(key.column), key.descending});
    for (const ReportGroup& group : layout.groups)
        keys.append(RowKey{column(group.column)});
    m_order = rowOrder(m_rows, keys);
}

} // namespace orvane
