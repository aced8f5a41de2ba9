#include "desktop/GridMenu.h"

#include "desktop/GridBinding.h"
#include "desktop/GridModel.h"
#include "desktop/TableView.h"

#include <QMenu>

namespace orvane {

namespace {

/// A tick for each column that its form does not hide.
void addColumns(QMenu& menu, TableView& table) {
    const TableModel& model = *table.table();
    for (int column = 0; column < model.columnCount(); ++column) {
        if (model.isHiddenByForm(column))
            continue;
        QString head = model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
        QAction* action = menu.addAction(head.replace(QLatin1Char('&'), "&&"));
        action->setCheckable(true);
        action->setChecked(!model.isColumnHidden(column));
        QObject::connect(action, &QAction::toggled, &table,
                         [&table, column](bool shown) { table.columns().setShown(column, shown); });
    }
    menu.addSeparator();
    QAction* all = menu.addAction("&As at first");
    all->setEnabled(table.columns().choice() != ColumnChoice());
    QObject::connect(all, &QAction::triggered, &table, [&table] { table.columns().setChoice({}); });
}

} // namespace

QMenu* makeGridMenu(GridBinding& grid) {
    TableView* table = grid.table();
    auto* menu = new QMenu(table);
    QAction* copy = menu->addAction("&Copy", QKeySequence::Copy, table, &TableView::copyRows);
    copy->setEnabled(!table->markedRows().isEmpty());
    menu->addAction("&Find...", QKeySequence::Find, table, &TableView::findWanted);
    QAction* sheet = menu->addAction("&Export to Workbook", &grid, &GridBinding::exportRows);
    sheet->setEnabled(table->table()->rowCount() > 0);
    addColumns(*menu->addMenu("C&olumns"), *table);
    return menu;
}

} // namespace orvane
