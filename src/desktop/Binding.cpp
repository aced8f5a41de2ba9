#include "desktop/Binding.h"

#include "desktop/FormView.h"
#include "desktop/Look.h"

#include <QGuiApplication>
#include <QKeyEvent>

namespace orvane {

namespace {

constexpr int rowsAtOnce = 1000;    ///< of a long list, between two events of its user
constexpr int pauseWhileBusy = 200; ///< milliseconds

} // namespace

Binding::Binding(FormView& view, Control& control, QWidget* widget)
    : QObject(&view), m_view(view), m_control(&control), m_widget(widget) {
    view.add(this);
    if (widget) {
        widget->setObjectName(control.name());
        watch(widget);
    }
    connect(&control, &Control::changed, this, &Binding::schedule);
    connect(&control, &Control::focusWanted, this, [this] {
        m_focusWanted = true;
        schedule();
    });
}

void Binding::watch(QWidget* widget) {
    widget->installEventFilter(this);
}

void Binding::schedule() {
    if (m_scheduled)
        return;
    m_scheduled = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (m_scheduled)
                refreshNow();
        },
        Qt::QueuedConnection);
}

void Binding::refreshNow() {
    m_scheduled = false;
    if (!m_control)
        return;
    showState();
    if (!m_waiting)
        refresh();
    takeFocus();
    readOn();
}

/// A long list is read on while there is nothing else to do.
void Binding::readOn() {
    if (m_control && m_control->hasMore() && !m_readOn.isActive())
        m_readOn.start(m_control->form().isRunning() ? pauseWhileBusy : 0, this);
}

void Binding::timerEvent(QTimerEvent* event) {
    if (event->timerId() != m_readOn.timerId())
        return QObject::timerEvent(event);
    m_readOn.stop();
    if (isWorking())
        m_readOn.start(pauseWhileBusy, this);
    else
        byItself([control = m_control] { control->readMore(rowsAtOnce); });
}

/// A long save lets the windows be painted; what comes by itself asks the database and may show a fault, so it waits.
bool Binding::isWorking() {
    return QGuiApplication::overrideCursor() != nullptr;
}

void Binding::showState() {
    if (!m_widget)
        return;
    const bool shown = m_control->isShown();
    m_widget->setVisible(shown);
    for (const QPointer<QWidget>& companion : m_companions)
        if (companion)
            companion->setVisible(shown);
    const bool usable = m_control->isUsable() && !(m_control->kind() == ControlKind::Button && m_view.isBusy());
    m_widget->setEnabled(usable);
    m_widget->setToolTip(look::plainHint(m_control->toolTip()));
}

void Binding::takeFocus() {
    if (!m_focusWanted || !m_widget)
        return;
    m_focusWanted = false;
    if (QWidget* target = editor(); target && target->isEnabled())
        m_view.giveFocus(*target);
}

void Binding::release() {
    if (m_control)
        disconnect(m_control, nullptr, this, nullptr);
    m_control = nullptr;
    m_readOn.stop();
    released();
}

void Binding::user(const std::function<void()>& act) {
    if (m_control)
        m_control->form().lateEvent(shownAfter(act));
}

void Binding::userEdit(const std::function<void()>& act) {
    if (!m_control)
        return;
    m_waiting = true;
    m_control->form().lateEvent(shownAfter(act), this);
}

void Binding::press(const std::function<void()>& act) {
    if (m_control)
        m_control->form().userEvent(shownAfter(act));
}

void Binding::byItself(const std::function<void()>& act) {
    if (m_control)
        m_control->form().backgroundEvent(shownAfter(act), this);
}

namespace {

bool takesEntry(const Control& control) {
    switch (control.kind()) {
    case ControlKind::TextBox:
    case ControlKind::ComboBox:
    case ControlKind::CheckBox:
    case ControlKind::OptionButton:
    case ControlKind::ListBox:
        return true;
    default:
        return false;
    }
}

} // namespace

/// The act, and then the widget as its control stands, in any case: a refused or corrected entry leaves no change
/// behind. By then the act may have closed the form and with it this view.
std::function<void()> Binding::shownAfter(const std::function<void()>& act) {
    return [self = QPointer<Binding>(this), act] {
        if (!self || !self->m_control)
            return;
        self->m_waiting = false;
        const QString before = takesEntry(*self->m_control) ? self->m_control->valueText() : QString();
        act();
        if (!self)
            return;
        self->noteEntry(before);
        self->schedule();
    };
}

void Binding::noteEntry(const QString& before) {
    if (m_control && takesEntry(*m_control) && m_control->valueText() != before)
        m_control->form().entered(*m_control);
}

void Binding::focusCame() {
    if (!m_control || !m_control->onFocus || m_view.isScripted())
        return;
    // After the leaving of the control that had it, which waits as well.
    QMetaObject::invokeMethod(
        this, [this] { user([this] { m_control->gotFocus(); }); }, Qt::QueuedConnection);
}

void Binding::focusLeft() {
    if (!m_control || !m_control->onLeave || m_view.isScripted())
        return;
    // After the press that took the focus away: a box raised inside it would swallow that press.
    QMetaObject::invokeMethod(
        this, [this] { user([this] { m_control->leave(); }); }, Qt::QueuedConnection);
}

bool Binding::acceptsKey(const QKeyEvent& event) {
    if (!m_control || !m_control->onKeyPress || event.text().size() != 1)
        return true;
    const bool enter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    const QChar typed = enter ? QLatin1Char('\n') : event.text().at(0);
    if (!enter && !typed.isPrint())
        return true;
    bool accepted = false;
    // Behind what runs it would be too late to refuse a character; what Enter starts must not start inside it.
    if (!m_control->form().isRunning())
        press([&] { accepted = m_control->keyPress(typed); });
    else if (!enter)
        accepted = m_control->keyPress(typed);
    return accepted;
}

bool Binding::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::FocusIn:
        focusCame();
        break;
    case QEvent::FocusOut: {
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason && reason != Qt::MenuBarFocusReason)
            focusLeft();
        break;
    }
    case QEvent::KeyPress: {
        const auto* key = static_cast<QKeyEvent*>(event);
        const bool typing = (key->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) == 0;
        if (typing && !acceptsKey(*key))
            return true;
        break;
    }
    case QEvent::Wheel:
        // Turning the wheel over a form scrolls it; it must not change a choice that merely lies under the pointer.
        if (m_control && m_control->kind() == ControlKind::ComboBox && !static_cast<QWidget*>(watched)->hasFocus()) {
            event->ignore();
            return true;
        }
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace orvane
