#include "desktop/ListModels.h"

namespace orvane {

// Between a change of a control and the reload of its view the control may have fewer entries than the view believes.

void ComboModel::reload() {
    beginResetModel();
    m_rows = m_box ? m_box->entriesRead() : 0;
    endResetModel();
}

void ComboModel::catchUp() {
    if (!m_box || m_box->entriesRead() <= m_rows)
        return;
    beginInsertRows({}, m_rows, m_box->entriesRead() - 1);
    m_rows = m_box->entriesRead();
    endInsertRows();
}

int ComboModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_rows;
}

QVariant ComboModel::data(const QModelIndex& index, int role) const {
    if (!m_box || index.row() >= m_box->entriesRead() || (role != Qt::DisplayRole && role != Qt::EditRole))
        return {};
    return m_box->item(index.row());
}

void TickModel::reload() {
    beginResetModel();
    m_rows = m_list ? m_list->count() : 0;
    endResetModel();
}

void TickModel::redraw() {
    if (m_rows > 0)
        Q_EMIT dataChanged(index(0), index(m_rows - 1), {Qt::CheckStateRole});
}

int TickModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_rows;
}

QVariant TickModel::data(const QModelIndex& index, int role) const {
    if (!m_list || index.row() >= m_list->count())
        return {};
    if (role == Qt::DisplayRole)
        return m_list->item(index.row());
    if (role == Qt::CheckStateRole)
        return m_list->isSelected(index.row()) ? Qt::Checked : Qt::Unchecked;
    return {};
}

bool TickModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (!m_list || index.row() >= m_list->count() || role != Qt::CheckStateRole || !onTick)
        return false;
    onTick(index.row(), value.toInt() == Qt::Checked);
    return true;
}

Qt::ItemFlags TickModel::flags(const QModelIndex& index) const {
    return QAbstractListModel::flags(index) | Qt::ItemIsUserCheckable;
}

} // namespace orvane
