#pragma once

#include "desktop/Binding.h"
#include "forms/Grid.h"

namespace orvane {

class TableModel;
class TableView;

/// A Grid or an EntryGrid.
class GridBinding : public Binding {
    Q_OBJECT

public:
    GridBinding(FormView& view, Grid& grid, QWidget* parent);
    GridBinding(FormView& view, EntryGrid& grid, QWidget* parent);
    TableView* table() const { return m_table; }
    TableModel* model() const { return m_model; }
    bool eventFilter(QObject* watched, QEvent* event) override;

    /// Saves the rows as the view has them, in a workbook in the user's documents, and opens it.
    void exportRows();

protected:
    void refresh() override;
    void released() override;

private:
    GridBinding(FormView& view, Control& grid, QWidget* parent, TableModel* model);
    void openMenu(QPoint place);
    int currentRow() const;
    void pick(int viewRow);
    void reach(int viewRow);
    void deleteLine(EntryGrid& lines);
    void followUser();
    void open(int viewRow);
    EntryGrid* linesToDelete() const; ///< null: its lines cannot be deleted
    bool clickDeletes() const;        ///< a click on a line takes it away

    TableModel* m_model;
    TableView* m_table;
    unsigned m_seen;
    QString m_memoryKey;
};

} // namespace orvane
