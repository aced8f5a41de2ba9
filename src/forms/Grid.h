#pragma once

#include "data/rows/Recordset.h"
#include "forms/Control.h"

namespace orvane {

/// Whether the amounts under this head come to something in sum; a price and a number of units do not.
bool addsUp(const QString& head);

/// The rows of a query. Columns are looked up by name without regard to case; a current row, -1 when there is none.
class Grid : public Control {
public:
    Grid(Form& form, const QString& name) : Control(form, ControlKind::Grid, name) {}
    template <typename FormClass, typename Class, typename Result>
    Grid(FormClass& form, const QString& name, Result (Class::*handler)()) : Grid(form, name) {
        onDblClick = handlerOf(form, handler);
    }

    /// Takes all rows and columns; hidden columns and formats that were set before by name go on to hold. The current
    /// row becomes the first, or -1.
    void load(const Recordset& rows);
    void clear();
    bool hasMore() const override { return !m_rows.isWhole(); }
    void readMore(int rows) override { m_rows.readMore(rows); }
    int rowsRead() const { return m_rows.rowsRead(); }
    int rowCount() const;
    int columnCount() const;
    QString columnName(int column) const;
    QString columnHead(int column) const; ///< its name, unless another head was set
    void setHead(const QString& column, const QString& head);
    int columnIndex(const QString& name) const; ///< -1 when there is none
    bool isHidden(int column) const;
    void hide(const QStringList& columns);
    void showAllColumns(); ///< undoes every hide, for a grid that shows now this query, now that
    void setFormat(const QString& column, const QString& format); ///< "#,###.00" and the like; see data/Money.h
    QString format(int column) const;
    void setWidth(const QString& column, int characters); ///< 0: from the content
    int width(int column) const;
    /// Whether the column's amounts come to something in sum: those with two decimals do, but for a price of one unit;
    /// a screen that knows better says so.
    bool isSummed(int column) const;
    void setSummed(const QString& column, bool summed);
    bool isNumber(int column) const; ///< right aligned: every value of the first rows is a number

    int currentRow() const { return m_row; }
    /// As the user's click on the row: makes it current and raises onClick. -1 or out of range: no row, no event.
    void selectRow(int row);
    QString text(const QString& column) const;  ///< of the current row; "" without one. An unknown name is asserted.
    double number(const QString& column) const; ///< of the current row; null and no row as 0
    QDate date(const QString& column) const;
    QVariant value(int row, int column) const;
    QString cellText(int row, int column) const;                   ///< as shown: formatted, dates dd/MM/yyyy
    int findRow(const QString& column, const QString& text) const; ///< -1 when none
    QString valueText() const override;                            ///< "N rows"

private:
    struct ColumnLook {
        bool hidden = false;
        QString format;
        int width = 0;
        QString head;
        std::optional<bool> summed;
    };
    Recordset m_rows;
    QHash<QString, ColumnLook> m_looks; ///< by lower-cased name
    int m_row = -1;
};

/// A grid of cells by row and column. Row 0 is the head, whose texts are given joined by "|"; the last row is the
/// empty one to type into next.
class EntryGrid : public Control {
public:
    EntryGrid(Form& form, const QString& name) : Control(form, ControlKind::EntryGrid, name) {}
    template <typename FormClass, typename Class, typename Result>
    EntryGrid(FormClass& form, const QString& name, Result (Class::*handler)()) : EntryGrid(form, name) {
        onDblClick = handlerOf(form, handler);
    }
    void setHead(const QString& head); ///< "----Item----|---Price---|...": one column each, dashes are padding only
    int columns() const { return int(m_heads.size()); }
    const QString& head(int column) const { return m_heads.at(column); } ///< without its dashes
    int rows() const { return int(m_cells.size()) + 1; }                 ///< head row included
    void addRow();
    void removeRow(int row); ///< row 1 is the first below the head
    /// The Delete key takes the current line away; unset: lines stay. Enter then opens none.
    Handler onDelete;
    void pressDelete() { raise(onDelete); }
    void clear(); ///< leaves the head and one empty row
    QString cell(int row, int column) const;
    void setCell(int row, int column, const QString& text);
    int currentRow() const { return m_row; } ///< -1 when none
    void selectRow(int row);                 ///< as the user's click
    bool isMoney(int column) const;
    void setMoney(const QList<int>& columns); ///< shown right aligned
    bool isSummed(int column) const;          ///< money, but no price of one unit and no number of units
    QString valueText() const override;

private:
    QStringList m_heads;
    QVector<QStringList> m_cells;
    QList<int> m_money;
    int m_row = -1;
};

} // namespace orvane
