#pragma once

#include <QTableView>

namespace orvane {

class TableModel;

/// Rows of a grid: one is chosen at a time, by mouse or keys. Columns take their width from the first rows; what is
/// left goes to the widest text column. A click on a head sorts where the model can.
class TableView : public QTableView {
    Q_OBJECT

public:
    explicit TableView(QWidget* parent = nullptr);
    void setTable(TableModel* model);
    void reload();             ///< rereads the model; the place scrolled to stays where the list is still the same one
    void showCurrent(int row); ///< as the control has it; -1: none. Raises nothing.
    void showRow(int row);     ///< scrolls down or up to it
    QSize sizeHint() const override;

Q_SIGNALS:
    void rowPicked(int row); ///< the user has chosen a row of the view
    void rowOpened(int row); ///< double click or Enter

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void copyRow() const;
    void hideColumns();
    void sizeColumns();
    void shareSlack();
    int contentWidth(int column) const;

    TableModel* m_table = nullptr;
    QVector<int> m_widths;       ///< by content, before the slack is shared
    bool m_widthsByHand = false; ///< the user has drawn a column wider
    bool m_sizing = false;
    bool m_opened = false; ///< the press under way is the second of a double click
};

} // namespace orvane
