#pragma once

#include <QLabel>

namespace orvane {

class TableView;

/// The line below a list with amounts: how many rows it has and what its amounts come to, and the same of several rows
/// that are marked. Hidden for any other list; while rows are still to come it says so and gives no sum of a part.
class TotalsLine : public QLabel {
    Q_OBJECT

public:
    TotalsLine(TableView& table, QWidget* parent);

private:
    int rowsEntered() const;
    void sumUpAll();
    void sumUpMarked();
    QString sums(const QVector<int>& rows) const;

    TableView& m_table;
    QString m_all; ///< what is said of all rows
};

} // namespace orvane
