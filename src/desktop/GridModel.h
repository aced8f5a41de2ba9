#pragma once

#include "forms/Grid.h"

#include <QAbstractTableModel>
#include <QPointer>
#include <vector>

namespace orvane {

/// A table that a TableView shows: the rows in the order of the view, mapped to the rows of its control.
class TableModel : public QAbstractTableModel {
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;
    virtual void reload() = 0;                     ///< rows, columns or their looks have changed
    virtual void catchUp() {}                      ///< rows have come behind the others
    virtual bool hasMore() const { return false; } ///< rows are still to come
    virtual void readAll() {}                      ///< all of them, at once
    virtual int controlRow(int viewRow) const = 0;
    virtual int viewRow(int controlRow) const = 0;    ///< -1 for no row
    virtual QString columnName(int column) const = 0; ///< by which its user's choices are remembered; small letters
    /// By the form, by its user, or both. A choice that would leave no column is not followed.
    bool isColumnHidden(int column) const;
    virtual bool isHiddenByForm(int column) const = 0;
    void setHiddenByUser(const QStringList& names) { m_hiddenByUser = names; }
    virtual int wishedCharacters(int column) const = 0; ///< 0: by the content
    virtual bool canSort() const = 0;
    virtual bool isSorted() const { return false; }
    virtual bool isSummed(int column) const = 0;               ///< its amounts come to something in sum
    virtual double amount(int viewRow, int column) const = 0;  ///< naira, of a summed column
    virtual QVariant value(int viewRow, int column) const = 0; ///< what the cell holds, for a workbook
    virtual QString format(int column) const = 0;              ///< of its numbers; see data/Money.h

protected:
    QString spoken(int viewRow) const; ///< the row as a screen reader says it: heads and values

private:
    QStringList m_hiddenByUser;
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
    bool hasMore() const override { return m_grid && m_grid->hasMore(); }
    void readAll() override;
    QString columnName(int column) const override { return m_names.at(column); }
    bool isHiddenByForm(int column) const override;
    int wishedCharacters(int column) const override;
    bool canSort() const override { return true; }
    bool isSorted() const override { return m_sortColumn >= 0; }
    bool isSummed(int column) const override;
    double amount(int viewRow, int column) const override { return value(viewRow, column).toDouble(); }
    QVariant value(int viewRow, int column) const override;
    QString format(int column) const override;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    /// Stable; -1 gives the order of the query back. Numbers by value, dates by day, texts without regard to case,
    /// empty cells first.
    void sort(int column, Qt::SortOrder order) override;

private:
    void readColumns();
    void order();

    QPointer<Grid> m_grid;
    int m_rows = 0;
    QStringList m_columns; ///< heads
    QStringList m_names;
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
    QString columnName(int column) const override;
    bool isHiddenByForm(int) const override { return false; }
    int wishedCharacters(int) const override { return 0; }
    bool canSort() const override { return false; }
    bool isSummed(int column) const override { return m_grid && m_grid->isSummed(column); }
    double amount(int viewRow, int column) const override { return value(viewRow, column).toDouble(); }
    QVariant value(int viewRow, int column) const override;
    QString format(int column) const override { return isSummed(column) ? "#,##0.00" : QString(); }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QPointer<EntryGrid> m_grid;
    int m_rows = 0, m_columns = 0;
};

} // namespace orvane
