#include "desktop/FindLine.h"

#include "desktop/GridModel.h"
#include "desktop/Look.h"
#include "desktop/TableView.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>
#include <algorithm>

namespace orvane {

FindLine::FindLine(TableView& table, QWidget* parent)
    : QWidget(parent), m_table(table), m_text(new QLineEdit(this)), m_said(new QLabel(this)) {
    m_text->setPlaceholderText("Find in the list");
    m_text->setAccessibleName("Find in the list");
    m_text->setMinimumWidth(look::charactersWidth(*m_text, 28));
    m_text->setClearButtonEnabled(true);
    // It is entered by Ctrl+F and left by Esc: Tab goes on from field to field as ever.
    m_text->setFocusPolicy(Qt::ClickFocus);
    m_said->setTextFormat(Qt::PlainText);
    auto* box = new QHBoxLayout(this);
    box->setContentsMargins(0, 0, 0, 0);
    box->addWidget(m_text);
    box->addWidget(button(Qt::DownArrow, "Next (Enter)", true));
    box->addWidget(button(Qt::UpArrow, "Previous (Shift+Enter)", false));
    box->addWidget(m_said, 1);
    connect(m_text, &QLineEdit::textEdited, m_said, &QLabel::clear);
    connect(&table, &TableView::findWanted, this, &FindLine::begin);
    hide();
}

QToolButton* FindLine::button(Qt::ArrowType arrow, const QString& name, bool forward) {
    auto* made = new QToolButton(this);
    made->setArrowType(arrow);
    made->setFocusPolicy(Qt::NoFocus);
    made->setToolTip(name);
    made->setAccessibleName(name);
    connect(made, &QToolButton::clicked, this, [this, forward] { go(forward); });
    return made;
}

void FindLine::begin() {
    show();
    m_text->setFocus(Qt::OtherFocusReason);
    m_text->selectAll();
}

void FindLine::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter || event->key() == Qt::Key_Down || event->key() == Qt::Key_Up) {
        go(event->key() != Qt::Key_Up && !event->modifiers().testFlag(Qt::ShiftModifier));
    } else if (event->key() == Qt::Key_Escape) {
        m_table.setFocus(Qt::OtherFocusReason);
        hide();
    } else {
        QWidget::keyPressEvent(event);
    }
}

void FindLine::go(bool forward) {
    if (m_text->text().isEmpty())
        return;
    const int at = m_table.currentIndex().row();
    const QModelIndex hit = forward ? next(at) : previous(at);
    m_said->clear();
    if (!hit.isValid()) {
        m_said->setText("Not found");
        return;
    }
    if (forward ? hit.row() <= at : hit.row() >= at)
        m_said->setText(hit.row() == at ? "Only here" : forward ? "From the top again" : "From the end again");
    m_table.pick(hit);
}

/// In a list that is still being read, only what is not among the rows read so far needs all of them.
QModelIndex FindLine::next(int at) const {
    const int read = m_table.table()->rowCount();
    QModelIndex hit = firstIn(at + 1, read);
    if (!hit.isValid()) {
        m_table.table()->readAll();
        hit = firstIn(std::max(at + 1, read), m_table.table()->rowCount());
    }
    return hit.isValid() ? hit : firstIn(0, at + 1);
}

QModelIndex FindLine::previous(int at) const {
    const QModelIndex hit = firstIn(at - 1, -1);
    if (hit.isValid())
        return hit;
    m_table.table()->readAll();
    return firstIn(m_table.table()->rowCount() - 1, std::max(at, 0) - 1);
}

/// Of the rows from `from` on, in the direction of `to`, which is not among them.
QModelIndex FindLine::firstIn(int from, int to) const {
    const int step = from <= to ? 1 : -1;
    for (int row = from; row != to && row >= 0; row += step)
        if (const QModelIndex hit = hitIn(row); hit.isValid())
            return hit;
    return {};
}

QModelIndex FindLine::hitIn(int row) const {
    const TableModel& model = *m_table.table();
    for (int column = 0; column < model.columnCount(); ++column) {
        const QModelIndex cell = model.index(row, column);
        if (!model.isColumnHidden(column) && cell.data().toString().contains(m_text->text(), Qt::CaseInsensitive))
            return cell;
    }
    return {};
}

} // namespace orvane
