#include "desktop/GridModel.h"

#include "data/words/Money.h"
#include "desktop/Look.h"
#include "forms/Form.h"

#include <algorithm>
#include <limits>
#include <numeric>

namespace orvane {

namespace {

constexpr int longText = 36; ///< characters; a column may be too narrow for more, the hint shows them

QVariant alignment(bool right) {
    return int((right ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
}

template <typename Key>
void sortByKey(std::vector<int>& order, const std::vector<Key>& keys, Qt::SortOrder direction) {
    if (direction == Qt::AscendingOrder)
        std::stable_sort(order.begin(), order.end(),
                         [&](int a, int b) { return keys[std::size_t(a)] < keys[std::size_t(b)]; });
    else
        std::stable_sort(
            order.begin(), order.end(), [&](int a, int b) { return keys[std::size_t(b)] < keys[std::size_t(a)]; });
}

} // namespace

bool TableModel::isColumnHidden(int column) const {
    const auto seen = [this](int which) {
        return !isHiddenByForm(which) && !m_hiddenByUser.contains(columnName(which));
    };
    if (isHiddenByForm(column) || seen(column))
        return !seen(column);
    for (int other = 0; other < columnCount(); ++other)
        if (seen(other))
            return true;
    return false;
}

QString TableModel::spoken(int viewRow) const {
    QStringList words;
    for (int column = 0; column < columnCount(); ++column) {
        const QString text = data(index(viewRow, column), Qt::DisplayRole).toString();
        if (!isColumnHidden(column) && !text.isEmpty())
            words << headerData(column, Qt::Horizontal, Qt::DisplayRole).toString() + QLatin1Char(' ') + text;
    }
    return words.join(", ");
}

GridModel::GridModel(Grid& grid, QObject* parent) : TableModel(parent), m_grid(&grid) {
    readColumns();
}

void GridModel::readColumns() {
    m_rows = m_grid->rowsRead();
    m_columns.clear();
    m_names.clear();
    m_numbers.clear();
    for (int column = 0; column < m_grid->columnCount(); ++column) {
        m_columns << m_grid->columnHead(column);
        m_names << m_grid->columnName(column).toLower();
        m_numbers.push_back(m_grid->isNumber(column));
    }
}

void GridModel::reload() {
    if (!m_grid)
        return;
    beginResetModel();
    const QStringList columns = m_columns;
    readColumns();
    // To sort a long list is to read it all first, which its user has asked for in the list before this one.
    if (columns != m_columns || m_grid->hasMore())
        m_sortColumn = -1;
    order();
    endResetModel();
}

void GridModel::catchUp() {
    if (!m_grid || m_grid->rowsRead() <= m_rows)
        return;
    beginInsertRows({}, m_rows, m_grid->rowsRead() - 1);
    m_rows = m_grid->rowsRead();
    endInsertRows();
}

void GridModel::readAll() {
    if (m_grid && m_grid->hasMore())
        m_grid->form().run([this] { m_grid->rowCount(); });
    catchUp();
}

void GridModel::order() {
    m_order.clear();
    m_places.clear();
    if (m_sortColumn < 0 || !m_grid)
        return;
    m_order.resize(std::size_t(m_rows));
    std::iota(m_order.begin(), m_order.end(), 0);
    if (m_numbers[std::size_t(m_sortColumn)]) {
        std::vector<double> keys(m_order.size());
        for (int row = 0; row < m_rows; ++row) {
            const QVariant cell = m_grid->value(row, m_sortColumn);
            keys[std::size_t(row)] = cell.isNull() ? -std::numeric_limits<double>::infinity() : cell.toDouble();
        }
        sortByKey(m_order, keys, m_sortOrder);
    } else {
        // A date gives its ISO text, which sorts by day.
        std::vector<QString> keys(m_order.size());
        for (int row = 0; row < m_rows; ++row)
            keys[std::size_t(row)] = m_grid->value(row, m_sortColumn).toString().toCaseFolded();
        sortByKey(m_order, keys, m_sortOrder);
    }
    m_places.resize(m_order.size());
    for (std::size_t view = 0; view < m_order.size(); ++view)
        m_places[std::size_t(m_order[view])] = int(view);
}

void GridModel::sort(int column, Qt::SortOrder direction) {
    if (column == m_sortColumn && direction == m_sortOrder)
        return;
    if (column >= 0)
        readAll();
    Q_EMIT layoutAboutToBeChanged();
    const QModelIndexList before = persistentIndexList();
    QVector<int> rows;
    for (const QModelIndex& index : before)
        rows << controlRow(index.row());
    m_sortColumn = column < columnCount() ? column : -1;
    m_sortOrder = direction;
    order();
    QModelIndexList after;
    for (qsizetype i = 0; i < before.size(); ++i)
        after << index(viewRow(rows.at(i)), before.at(i).column());
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged();
}

int GridModel::controlRow(int viewRow) const {
    return m_order.empty() || viewRow < 0 ? viewRow : m_order.at(std::size_t(viewRow));
}

int GridModel::viewRow(int controlRow) const {
    return m_places.empty() || controlRow < 0 ? controlRow : m_places.at(std::size_t(controlRow));
}

bool GridModel::isHiddenByForm(int column) const {
    return m_grid && column < m_grid->columnCount() && m_grid->isHidden(column);
}

int GridModel::wishedCharacters(int column) const {
    return m_grid ? m_grid->width(column) : 0;
}

int GridModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_rows;
}

int GridModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(m_columns.size());
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
    if (role == Qt::TextAlignmentRole)
        return alignment(m_numbers[std::size_t(index.column())]);
    if (role == Qt::AccessibleTextRole)
        return spoken(index.row());
    if ((role != Qt::DisplayRole && role != Qt::ToolTipRole) || !m_grid)
        return {};
    // Between a change of the control and the reload the control may have fewer rows or other columns.
    const int row = controlRow(index.row());
    if (row >= m_grid->rowsRead() || index.column() >= m_grid->columnCount())
        return {};
    const QString text = m_grid->cellText(row, index.column());
    if (role == Qt::DisplayRole)
        return text;
    return text.size() > longText ? QVariant(look::plainHint(text)) : QVariant();
}

bool GridModel::isSummed(int column) const {
    return m_grid && column < m_grid->columnCount() && m_numbers[std::size_t(column)] && m_grid->isSummed(column);
}

QVariant GridModel::value(int viewRow, int column) const {
    const int row = controlRow(viewRow);
    const bool there = m_grid && row < m_grid->rowsRead() && column < m_grid->columnCount();
    return there ? m_grid->value(row, column) : QVariant();
}

QString GridModel::format(int column) const {
    return m_grid && column < m_grid->columnCount() ? m_grid->format(column) : QString();
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section >= columnCount())
        return {};
    if (role == Qt::DisplayRole)
        return m_columns.at(section);
    if (role == Qt::TextAlignmentRole)
        return alignment(m_numbers[std::size_t(section)]);
    return {};
}

