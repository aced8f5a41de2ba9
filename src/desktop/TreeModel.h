#pragma once

#include "forms/Controls.h"

#include <QAbstractItemModel>
#include <QPointer>
#include <vector>

namespace orvane {

/// The nodes of a Tree, read from the control as they are asked for.
class TreeModel : public QAbstractItemModel {
    Q_OBJECT

public:
    TreeModel(Tree& tree, QObject* parent);
    void reload();  ///< the nodes have changed
    void catchUp(); ///< nodes have come behind the others
    int nodesShown() const { return int(m_places.size()); }
    QModelIndex indexOf(const QString& key) const; ///< invalid when there is none
    QString keyOf(const QModelIndex& index) const;

    QModelIndex index(int row, int column, const QModelIndex& parent) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent) const override;
    int columnCount(const QModelIndex&) const override { return 1; }
    QVariant data(const QModelIndex& index, int role) const override;

private:
    struct Place {
        int parent; ///< its node; -1: none
        int row;    ///< among the nodes of that parent
    };
    int nodeOf(const QString& key) const;
    int parentOf(int node);
    void place(int node, int parent);
    QModelIndex indexOfNode(int node) const;

    QPointer<Tree> m_tree;
    std::vector<Place> m_places;             ///< by node
    QHash<int, std::vector<int>> m_children; ///< by parent
    QHash<QString, int> m_parents;           ///< by key, those met so far
};

} // namespace orvane
