#include "forms/Grid.h"

#include "data/Assert.h"
#include "data/words/Money.h"

#include <algorithm>

namespace orvane {

namespace {

/// A text that is a date or a date and time as the engines give them, in the order of day, month and year; any other as
/// it is.
QString asPeopleReadDates(const QString& text) {
    const bool looksDated = text.size() >= 10 && text.at(4) == QLatin1Char('-') && text.at(7) == QLatin1Char('-');
    if (!looksDated)
        return text;
    if (text.size() == 10) {
        const QDate date = QDate::fromString(text, "yyyy-MM-dd");
        if (date.isValid())
            return date.toString("dd/MM/yyyy");
    } else if (text.size() == 19) {
        const QDateTime time = QDateTime::fromString(text, "yyyy-MM-dd HH:mm:ss");
        if (time.isValid())
            return time.toString("dd/MM/yyyy HH:mm");
    }
    return text;
}

} // namespace

bool addsUp(const QString& head) {
    static const QStringList never = {"UnitPrice", "Price", "Cost", "No Of Units", "Qty"};
    return !never.contains(head, Qt::CaseInsensitive);
}

void Grid::load(const Recordset& rows) {
    // The screen may still be walking through its rows while the grid is painted.
    m_rows = rows.detached();
    m_row = -1; // where even the first row cannot be read
    touchContent();
    m_row = m_rows.has(0) ? 0 : -1;
}

void Grid::clear() {
    load(Recordset());
}

int Grid::rowCount() const {
    return m_rows.count();
}

int Grid::columnCount() const {
    return int(m_rows.columns().size());
}

QString Grid::columnName(int column) const {
    return m_rows.columns().at(column);
}

QString Grid::columnHead(int column) const {
    const QString name = columnName(column);
    const QString head = m_looks.value(name.toLower()).head;
    return head.isEmpty() ? name : head;
}

void Grid::setHead(const QString& column, const QString& head) {
    m_looks[column.toLower()].head = head;
    touchContent();
}

int Grid::columnIndex(const QString& name) const {
    const QStringList names = m_rows.columns();
    for (int i = 0; i < names.size(); ++i)
        if (names.at(i).compare(name, Qt::CaseInsensitive) == 0)
            return i;
    return -1;
}

bool Grid::isHidden(int column) const {
    return m_looks.value(columnName(column).toLower()).hidden;
}

void Grid::hide(const QStringList& columns) {
    for (const QString& column : columns)
        m_looks[column.toLower()].hidden = true;
    touchContent();
}

void Grid::showAllColumns() {
    for (ColumnLook& look : m_looks)
        look.hidden = false;
    touchContent();
}

void Grid::setFormat(const QString& column, const QString& format) {
    m_looks[column.toLower()].format = format;
    touchContent();
}

QString Grid::format(int column) const {
    return m_looks.value(columnName(column).toLower()).format;
}

void Grid::setWidth(const QString& column, int characters) {
    m_looks[column.toLower()].width = characters;
    touchContent();
}

int Grid::width(int column) const {
    return m_looks.value(columnName(column).toLower()).width;
}

bool Grid::isSummed(int column) const {
    const bool amounts = format(column).contains(QLatin1String(".00")) && addsUp(columnName(column));
    return m_looks.value(columnName(column).toLower()).summed.value_or(amounts);
}

void Grid::setSummed(const QString& column, bool summed) {
    m_looks[column.toLower()].summed = summed;
    touchContent();
}

bool Grid::isNumber(int column) const {
    if (!format(column).isEmpty())
        return true;
    const int sample = std::min(rowsRead(), 20);
    bool seen = false;
    for (int row = 0; row < sample; ++row) {
        const QVariant cell = value(row, column);
        if (cell.isNull())
            continue;
        const int type = cell.userType();
        if (type != QMetaType::Double && type != QMetaType::LongLong && type != QMetaType::Int)
            return false;
        seen = true;
    }
    return seen;
}

void Grid::selectRow(int row) {
    if (row < 0 || !m_rows.has(row)) {
        m_row = -1;
        touch();
        return;
    }
    m_row = row;
    touch();
    click();
}

QVariant Grid::value(int row, int column) const {
    Recordset rows = m_rows;
    rows.moveTo(row);
    return rows.value(column);
}

QString Grid::text(const QString& column) const {
    if (m_row < 0)
        return {};
    Recordset rows = m_rows;
    rows.moveTo(m_row);
    return rows.text(column);
}

double Grid::number(const QString& column) const {
    if (m_row < 0)
        return 0;
    Recordset rows = m_rows;
    rows.moveTo(m_row);
    return rows.number(column);
}

QDate Grid::date(const QString& column) const {
    if (m_row < 0)
        return {};
    Recordset rows = m_rows;
    rows.moveTo(m_row);
    return rows.date(column);
}

QString Grid::cellText(int row, int column) const {
    Recordset rows = m_rows;
    rows.moveTo(row);
    const QVariant cell = rows.value(column);
    const QString look = format(column);
    if (!look.isEmpty())
        return cell.isNull() ? QString() : formatNumber(cell.toDouble(), look);
    return asPeopleReadDates(rows.text(column));
}

int Grid::findRow(const QString& column, const QString& wanted) const {
    if (columnIndex(column) < 0)
        return -1;
    Recordset rows = m_rows.detached();
    return rows.find(column, wanted) ? rows.row() : -1;
}

QString Grid::valueText() const {
    return QStringLiteral("%1 rows").arg(rowCount());
}

void EntryGrid::setHead(const QString& head) {
    m_heads.clear();
    for (QString text : head.split(QLatin1Char('|'))) {
        while (text.startsWith(QLatin1Char('-')))
            text.remove(0, 1);
        while (text.endsWith(QLatin1Char('-')))
            text.chop(1);
        m_heads << text;
    }
    clear();
}

void EntryGrid::addRow() {
    QStringList cells;
    cells.resize(m_heads.size());
    m_cells.append(cells);
    touchContent();
}

void EntryGrid::removeRow(int row) {
    ORVANE_ASSERT(row >= 1 && row < rows());
    m_cells.removeAt(row - 1);
    m_row = -1;
    touchContent();
}

void EntryGrid::clear() {
    m_cells.clear();
    m_row = -1;
    addRow();
}

QString EntryGrid::cell(int row, int column) const {
    return m_cells.at(row - 1).at(column);
}

void EntryGrid::setCell(int row, int column, const QString& text) {
    m_cells[row - 1][column] = text;
    touch();
}

void EntryGrid::selectRow(int row) {
    m_row = row >= 1 && row < rows() ? row : -1;
    touch();
    if (m_row >= 0)
        click();
}

bool EntryGrid::isMoney(int column) const {
    return m_money.contains(column);
}

void EntryGrid::setMoney(const QList<int>& columns) {
    m_money = columns;
    touchContent();
}

bool EntryGrid::isSummed(int column) const {
    return isMoney(column) && addsUp(head(column));
}

QString EntryGrid::valueText() const {
    return QStringLiteral("%1 rows").arg(m_cells.size());
}

} // namespace orvane
