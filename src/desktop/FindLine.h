#pragma once

#include <QModelIndex>
#include <QWidget>

class QLabel;
class QLineEdit;
class QToolButton;

namespace orvane {

class TableView;

/// The line below a list that finds a text in what its cells show: Enter the next one, Shift+Enter the one before,
/// round the end. Hidden until it is asked for; Esc goes back to the list.
class FindLine : public QWidget {
    Q_OBJECT

public:
    FindLine(TableView& table, QWidget* parent);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QToolButton* button(Qt::ArrowType arrow, const QString& name, bool forward);
    void begin();
    void go(bool forward);
    QModelIndex next(int at) const;
    QModelIndex previous(int at) const;
    QModelIndex firstIn(int from, int to) const;
    QModelIndex hitIn(int row) const;

    TableView& m_table;
    QLineEdit* m_text;
    QLabel* m_said;
};

} // namespace orvane