EntryGridModel::EntryGridModel(EntryGrid& grid, QObject* parent) : TableModel(parent), m_grid(&grid) {
    reload();
}

void EntryGridModel::reload() {
    beginResetModel();
    m_rows = m_grid ? m_grid->rows() - 1 : 0;
    m_columns = m_grid ? m_grid->columns() : 0;
    endResetModel();
}

int EntryGridModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_rows;
}

int EntryGridModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_columns;
}

QVariant EntryGridModel::data(const QModelIndex& index, int role) const {
    if (!m_grid || index.row() + 1 >= m_grid->rows() || index.column() >= m_grid->columns())
        return {};
    if (role == Qt::AccessibleTextRole)
        return spoken(index.row());
    if (role == Qt::DisplayRole)
        return m_grid->cell(index.row() + 1, index.column());
    if (role == Qt::TextAlignmentRole)
        return alignment(m_grid->isMoney(index.column()));
    return {};
}

QString EntryGridModel::columnName(int column) const {
    return m_grid && column < m_grid->columns() ? m_grid->head(column).toLower() : QString();
}

QVariant EntryGridModel::value(int viewRow, int column) const {
    if (!m_grid || viewRow + 1 >= m_grid->rows() || column >= m_grid->columns())
        return {};
    const QString text = m_grid->cell(viewRow + 1, column);
    const std::optional<double> amount = m_grid->isMoney(column) ? parseAmount(text) : std::nullopt;
    return amount ? QVariant(*amount) : QVariant(text);
}

QVariant EntryGridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (!m_grid || orientation != Qt::Horizontal || section >= m_grid->columns())
        return {};
    if (role == Qt::DisplayRole)
        return m_grid->head(section);
    if (role == Qt::TextAlignmentRole)
        return alignment(m_grid->isMoney(section));
    return {};
}

} // namespace orvane
