#include "desktop/TreeModel.h"

namespace orvane {

TreeModel::TreeModel(Tree& tree, QObject* parent) : QAbstractItemModel(parent), m_tree(&tree) {
    reload();
}

void TreeModel::reload() {
    beginResetModel();
    m_places.clear();
    m_children.clear();
    m_parents.clear();
    const int nodes = m_tree ? int(m_tree->nodesRead().size()) : 0;
    for (int node = 0; node < nodes; ++node)
        place(node, parentOf(node));
    endResetModel();
}

void TreeModel::catchUp() {
    const int nodes = m_tree ? int(m_tree->nodesRead().size()) : 0;
    while (nodesShown() < nodes) {
        const int first = nodesShown(), parent = parentOf(first);
        int end = first + 1;
        while (end < nodes && m_tree->nodesRead().at(end).parentKey == m_tree->nodesRead().at(first).parentKey)
            ++end;
        const int row = int(m_children[parent].size());
        beginInsertRows(indexOfNode(parent), row, row + end - first - 1);
        for (int node = first; node < end; ++node)
            place(node, parent);
        endInsertRows();
    }
}

void TreeModel::place(int node, int parent) {
    std::vector<int>& beside = m_children[parent];
    m_places.push_back({parent, int(beside.size())});
    beside.push_back(node);
}

/// A node below none, or below one that is not there, is a root.
int TreeModel::parentOf(int node) {
    const QString& key = m_tree->nodesRead().at(node).parentKey;
    if (key.isEmpty())
        return -1;
    const auto known = m_parents.constFind(key);
    return known != m_parents.cend() ? *known : *m_parents.insert(key, nodeOf(key));
}

int TreeModel::nodeOf(const QString& key) const {
    for (int node = 0; node < nodesShown(); ++node)
        if (m_tree->nodesRead().at(node).key == key)
            return node;
    return -1;
}

QModelIndex TreeModel::indexOfNode(int node) const {
    return node < 0 ? QModelIndex() : createIndex(m_places[std::size_t(node)].row, 0, quintptr(node));
}

QModelIndex TreeModel::indexOf(const QString& key) const {
    return m_tree && !key.isEmpty() ? indexOfNode(nodeOf(key)) : QModelIndex();
}

QString TreeModel::keyOf(const QModelIndex& index) const {
    const int node = int(index.internalId());
    return m_tree && index.isValid() && node < m_tree->nodesRead().size() ? m_tree->nodesRead().at(node).key
                                                                          : QString();
}

QModelIndex TreeModel::index(int row, int column, const QModelIndex& parent) const {
    const auto children = m_children.constFind(parent.isValid() ? int(parent.internalId()) : -1);
    if (column != 0 || children == m_children.cend() || row < 0 || row >= int(children->size()))
        return {};
    return createIndex(row, 0, quintptr((*children)[std::size_t(row)]));
}

QModelIndex TreeModel::parent(const QModelIndex& index) const {
    return index.isValid() ? indexOfNode(m_places[std::size_t(index.internalId())].parent) : QModelIndex();
}

int TreeModel::rowCount(const QModelIndex& parent) const {
    const auto children = m_children.constFind(parent.isValid() ? int(parent.internalId()) : -1);
    return children == m_children.cend() ? 0 : int(children->size());
}

QVariant TreeModel::data(const QModelIndex& index, int role) const {
    const int node = int(index.internalId());
    // Between a change of the control and the reload the control may have fewer nodes.
    if (role != Qt::DisplayRole || !m_tree || node >= m_tree->nodesRead().size())
        return {};
    return m_tree->nodesRead().at(node).text;
}

} // namespace orvane
