#include "forms/Form.h"

#include "data/Assert.h"
#include "data/DataError.h"

#include <algorithm>

namespace orvane {

Form::Form(Ui& ui, const QString& name, const QString& caption) : m_ui(ui), m_name(name), m_caption(caption) {}

Form::~Form() = default;

void Form::setCaption(const QString& caption) {
    if (m_caption == caption)
        return;
    m_caption = caption;
    Q_EMIT captionChanged();
}

Control* Form::find(const QString& name) const {
    return m_byName.value(name.toLower());
}

void Form::load() {
    if (m_loaded)
        return;
    m_loaded = true;
    run([this] { Form_Load(); });
}

bool Form::unload() {
    if (m_closed)
        return true;
    bool accepted = false;
    run([&] { accepted = Form_Unload(); });
    // Form_Unload may have ended the program, which closes every form.
    if (m_closed)
        return true;
    if (accepted)
        close();
    return accepted;
}

void Form::abandon() {
    if (!m_closed)
        close();
}

void Form::close() {
    m_closed = true;
    m_ui.closed(*this);
    if (onClosed)
        onClosed(*this);
}

void Form::activated() {
    if (onActivated)
        onActivated(*this);
}

void Form::run(const std::function<void()>& handler) {
    if (m_running)
        handler();
    else
        runOutermost(handler);
}

namespace {

/// Puts a value back when its scope ends, with or without a fault.
template <typename T>
class Restorer {
public:
    Restorer(T& value, T during) : m_value(value), m_before(value) { value = during; }
    ~Restorer() { m_value = m_before; }
    Restorer(const Restorer&) = delete;
    Restorer& operator=(const Restorer&) = delete;

private:
    T& m_value;
    T m_before;
};

} // namespace

void Form::userEvent(const std::function<void()>& event) {
    if (!m_running || m_background)
        lateEvent(event);
}

void Form::lateEvent(const std::function<void()>& event, const QObject* source) {
    runOrKeep({event, source, false});
}

void Form::backgroundEvent(const std::function<void()>& event, const QObject* source) {
    runOrKeep({event, source, true});
}

void Form::runOrKeep(const Waiting& arrived) {
    if (m_closed)
        return;
    if (!m_running) {
        const Restorer background(m_background, arrived.background);
        runOutermost(arrived.event);
        return;
    }
    for (Waiting& waiting : m_waiting) {
        if (!arrived.source || waiting.source != arrived.source)
            continue;
        waiting = arrived;
        return;
    }
    m_waiting.append(arrived);
}

void Form::runOutermost(const std::function<void()>& event) {
    {
        const Restorer onStack(m_events, m_events + 1);
        if (!runCatching(event))
            afterFault();
        afterEvent();
    }
    runWaiting();
}

void Form::runWaiting() {
    // Whatever arrives while one of them runs joins the others behind it.
    while (m_events == 0 && !m_running && !m_waiting.isEmpty() && !m_closed)
        runOrKeep(m_waiting.takeFirst());
}

bool Form::runCatching(const std::function<void()>& event) {
    // The form still counts as running while its user reads the fault, so that its timers do not pile up boxes.
    const Restorer running(m_running, true);
    try {
        event();
        return true;
    } catch (const DataError& fault) {
        m_ui.setBusy(false);
        m_ui.box(fault.description());
        return false;
    }
}

Button* Form::saveButton() {
    for (Control* control : std::as_const(m_controls))
        if (control->kind() == ControlKind::Button &&
            QString(control->caption()).remove(QLatin1Char('&')).startsWith("Save"))
            return static_cast<Button*>(control);
    return nullptr;
}

void Form::entered(const Control& control) {
    m_entered.insert(&control, control.valueText());
}

namespace {

bool isLocked(const Control& control) {
    return control.kind() == ControlKind::TextBox && static_cast<const TextBox&>(control).isLocked();
}

bool isNothing(const QString& value) {
    return value.isEmpty() || value == QLatin1String("no");
}

} // namespace

bool Form::hasEntry() {
    const Button* save = saveButton();
    if (m_closed || !save || !save->isUsable())
        return false;
    int choices = 0;
    for (auto entry = m_entered.cbegin(); entry != m_entered.cend(); ++entry) {
        const Control& control = *entry.key();
        if (!control.isUsable() || isLocked(control) || isNothing(*entry) || control.valueText() != *entry)
            continue;
        if (control.kind() == ControlKind::TextBox)
            return true;
        ++choices;
    }
    constexpr int emptyRows = 2; // the head and the row to type into next
    return choices > 1 || std::any_of(m_controls.cbegin(), m_controls.cend(), [](const Control* control) {
               return control->kind() == ControlKind::EntryGrid && control->isUsable() &&
                      static_cast<const EntryGrid*>(control)->rows() > emptyRows;
           });
}

void Form::add(Control* control) {
    const QString key = control->name().toLower();
    ORVANE_ASSERT(!m_byName.contains(key));
    m_controls.append(control);
    m_byName.insert(key, control);
}

void Form::focus(Control* control) {
    m_focused = control;
}

} // namespace orvane
