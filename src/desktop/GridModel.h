#pragma once

#include "forms/Grid.h"

#include <QAbstractTableModel>
#include <QPointer>
#include <optional>
#include <vector>

namespace orvane {

/// A table that a TableView shows: the rows in the order of the view, mapped to the rows of its control.
class TableModel : public QAbstractTableModel {
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;
    virtual void reload() = 0; ///< rows, columns or their looks have changed
    virtual void catchUp() {}  ///< rows have come behind the others
    virtual int controlRow(int viewRow) const = 0;
    virtual int viewRow(int controlRow) const = 0; ///< -1 for no row
    virtual bool isColumnHidden(int column) const = 0;
    virtual int wishedCharacters(int column) const = 0; ///< 0: by the content
    virtual bool canSort() const = 0;
    virtual bool isSorted() const { return false; }
    /// The sum of an amounts' column over all rows; nothing for another column and while rows are still to come.
    virtual std::optional<double> total(int column) const = 0;

protected:
    QString spoken(int viewRow) const; ///< the row as a screen reader says it: heads and values
};

/// The rows of a Grid, sorted for the view by a click on a head. The control's own order and current row stay as they
/// are.
class GridModel : public TableModel {
    Q_OBJECT

public:
    GridModel(Grid& grid, QObject* parent);
    void reload() override;
    void catchUp() override;
    int controlRow(int viewRow) const override;
    int viewRow(int controlRow) const override;
    bool isColumnHidden(int column) const override;
    int wishedCharacters(int column) const override;
    bool canSort() const override { return true; }
    bool isSorted() const override { return m_sortColumn >= 0; }
    std::optional<double> total(int column) const override;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    /// Stable; -1 gives the order of the query back. Numbers by value, dates by day, texts without regard to case,
    /// empty cells first.
    void sort(int column, Qt::SortOrder order) override;

private:
    void readColumns();
    void readAll();
    void order();

    QPointer<Grid> m_grid;
    int m_rows = 0;
    QStringList m_columns;
    std::vector<bool> m_numbers;
    std::vector<int> m_order;  ///< view row to control row; empty: the same
    std::vector<int> m_places; ///< control row to view row
    int m_sortColumn = -1;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
};

/// The cells of an EntryGrid below its head, in its own order; its last row is the empty one.
class EntryGridModel : public TableModel {
    Q_OBJECT

public:
    EntryGridModel(EntryGrid& grid, QObject* parent);
    void reload() override;
    int controlRow(int viewRow) const override { return viewRow + 1; }
    int viewRow(int controlRow) const override { return controlRow < 0 ? -1 : controlRow - 1; }
    bool isColumnHidden(int) const override { return false; }
    int wishedCharacters(int) const override { return 0; }
    bool canSort() const override { return false; }
    std::optional<double> total(int column) const override;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QPointer<EntryGrid> m_grid;
    int m_rows = 0, m_columns = 0;
};

} // namespace orvane
