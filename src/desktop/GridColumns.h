#pragma once

#include <QHash>
#include <QObject>
#include <QStringList>
#include <QTableView>
#include <QVariant>

namespace orvane {

class TableModel;

/// What its user has made of a list's columns. A column goes by its name: what a list no longer has says nothing.
struct ColumnChoice {
    QHash<QString, int> widths; ///< of columns that were drawn by hand, pixels
    QStringList hidden;
    QString sortColumn; ///< empty: the list's own order
    Qt::SortOrder sortOrder = Qt::AscendingOrder;

    QVariant toVariant() const; ///< invalid when nothing was chosen
    static ColumnChoice of(const QVariant& kept);
    bool operator==(const ColumnChoice&) const = default;
};

/// The columns of a view: which are seen, how wide they are, by which one it is sorted. Columns take their width from
/// the first rows, but for those that the user has drawn; what is left goes to the widest text column of the others.
class GridColumns : public QObject {
    Q_OBJECT

public:
    explicit GridColumns(QTableView& view);
    void setTable(TableModel& table);
    const ColumnChoice& choice() const { return m_choice; }
    void setChoice(const ColumnChoice& choice);
    void reload();                         ///< the table's rows or columns are others
    void fillWidth();                      ///< the view is wider or narrower
    void setShown(int column, bool shown); ///< by the user; the last one in sight stays
    int firstShown() const;                ///< 0 where none is

Q_SIGNALS:
    void arranged(); ///< other columns may be seen

private:
    void noteWidth(int column, int width);
    void noteSort(int column, Qt::SortOrder order);
    void hide();
    void measure();
    void sortAsChosen();
    int contentWidth(int column) const;

    QTableView& m_view;
    TableModel* m_table = nullptr;
    ColumnChoice m_choice;
    QVector<int> m_widths;    ///< before the slack is shared, pixels
    bool m_arranging = false; ///< what the header tells is not its user's doing
};

} // namespace orvane
