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
    if (!accepted)
        return false;
    m_closed = true;
    m_ui.closed(*this);
    if (onClosed)
        onClosed(*this);
    return true;
}

void Form::run(const std::function<void()>& handler) {
    if (m_running)
        handler();
    else
        userEvent(handler);
}

void Form::userEvent(const std::function<void()>& event) {
    if (m_running)
        return;
    m_running = true;
    try {
        event();
        m_running = false;
    } catch (const DataError& fault) {
        m_running = false;
        m_ui.setBusy(false);
        m_ui.box(fault.description());
        afterFault();
    }
    afterEvent();
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
