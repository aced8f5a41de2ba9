#include "desktop/GridColumns.h"

#include "desktop/GridModel.h"

#include <QHeaderView>
#include <QScopedValueRollback>
#include <algorithm>

namespace orvane {

namespace {

constexpr int sampledRows = 60;
constexpr int widestColumn = 340; ///< pixels; a remark of a page must not push the amounts out of sight
constexpr int cellPadding = 12;
constexpr int widestKept = 4000; ///< pixels; a damaged file must not push the other columns out of reach
constexpr int narrowestColumn = 24;

} // namespace

QVariant ColumnChoice::toVariant() const {
    if (*this == ColumnChoice())
        return {};
    QVariantMap drawn;
    for (auto width = widths.cbegin(); width != widths.cend(); ++width)
        drawn.insert(width.key(), width.value());
    return QVariantMap{
        {"widths", drawn}, {"hidden", hidden}, {"sort", sortColumn}, {"descending", sortOrder == Qt::DescendingOrder}};
}

ColumnChoice ColumnChoice::of(const QVariant& kept) {
    const QVariantMap map = kept.toMap();
    const QVariantMap drawn = map.value("widths").toMap();
    ColumnChoice choice;
    for (auto width = drawn.cbegin(); width != drawn.cend(); ++width)
        choice.widths.insert(width.key(), std::clamp(width.value().toInt(), narrowestColumn, widestKept));
    choice.hidden = map.value("hidden").toStringList();
    choice.sortColumn = map.value("sort").toString();
    choice.sortOrder = map.value("descending").toBool() ? Qt::DescendingOrder : Qt::AscendingOrder;
    return choice;
}

GridColumns::GridColumns(QTableView& view) : QObject(&view), m_view(view) {
    QHeaderView* head = view.horizontalHeader();
    head->setHighlightSections(false);
    head->setMinimumSectionSize(narrowestColumn);
    head->setSortIndicatorClearable(true);
    connect(head, &QHeaderView::sectionResized, this, [this](int column, int, int width) { noteWidth(column, width); });
    connect(head, &QHeaderView::sortIndicatorChanged, this, &GridColumns::noteSort);
}

void GridColumns::noteWidth(int column, int width) {
    if (m_arranging || !m_table || column >= int(m_widths.size()))
        return;
    m_widths[column] = std::max(width, narrowestColumn);
    m_choice.widths.insert(m_table->columnName(column), m_widths.at(column));
}

void GridColumns::noteSort(int column, Qt::SortOrder order) {
    if (m_arranging || !m_table)
        return;
    m_choice.sortColumn = column >= 0 && column < m_table->columnCount() ? m_table->columnName(column) : QString();
    m_choice.sortOrder = column >= 0 ? order : Qt::AscendingOrder;
}

void GridColumns::setTable(TableModel& table) {
    m_table = &table;
    const QScopedValueRollback<bool> arranging(m_arranging, true);
    if (table.canSort()) {
        m_view.horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
        m_view.setSortingEnabled(true);
    }
    reload();
}

void GridColumns::setChoice(const ColumnChoice& choice) {
    const QScopedValueRollback<bool> arranging(m_arranging, true);
    m_choice = choice;
    if (m_table->isSorted())
        m_view.horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    reload();
}

void GridColumns::reload() {
    const QScopedValueRollback<bool> arranging(m_arranging, true);
    hide();
    measure();
    fillWidth();
    sortAsChosen();
    Q_EMIT arranged();
}

/// The header tells of a hidden column as of one that was dragged to nothing.
void GridColumns::hide() {
    m_table->setHiddenByUser(m_choice.hidden);
    for (int column = 0; column < m_table->columnCount(); ++column)
        m_view.setColumnHidden(column, m_table->isColumnHidden(column));
}

void GridColumns::setShown(int column, bool shown) {
    const QString name = m_table->columnName(column);
    int others = 0;
    for (int other = 0; other < m_table->columnCount(); ++other)
        others += int(other != column && !m_table->isColumnHidden(other));
    m_choice.hidden.removeAll(name);
    if (!shown && others > 0)
        m_choice.hidden << name;
    reload();
}

int GridColumns::firstShown() const {
    for (int column = 0; column < m_table->columnCount(); ++column)
        if (!m_view.isColumnHidden(column))
            return column;
    return 0;
}

/// A list that is still being read comes in its own order: to sort it is to read it all first.
void GridColumns::sortAsChosen() {
    if (!m_table->canSort() || m_table->isSorted())
        return;
    int column = m_table->hasMore() || m_choice.sortColumn.isEmpty() ? -1 : m_table->columnCount() - 1;
    while (column >= 0 && m_table->columnName(column) != m_choice.sortColumn)
        --column;
    // The mark may still stand where the rows before were sorted by.
    m_view.horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    if (column >= 0)
        m_view.horizontalHeader()->setSortIndicator(column, m_choice.sortOrder);
}

int GridColumns::contentWidth(int column) const {
    QFont bold = m_view.font();
    bold.setBold(true);
    const QFontMetrics metrics = m_view.fontMetrics();
    const QString head = m_table->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    int width = QFontMetrics(bold).horizontalAdvance(head) + cellPadding;
    if (const int characters = m_table->wishedCharacters(column))
        return std::max(width, metrics.averageCharWidth() * characters + cellPadding);
    const int rows = std::min(m_table->rowCount(), sampledRows);
    for (int row = 0; row < rows; ++row) {
        const QString text = m_table->data(m_table->index(row, column), Qt::DisplayRole).toString();
        width = std::max(width, metrics.horizontalAdvance(text) + cellPadding);
    }
    return std::min(width, widestColumn);
}

void GridColumns::measure() {
    m_widths.clear();
    for (int column = 0; column < m_table->columnCount(); ++column) {
        const int drawn = m_choice.widths.value(m_table->columnName(column));
        m_widths << (m_view.isColumnHidden(column) ? 0 : drawn > 0 ? drawn : contentWidth(column));
    }
}

void GridColumns::fillWidth() {
    const QScopedValueRollback<bool> arranging(m_arranging, true);
    // While the table is reset its columns are others already.
    const int columns = std::min(int(m_widths.size()), m_table ? m_table->columnCount() : 0);
    int total = 0, widest = -1;
    for (int column = 0; column < columns; ++column) {
        if (m_view.isColumnHidden(column))
            continue;
        total += m_widths.at(column);
        const QVariant side = m_table->headerData(column, Qt::Horizontal, Qt::TextAlignmentRole);
        const bool text = (side.toInt() & Qt::AlignRight) == 0;
        const bool drawn = m_choice.widths.contains(m_table->columnName(column));
        if (text && !drawn && (widest < 0 || m_widths.at(column) > m_widths.at(widest)))
            widest = column;
    }
    const int slack = std::max(0, m_view.viewport()->width() - total);
    for (int column = 0; column < columns; ++column)
        if (!m_view.isColumnHidden(column))
            m_view.setColumnWidth(column, m_widths.at(column) + (column == widest ? slack : 0));
}

} // namespace orvane
