#include "desktop/GridBinding.h"

#include "desktop/FormView.h"
#include "desktop/GridMenu.h"
#include "desktop/GridModel.h"
#include "desktop/TableView.h"
#include "forms/Form.h"
#include "reports/Workbook.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QScrollBar>

namespace orvane {

namespace {

/// What is seen of the table, in the order of the view.
Sheet sheetOf(const TableModel& table) {
    Sheet sheet;
    for (int column = 0; column < table.columnCount(); ++column)
        if (!table.isColumnHidden(column))
            sheet.columns.append(
                {column, table.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString(), table.format(column)});
    sheet.rows = table.rowCount();
    sheet.value = [&table](int row, int column) { return table.value(row, column); };
    sheet.shown = [&table](int row, int column) { return table.index(row, column).data().toString(); };
    return sheet;
}

} // namespace

GridBinding::GridBinding(FormView& view, Grid& grid, QWidget* parent)
    : GridBinding(view, grid, parent, new GridModel(grid, nullptr)) {}

GridBinding::GridBinding(FormView& view, EntryGrid& grid, QWidget* parent)
    : GridBinding(view, grid, parent, new EntryGridModel(grid, nullptr)) {}

GridBinding::GridBinding(FormView& view, Control& grid, QWidget* parent, TableModel* model)
    : Binding(view, grid, new TableView(parent)), m_model(model), m_table(static_cast<TableView*>(widget())),
      m_seen(grid.contentRevision()), m_memoryKey(grid.form().name() + '/' + grid.name() + "/columns") {
    m_model->setParent(this);
    m_table->setTable(m_model);
    if (grid.onDblClick)
        m_table->setAccessibleDescription("Enter opens the row");
    m_table->columns().setChoice(ColumnChoice::of(view.memory().value(m_memoryKey)));
    connect(m_table, &TableView::rowPicked, this, &GridBinding::pick);
    connect(m_table, &TableView::rowReached, this, &GridBinding::reach);
    followUser();
    connect(m_table, &TableView::rowOpened, this, &GridBinding::open);
    connect(m_table, &TableView::menuWanted, this, &GridBinding::openMenu);
}

/// Timers of the form rest for him.
void GridBinding::followUser() {
    const auto handled = [this] { Q_EMIT view().listHandled(); };
    connect(m_table->verticalScrollBar(), &QAbstractSlider::actionTriggered, this, handled);
    connect(m_table->horizontalHeader(), &QHeaderView::sectionPressed, this, handled);
    connect(m_table, &TableView::rowReached, this, handled);
}

int GridBinding::currentRow() const {
    return control()->kind() == ControlKind::Grid ? static_cast<Grid*>(control())->currentRow()
                                                  : static_cast<EntryGrid*>(control())->currentRow();
}

void GridBinding::refresh() {
    const bool anew = m_seen != control()->contentRevision();
    const int rows = m_model->rowCount();
    // An entry grid's cells change one by one and are few.
    if (m_seen != control()->contentRevision() || control()->kind() == ControlKind::EntryGrid)
        m_table->reload();
    else
        m_model->catchUp();
    m_seen = control()->contentRevision();
    m_table->showCurrent(m_model->viewRow(currentRow()));
    // What has come last, or was chosen among rows that were read anew, is not left out of sight.
    if (control()->kind() == ControlKind::EntryGrid && m_model->rowCount() > rows)
        m_table->showRow(m_model->rowCount() - 1);
    else if (anew && currentRow() > 0)
        m_table->showRow(m_model->viewRow(currentRow()));
}

EntryGrid* GridBinding::linesToDelete() const {
    auto* lines =
        control() && control()->kind() == ControlKind::EntryGrid ? static_cast<EntryGrid*>(control()) : nullptr;
    return lines && lines->onDelete ? lines : nullptr;
}

bool GridBinding::clickDeletes() const {
    return linesToDelete() && control()->onClick;
}

/// Who goes through lines that a click takes away means to look at them.
void GridBinding::reach(int viewRow) {
    if (!clickDeletes())
        pick(viewRow);
}

/// The line that was reached last; where a click takes it away, that is done with it.
void GridBinding::deleteLine(EntryGrid& lines) {
    const unsigned before = lines.contentRevision();
    if (m_table->currentIndex().isValid() && m_model->controlRow(m_table->currentIndex().row()) != currentRow())
        pick(m_table->currentIndex().row());
    if (control() && lines.contentRevision() == before)
        press([&lines] { lines.pressDelete(); });
}

void GridBinding::pick(int viewRow) {
    if (!control())
        return;
    const int row = m_model->controlRow(viewRow);
    user([this, row] {
        if (control()->kind() == ControlKind::Grid)
            static_cast<Grid*>(control())->selectRow(row);
        else
            static_cast<EntryGrid*>(control())->selectRow(row);
    });
}

void GridBinding::open(int viewRow) {
    if (!control())
        return;
    if (m_model->controlRow(viewRow) != currentRow())
        pick(viewRow);
    press([this] { control()->dblClick(); });
}

void GridBinding::released() {
    const ColumnChoice& choice = m_table->columns().choice();
    if (choice != ColumnChoice::of(view().memory().value(m_memoryKey)))
        view().memory().keep(m_memoryKey, choice.toVariant());
}

void GridBinding::openMenu(QPoint place) {
    if (!control())
        return;
    QMenu* menu = makeGridMenu(*this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->popup(place);
}

void GridBinding::exportRows() {
    user([this] {
        Ui& ui = control()->form().ui();
        m_model->readAll();
        const QString file = exportFileName(ui.exportFolder(), control()->form().caption(), ui.now());
        exportWorkbook(sheetOf(*m_model), file);
        ui.exported(file);
    });
}

bool GridBinding::eventFilter(QObject* watched, QEvent* event) {
    const int key = event->type() == QEvent::KeyPress ? static_cast<QKeyEvent*>(event)->key() : 0;
    if (EntryGrid* lines = linesToDelete()) {
        if (key == Qt::Key_Delete) {
            deleteLine(*lines);
            return true;
        }
    } else if (key != 0 && control() && control()->onDblClick) {
        if ((key == Qt::Key_Return || key == Qt::Key_Enter) && m_table->currentIndex().isValid()) {
            open(m_table->currentIndex().row());
            return true;
        }
    }
    return Binding::eventFilter(watched, event);
}

} // namespace orvane
