#include "desktop/DateEdit.h"

#include "desktop/Look.h"
#include "desktop/UnreadMark.h"

#include <QCalendarWidget>
#include <QFrame>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>
#include <QSignalBlocker>
#include <QToolButton>
#include <QToolTip>
#include <QVBoxLayout>

namespace orvane {

namespace {

const QString dateFormat = "dd/MM/yyyy";
QString notADate(const QString& text) {
    return QStringLiteral("“%1” is not a date (day/month/year).").arg(text);
}

const QDate firstDate(1900, 1, 1), lastDate(2199, 12, 31);

} // namespace

std::optional<QDate> DateEdit::parse(const QString& text) {
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty())
        return QDate();
    if (trimmed.compare(QLatin1String("t"), Qt::CaseInsensitive) == 0)
        return QDate::currentDate();
    static const QRegularExpression shape("^([0-9]{1,2})[-/. ]([0-9]{1,2})(?:[-/. ]([0-9]{4}|[0-9]{2}))?$");
    static const QRegularExpression digits("^([0-9]{2})([0-9]{2})([0-9]{4}|[0-9]{2})$");
    QRegularExpressionMatch match = shape.match(trimmed);
    if (!match.hasMatch())
        match = digits.match(trimmed);
    if (!match.hasMatch())
        return std::nullopt;
    const QString year = match.captured(3);
    const int century = year.size() == 2 ? 2000 : 0;
    const QDate date(year.isEmpty() ? QDate::currentDate().year() : century + year.toInt(), match.captured(2).toInt(),
                     match.captured(1).toInt());
    if (!date.isValid() || date < firstDate || date > lastDate)
        return std::nullopt;
    return date;
}

DateEdit::DateEdit(QWidget* parent) : QWidget(parent), m_line(new QLineEdit(this)), m_button(new QToolButton(this)) {
    m_line->setPlaceholderText("dd/mm/yyyy");
    m_line->setMaxLength(10);
    m_line->setFixedSize(look::charactersWidth(*m_line, 14), look::lineHeight());
    m_line->installEventFilter(this);
    m_button->setArrowType(Qt::DownArrow);
    m_button->setFocusPolicy(Qt::NoFocus);
    m_button->setAccessibleName("Calendar");
    m_button->setFixedHeight(look::lineHeight());
    auto* box = new QHBoxLayout(this);
    box->setContentsMargins(0, 0, 0, 0);
    box->setSpacing(0);
    box->addWidget(m_line);
    box->addWidget(m_button);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setFocusProxy(m_line);
    connect(m_line, &QLineEdit::textEdited, this, &DateEdit::typed);
    connect(m_line, &QLineEdit::editingFinished, this, &DateEdit::finish);
    connect(m_button, &QToolButton::clicked, this, &DateEdit::openCalendar);
}

void DateEdit::setDate(QDate date) {
    m_date = date;
    showText();
}

void DateEdit::setLocked(bool locked) {
    m_line->setReadOnly(locked);
    m_button->setEnabled(!locked);
}

bool DateEdit::settle() {
    finish();
    return parse(m_line->text()).has_value();
}

void DateEdit::typed(const QString& text) {
    const std::optional<QDate> date = parse(text);
    markUnread(*m_line, !date && text.size() == m_line->maxLength() ? notADate(text) : QString());
    // A shorter one, and an emptied field, is only taken over when its user is done with it: he may be about to type
    // on.
    static const QRegularExpression whole("[-/. ][0-9]{4}\\s*$");
    if (date && whole.match(text).hasMatch())
        take(*date);
}

void DateEdit::finish() {
    if (m_line->isReadOnly())
        return;
    const std::optional<QDate> date = parse(m_line->text());
    const QString fault = date ? QString() : notADate(m_line->text());
    markUnread(*m_line, fault);
    if (!date) {
        QToolTip::showText(m_line->mapToGlobal(QPoint(0, m_line->height())), look::plainHint(fault), m_line);
        return;
    }
    take(*date);
    showText();
}

void DateEdit::take(QDate date) {
    if (date == m_date)
        return;
    m_date = date;
    Q_EMIT dateEdited(date);
}

void DateEdit::showText() {
    markUnread(*m_line, {});
    const QString text = m_date.toString(dateFormat);
    if (m_line->text() != text)
        m_line->setText(text);
}

void DateEdit::step(int days) {
    take(m_date.isValid() ? m_date.addDays(days) : QDate::currentDate());
    showText();
}

bool DateEdit::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_line && event->type() == QEvent::KeyPress && !m_line->isReadOnly()) {
        const auto* key = static_cast<QKeyEvent*>(event);
        const bool alt = key->modifiers().testFlag(Qt::AltModifier);
        if (key->key() == Qt::Key_F4 || (alt && key->key() == Qt::Key_Down)) {
            openCalendar();
            return true;
        }
        if (key->key() == Qt::Key_Up || key->key() == Qt::Key_Down) {
            step(key->key() == Qt::Key_Up ? 1 : -1);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void DateEdit::openCalendar() {
    if (m_line->isReadOnly())
        return;
    QFrame* popup = makeCalendar();
    popup->adjustSize();
    QPoint place = mapToGlobal(QPoint(0, height()));
    const QRect room = screen()->availableGeometry();
    if (place.y() + popup->height() > room.bottom())
        place.setY(mapToGlobal(QPoint(0, 0)).y() - popup->height());
    place.setX(std::min(place.x(), room.right() - popup->width()));
    popup->move(place);
    popup->show();
}

QFrame* DateEdit::makeCalendar() {
    auto* popup = new QFrame(this, Qt::Popup);
    popup->setAttribute(Qt::WA_DeleteOnClose);
    popup->setFrameShape(QFrame::StyledPanel);
    auto* calendar = new QCalendarWidget(popup);
    calendar->setFirstDayOfWeek(Qt::Monday);
    calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    calendar->setMinimumDate(firstDate);
    calendar->setMaximumDate(lastDate);
    calendar->setSelectedDate(m_date.isValid() ? m_date : QDate::currentDate());
    auto* today = new QPushButton(QStringLiteral("&Today"), popup);
    auto* none = new QPushButton(QStringLiteral("&No date"), popup);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(today);
    buttons->addWidget(none);
    auto* box = new QVBoxLayout(popup);
    box->setContentsMargins(4, 4, 4, 4);
    box->addWidget(calendar);
    box->addLayout(buttons);
    popup->setFocusProxy(calendar);
    const auto pick = [this, popup](QDate date) {
        popup->close();
        take(date);
        showText();
    };
    connect(calendar, &QCalendarWidget::clicked, popup, pick);
    connect(calendar, &QCalendarWidget::activated, popup, pick);
    connect(
        today, &QPushButton::clicked, popup, [pick] { pick(QDate::currentDate()); });
    connect(none, &QPushButton::clicked, popup, [pick] { pick({}); });
    return popup;
}

} // namespace orvane
