#include "desktop/FindLine.h"

#include "desktop/Look.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

namespace orvane {

FindLine::FindLine(const QString& place, QWidget& searched, QWidget* parent)
    : QWidget(parent), m_searched(searched), m_text(new QLineEdit(this)), m_said(new QLabel(this)) {
    m_text->setPlaceholderText("Find in the " + place);
    m_text->setAccessibleName("Find in the " + place);
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
    connect(m_text, &QLineEdit::textChanged, this, &FindLine::textChanged);
    hide();
}

QToolButton* FindLine::button(Qt::ArrowType arrow, const QString& name, bool forward) {
    auto* made = new QToolButton(this);
    made->setArrowType(arrow);
    made->setFocusPolicy(Qt::NoFocus);
    made->setToolTip(name);
    made->setAccessibleName(name);
    connect(made, &QToolButton::clicked, this, [this, forward] { wanted(forward); });
    return made;
}

void FindLine::begin() {
    show();
    m_text->setFocus(Qt::OtherFocusReason);
    m_text->selectAll();
}

QString FindLine::text() const {
    return m_text->text();
}

void FindLine::say(const QString& words) {
    m_said->setText(words);
}

void FindLine::wanted(bool forward) {
    m_said->clear();
    if (!m_text->text().isEmpty())
        go(forward);
}

void FindLine::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter || event->key() == Qt::Key_Down || event->key() == Qt::Key_Up) {
        wanted(event->key() != Qt::Key_Up && !event->modifiers().testFlag(Qt::ShiftModifier));
    } else if (event->key() == Qt::Key_Escape) {
        m_searched.setFocus(Qt::OtherFocusReason);
        hide();
        left();
    } else {
        QWidget::keyPressEvent(event);
    }
}

} // namespace orvane
