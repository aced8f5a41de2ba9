#include "desktop/Keyed.h"

#include <QPainter>
#include <QShortcut>

namespace orvane {

void underlineTwice(QWidget& widget, QRect words, const QString& text, QChar letter) {
    const QString plain = Mnemonics::plain(text);
    const qsizetype place = Mnemonics::placeOf(plain, letter);
    if (place < 0)
        return;
    const QFontMetrics metrics = widget.fontMetrics();
    const int left = words.left() + metrics.horizontalAdvance(plain.left(place));
    const int right = left + metrics.horizontalAdvance(plain.at(place)) - 1;
    const int line = words.top() + metrics.ascent() + metrics.underlinePos();
    QPainter painter(&widget);
    painter.setPen(
        widget.palette().color(widget.isEnabled() ? QPalette::Normal : QPalette::Disabled, widget.foregroundRole()));
    for (const int below : {line, line + 2})
        painter.drawLine(left, below, right, below);
}

KeyLabel::KeyLabel(QWidget* parent) : QLabel(parent), m_shifted(new QShortcut(this)) {
    setTextFormat(Qt::PlainText);
    connect(m_shifted, &QShortcut::activated, this, [this] {
        if (buddy() && buddy()->isEnabled())
            buddy()->setFocus(Qt::ShortcutFocusReason);
    });
}

void KeyLabel::setWords(const QString& words, Mnemonics::Key key) {
    m_key = key;
    // A label itself answers to Alt alone.
    m_shifted->setKey(key.shifted ? key.sequence() : QKeySequence());
    setText(words);
}

void KeyLabel::paintEvent(QPaintEvent* event) {
    QLabel::paintEvent(event);
    if (!m_key.shifted)
        return;
    QRect words = contentsRect();
    if (!(alignment() & Qt::AlignTop))
        words.setTop(words.top() + (words.height() - fontMetrics().height()) / 2);
    underlineTwice(*this, words, text(), m_key.letter);
}

} // namespace orvane
