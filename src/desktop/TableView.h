#pragma once

#include "desktop/GridColumns.h"

#include <QTableView>

namespace orvane {

class TableModel;

/// Rows of a grid: one is the current one, chosen by mouse or keys; with Shift or Ctrl others are marked beside it. A
/// click on a head sorts where the model can.
class TableView : public QTableView {
    Q_OBJECT

public:
    explicit TableView(QWidget* parent = nullptr);
    void setTable(TableModel* model);
    TableModel* table() const { return m_table; }
    GridColumns& columns() { return m_columns; }
    void reload();             ///< rereads the model; the place scrolled to stays where the list is still the same one
    void showCurrent(int row); ///< as the control has it; -1: none. Rows marked beside it stay. Raises nothing.
    void showRow(int row);     ///< scrolls down or up to it
    void pick(const QModelIndex& index); ///< as the user's click on the cell, and brings it in sight
    QVector<int> markedRows() const;     ///< of the view, in its order; the current one is among them
    void copyRows() const;               ///< the heads and the marked rows, as a spreadsheet takes them
    QSize sizeHint() const override;

Q_SIGNALS:
    void rowPicked(int row);       ///< the user has chosen a row of the view
    void rowReached(int row);      ///< he has gone on to it with the keys
    void rowOpened(int row);       ///< double click or Enter
    void markedChanged();          ///< other rows may be marked
    void findWanted();             ///< the line that finds a text is asked for
    void menuWanted(QPoint place); ///< a right click or the menu key; on the screen

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index, const QEvent* event) const override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

private:
    void keepCurrentMarked();

    TableModel* m_table = nullptr;
    GridColumns m_columns{*this};
    int m_rowBefore = -1;  ///< the current one when the mouse was pressed
    bool m_opened = false; ///< the press under way is the second of a double click
};

} // namespace orvane
