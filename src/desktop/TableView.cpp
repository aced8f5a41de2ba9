#include "desktop/TableView.h"

#include "desktop/GridModel.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSignalBlocker>
#include <algorithm>

namespace orvane {

TableView::TableView(QWidget* parent) : QTableView(parent) {
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setCornerButtonEnabled(false);
    setHorizontalScrollMode(ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 7);
    horizontalHeader()->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(horizontalHeader(), &QWidget::customContextMenuRequested, this,
            [this](QPoint place) { Q_EMIT menuWanted(horizontalHeader()->mapToGlobal(place)); });
}

void TableView::setTable(TableModel* model) {
    m_table = model;
    setModel(model);
    m_columns.setTable(*model);
}

QSize TableView::sizeHint() const {
    return {480, verticalHeader()->defaultSectionSize() * 8};
}

void TableView::reload() {
    const int rows = m_table->rowCount(), columns = m_table->columnCount();
    const QPoint place(horizontalScrollBar()->value(), verticalScrollBar()->value());
    {
        const QSignalBlocker quiet(selectionModel());
        m_table->reload();
    }
    m_columns.reload();
    const bool sameList = m_table->columnCount() == columns && std::abs(m_table->rowCount() - rows) <= 1;
    horizontalScrollBar()->setValue(sameList ? place.x() : 0);
    verticalScrollBar()->setValue(sameList ? place.y() : 0);
}

void TableView::showCurrent(int row) {
    const QSignalBlocker quiet(selectionModel());
    if (row < 0 || row >= m_table->rowCount()) {
        clearSelection();
        selectionModel()->setCurrentIndex({}, QItemSelectionModel::Clear);
    } else if (row != currentIndex().row() || !selectionModel()->isRowSelected(row)) {
        const QPoint place(horizontalScrollBar()->value(), verticalScrollBar()->value());
        const bool another = currentIndex().isValid() && row != currentIndex().row();
        const QModelIndex index = m_table->index(row, m_columns.firstShown());
        selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        if (another)
            scrollTo(index);
        else
            verticalScrollBar()->setValue(place.y());
        horizontalScrollBar()->setValue(place.x());
    }
    viewport()->update();
    Q_EMIT markedChanged();
}

void TableView::showRow(int row) {
    // How far the view can be scrolled is only worked out when it is shown next.
    executeDelayedItemsLayout();
    updateGeometries();
    const int across = horizontalScrollBar()->value();
    scrollTo(m_table->index(row, m_columns.firstShown()));
    horizontalScrollBar()->setValue(across);
}

void TableView::pick(const QModelIndex& index) {
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    scrollTo(index);
    Q_EMIT rowPicked(index.row());
}

QVector<int> TableView::markedRows() const {
    QVector<int> rows;
    for (const QItemSelectionRange& range : selectionModel()->selection())
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows << row;
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

void TableView::copyRows() const {
    const QVector<int> rows = markedRows();
    if (rows.isEmpty())
        return;
    static const QRegularExpression breaks("[\t\n\r]");
    QVector<QStringList> lines(rows.size() + 1);
    for (int column = 0; column < m_table->columnCount(); ++column) {
        if (m_table->isColumnHidden(column))
            continue;
        lines[0] << m_table->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
        for (qsizetype i = 0; i < rows.size(); ++i)
            lines[i + 1] << m_table->index(rows.at(i), column).data().toString().replace(breaks, " ");
    }
    QString text;
    for (const QStringList& line : std::as_const(lines))
        text += line.join('\t') + QLatin1Char('\n');
    QApplication::clipboard()->setText(text);
}

/// The current row is always one of the marked ones: what a screen would act on is never out of sight.
void TableView::keepCurrentMarked() {
    const QVector<int> rows = markedRows();
    if (rows.isEmpty() || rows.contains(currentIndex().row()))
        return;
    selectionModel()->setCurrentIndex(m_table->index(rows.last(), m_columns.firstShown()),
                                      QItemSelectionModel::NoUpdate);
}

void TableView::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) {
        copyRows();
        return;
    }
    const int row = currentIndex().row();
    const bool plain = event->modifiers() == Qt::NoModifier || event->modifiers() == Qt::KeypadModifier;
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if ((plain && enter) || event->matches(QKeySequence::Find)) {
        // Who shows this view says whether Enter opens a row or presses the form's default button.
        event->ignore();
        return;
    }
    if (plain && event->key() == Qt::Key_Space) {
        if (row >= 0)
            Q_EMIT rowPicked(row);
        return;
    }
    QTableView::keyPressEvent(event);
    keepCurrentMarked();
    if (currentIndex().isValid() && currentIndex().row() != row)
        Q_EMIT rowReached(currentIndex().row());
}

void TableView::mousePressEvent(QMouseEvent* event) {
    m_opened = false;
    m_rowBefore = currentIndex().row();
    QTableView::mousePressEvent(event);
    // What the menu of a right click acts on is the row that the screen acts on.
    if (event->button() == Qt::RightButton && currentIndex().isValid() && currentIndex().row() != m_rowBefore)
        Q_EMIT rowPicked(currentIndex().row());
}

void TableView::mouseReleaseEvent(QMouseEvent* event) {
    QTableView::mouseReleaseEvent(event);
    if (event->button() != Qt::LeftButton || m_opened)
        return;
    keepCurrentMarked();
    const bool onRow = indexAt(event->position().toPoint()).isValid();
    if (currentIndex().isValid() && (onRow || currentIndex().row() != m_rowBefore))
        Q_EMIT rowPicked(currentIndex().row());
}

void TableView::mouseDoubleClickEvent(QMouseEvent* event) {
    m_opened = true;
    const QModelIndex index = indexAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && index.isValid())
        Q_EMIT rowOpened(index.row());
}

void TableView::contextMenuEvent(QContextMenuEvent* event) {
    const QPoint cell = visualRect(currentIndex()).bottomLeft();
    Q_EMIT menuWanted(event->reason() == QContextMenuEvent::Keyboard ? viewport()->mapToGlobal(cell)
                                                                     : event->globalPos());
}

void TableView::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    m_columns.fillWidth();
}

/// Ctrl with a key that moves, as Ctrl+End, goes there as the key alone does.
QItemSelectionModel::SelectionFlags TableView::selectionCommand(const QModelIndex& index, const QEvent* event) const {
    const auto* key = event && event->type() == QEvent::KeyPress ? static_cast<const QKeyEvent*>(event) : nullptr;
    if (key && key->modifiers() == Qt::ControlModifier && key->key() != Qt::Key_Space)
        return QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows;
    return QTableView::selectionCommand(index, event);
}

void TableView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QTableView::selectionChanged(selected, deselected);
    Q_EMIT markedChanged();
}

} // namespace orvane
