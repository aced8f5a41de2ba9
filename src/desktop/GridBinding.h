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

protected:
    void refresh() override;

private:
    GridBinding(FormView& view, Control& grid, QWidget* parent, TableModel* model);
    int currentRow() const;
    void pick(int viewRow);
    void open(int viewRow);
    EntryGrid* linesToDelete() const; ///< null: its lines cannot be deleted

    TableModel* m_model;
    TableView* m_table;
    unsigned m_seen;
};

} // namespace orvane
