#include "desktop/TextBinding.h"

#include "data/words/Money.h"
#include "desktop/FormView.h"
#include "desktop/Look.h"
#include "desktop/UnreadMark.h"
#include "desktop/WorkedOut.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QScopedValueRollback>
#include <QTextDocument>
#include <algorithm>
#include <cmath>
#include <utility>

namespace orvane {

namespace {

void showLocked(QWidget& widget, bool locked) {
    QPalette palette;
    if (locked)
        palette.setColor(QPalette::Base, look::color(look::Tone::ReadOnly));
    widget.setPalette(palette);
}

} // namespace

QString takeOneLine(QLineEdit& line) {
    static const QRegularExpression lineBreak("[\n\r\u2028\u2029]");
    const QString text = QString(line.text()).replace(lineBreak, " ");
    if (text != line.text()) {
        const int cursor = line.cursorPosition();
        line.setText(text);
        line.setCursorPosition(cursor);
    }
    return text;
}

LineBinding::LineBinding(FormView& view, TextBox& box, QWidget* parent, Place place, int characters)
    : Binding(view, box, new QLineEdit(parent)), m_box(&box), m_line(static_cast<QLineEdit*>(widget())), m_place(place),
      m_characters(characters) {
    if (box.isMasked())
        m_line->setEchoMode(QLineEdit::Password);
    if (box.isNumeric() || place == Place::Card || place == Place::Large)
        m_line->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    look::mark(*m_line, "large", place == Place::Large);
    connect(m_line, &QLineEdit::textEdited, this, [this] { typed(takeOneLine(*m_line)); });
}

void LineBinding::typed(const QString& text) {
    // What was typed while an event ran was typed into what stood here then.
    if (m_box)
        userEdit([this, text, before = m_box->text()] {
            if (m_box->text() == before)
                m_box->setText(text);
        });
}

void LineBinding::refresh() {
    // A number that cannot be read is marked at once, as a date is.
    const QString number = m_box->isNumeric() && !m_box->isLocked() ? m_box->text().trimmed() : QString();
    const bool unread = !number.isEmpty() && !parseAmount(number) && !workedOut(number);
    markUnread(*m_line, unread ? QStringLiteral("“%1” is not a number.").arg(number) : QString());

    const bool flat = m_place != Place::Plain && m_box->isLocked();
    look::mark(*m_line, "flat", flat);
    if (!flat)
        showLocked(*m_line, m_box->isLocked());
    m_line->setReadOnly(m_box->isLocked());
    m_line->setFocusPolicy(flat ? Qt::NoFocus : Qt::StrongFocus);
    // A limit below what code has put in would cut the text that is there.
    const int limit = m_box->maxLength() > 0 ? std::max(m_box->maxLength(), int(m_box->text().size())) : 32767;
    if (m_line->maxLength() != limit) // setting it moves the cursor
        m_line->setMaxLength(limit);
    if (m_line->text() != m_box->text()) {
        const int cursor = m_line->cursorPosition();
        const bool typing = m_line->hasFocus() && m_line->text().size() == m_box->text().size();
        m_line->setText(m_box->text());
        m_line->setCursorPosition(typing || (m_line->hasFocus() && cursor < m_box->text().size()) ? cursor : 0);
        if (m_line->hasFocus() && !typing)
            m_line->end(false);
    }
    if (m_box->takeTypeOver())
        m_line->selectAll();
    if (m_place == Place::Facts && flat) {
        QFont bold = m_line->font();
        bold.setBold(true);
        const int wide = QFontMetrics(bold).horizontalAdvance(m_line->text()) + 12;
        m_line->setFixedWidth(std::clamp(wide, 60, 320));
    } else if (m_characters > 0) {
        m_line->setFixedWidth(look::charactersWidth(*m_line, m_characters) + 14);
    }
}

bool LineBinding::settle() {
    const std::optional<double> result =
        m_box && m_box->isNumeric() && !m_box->isLocked() ? workedOut(m_box->text()) : std::nullopt;
    if (result)
        typed(formatNumber(*result, *result == std::floor(*result) ? "0" : "0.00"));
    return true;
}

bool LineBinding::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusOut && static_cast<QFocusEvent*>(event)->reason() != Qt::ActiveWindowFocusReason)
        settle();
    // A click into a number is there to type another one over it; a second click finds the place for a correction.
    if (event->type() == QEvent::FocusIn && m_box && m_box->isNumeric())
        m_clickSelects = static_cast<QFocusEvent*>(event)->reason() == Qt::MouseFocusReason;
    if (event->type() == QEvent::MouseButtonRelease && std::exchange(m_clickSelects, false) &&
        !m_line->hasSelectedText())
        m_line->selectAll();
    const int key = event->type() == QEvent::KeyPress ? static_cast<QKeyEvent*>(event)->key() : 0;
    const bool enter = key == Qt::Key_Return || key == Qt::Key_Enter;
    const Control::Handler handler = !m_box                ? nullptr
                                     : enter               ? m_box->onEnter
                                     : key == Qt::Key_Down ? m_box->onDown
                                                           : nullptr;
    if (handler) {
        settle();
        press([handler] { handler(); });
        return true;
    }
    return Binding::eventFilter(watched, event);
}

TextBinding::TextBinding(FormView& view, TextBox& box, QWidget* parent, Place place)
    : Binding(view, box, new QPlainTextEdit(parent)), m_box(&box), m_edit(static_cast<QPlainTextEdit*>(widget())) {
    m_edit->setTabChangesFocus(true);
    if (place == Place::Card) {
        // A note below the figures of a card, such as the amount in words.
        m_edit->setFrameShape(QFrame::NoFrame);
        m_edit->setFixedHeight(3 * m_edit->fontMetrics().lineSpacing() + 10);
        m_edit->document()->setDocumentMargin(0);
    }
    connect(m_edit, &QPlainTextEdit::textChanged, this, &TextBinding::edited);
}

void TextBinding::edited() {
    if (m_showing || !m_box)
        return;
    QString text = m_edit->toPlainText();
    if (m_box->maxLength() > 0)
        text.truncate(m_box->maxLength());
    userEdit([this, text, before = m_box->text()] {
        if (m_box->text() == before)
            m_box->setText(text);
    });
}

void TextBinding::refresh() {
    const QScopedValueRollback<bool> showing(m_showing, true);
    showLocked(*m_edit, m_box->isLocked());
    m_edit->setReadOnly(m_box->isLocked());
    QString shown = m_box->text();
    shown.replace("\r\n", "\n");
    if (m_edit->toPlainText() == shown)
        return;
    const int cursor = m_edit->textCursor().position();
    m_edit->setPlainText(shown);
    if (m_edit->hasFocus()) {
        QTextCursor place = m_edit->textCursor();
        place.setPosition(std::min(cursor, int(shown.size())));
        m_edit->setTextCursor(place);
    }
}

} // namespace orvane
