#include "desktop/TableView.h"

#include "desktop/GridModel.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QSignalBlocker>
#include <algorithm>

namespace orvane {

namespace {

constexpr int sampledRows = 60;
constexpr int widestColumn = 340; ///< pixels; a remark of a page must not push the amounts out of sight
constexpr int cellPadding = 12;

} // namespace

TableView::TableView(QWidget* parent) : QTableView(parent) {
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
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
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setMinimumSectionSize(24);
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this] { m_widthsByHand |= !m_sizing; });
}

void TableView::setTable(TableModel* model) {
    m_table = model;
    setModel(model);
    if (model->canSort()) {
        horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
        setSortingEnabled(true);
    }
    hideColumns();
    sizeColumns();
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
    if (m_table->columnCount() != columns)
        m_widthsByHand = false;
    if (m_table->canSort() && !m_table->isSorted())
        horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    hideColumns();
    if (!m_widthsByHand)
        sizeColumns();
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
        int column = 0;
        while (column < m_table->columnCount() - 1 && isColumnHidden(column))
            ++column;
        const QPoint place(horizontalScrollBar()->value(), verticalScrollBar()->value());
        const bool another = currentIndex().isValid() && row != currentIndex().row();
        const QModelIndex index = m_table->index(row, column);
        selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        if (another)
            scrollTo(index);
        else
            verticalScrollBar()->setValue(place.y());
        horizontalScrollBar()->setValue(place.x());
    }
    viewport()->update();
}

void TableView::showRow(int row) {
    // How far the view can be scrolled is only worked out when it is shown next.
    executeDelayedItemsLayout();
    updateGeometries();
    const int across = horizontalScrollBar()->value();
    scrollTo(m_table->index(row, 0));
    horizontalScrollBar()->setValue(across);
}

/// The heads and the chosen row as a spreadsheet takes them.
void TableView::copyRow() const {
    QStringList heads, cells;
    for (int column = 0; column < m_table->columnCount(); ++column) {
        if (isColumnHidden(column))
            continue;
        heads << m_table->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
        cells << m_table->index(currentIndex().row(), column).data().toString().replace(QLatin1Char('\t'), ' ');
    }
    QApplication::clipboard()->setText(heads.join('\t') + QLatin1Char('\n') + cells.join('\t') + QLatin1Char('\n'));
}

void TableView::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) {
        if (currentIndex().isValid())
            copyRow();
        return;
    }
    const int row = currentIndex().row();
    const bool plain = event->modifiers() == Qt::NoModifier || event->modifiers() == Qt::KeypadModifier;
    if (plain && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)) {
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
    if (currentIndex().isValid() && currentIndex().row() != row)
        Q_EMIT rowPicked(currentIndex().row());
}

void TableView::mousePressEvent(QMouseEvent* event) {
    m_opened = false;
    QTableView::mousePressEvent(event);
}

void TableView::mouseReleaseEvent(QMouseEvent* event) {
    QTableView::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton && !m_opened && currentIndex().isValid() &&
        indexAt(event->position().toPoint()).isValid())
        Q_EMIT rowPicked(currentIndex().row());
}

void TableView::mouseDoubleClickEvent(QMouseEvent* event) {
    m_opened = true;
    const QModelIndex index = indexAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && index.isValid())
        Q_EMIT rowOpened(index.row());
}

void TableView::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    if (!m_widthsByHand)
        shareSlack();
}

int TableView::contentWidth(int column) const {
    QFont bold = font();
    bold.setBold(true);
    const QString head = m_table->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    int width = QFontMetrics(bold).horizontalAdvance(head) + cellPadding;
    if (const int characters = m_table->wishedCharacters(column))
        return std::max(width, fontMetrics().averageCharWidth() * characters + cellPadding);
    const int rows = std::min(m_table->rowCount(), sampledRows);
    for (int row = 0; row < rows; ++row) {
        const QString text = m_table->data(m_table->index(row, column), Qt::DisplayRole).toString();
        width = std::max(width, fontMetrics().horizontalAdvance(text) + cellPadding);
    }
    return std::min(width, widestColumn);
}

/// The header tells of a hidden column as of one that was dragged to nothing.
void TableView::hideColumns() {
    const QScopedValueRollback<bool> sizing(m_sizing, true);
    for (int column = 0; column < m_table->columnCount(); ++column)
        setColumnHidden(column, m_table->isColumnHidden(column));
}

void TableView::sizeColumns() {
    m_widths.clear();
    for (int column = 0; column < m_table->columnCount(); ++column)
        m_widths << (isColumnHidden(column) ? 0 : contentWidth(column));
    shareSlack();
}

void TableView::shareSlack() {
    const QScopedValueRollback<bool> sizing(m_sizing, true);
    int total = 0, widest = -1;
    for (int column = 0; column < int(m_widths.size()); ++column) {
        if (isColumnHidden(column))
            continue;
        total += m_widths.at(column);
        const QVariant side = m_table->headerData(column, Qt::Horizontal, Qt::TextAlignmentRole);
        const bool text = (side.toInt() & Qt::AlignRight) == 0;
        if (text && (widest < 0 || m_widths.at(column) > m_widths.at(widest)))
            widest = column;
    }
    const int slack = std::max(0, viewport()->width() - total);
    for (int column = 0; column < int(m_widths.size()); ++column)
        if (!isColumnHidden(column))
            setColumnWidth(column, m_widths.at(column) + (column == widest ? slack : 0));
}

} // namespace orvane
