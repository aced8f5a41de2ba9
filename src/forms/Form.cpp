#include "forms/Form.h"

#include "data/Assert.h"
#include "data/DataError.h"

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
    if (!m_running && !m_closed)
        runOutermost(event);
}

void Form::runOutermost(const std::function<void()>& event) {
    const Restorer onStack(m_events, m_events + 1);
    if (!runCatching(event))
        afterFault();
    afterEvent();
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
