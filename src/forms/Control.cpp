#include "forms/Control.h"

#include "forms/Form.h"

namespace orvane {

Control::Control(Form& form, ControlKind kind, const QString& name) : m_form(form), m_kind(kind), m_name(name) {
    form.add(this);
}

Control::~Control() = default;

void Control::setCaption(const QString& caption) {
    if (m_caption == caption)
        return;
    m_caption = caption;
    touch();
}

void Control::setToolTip(const QString& toolTip) {
    m_toolTip = toolTip;
    touch();
}

void Control::setEnabled(bool enabled) {
    if (m_enabled == enabled)
        return;
    m_enabled = enabled;
    touch();
}

void Control::setVisible(bool visible) {
    if (m_visible == visible)
        return;
    m_visible = visible;
    touch();
}

bool Control::isShown() const {
    return m_visible && (!m_frame || m_frame->isShown());
}

bool Control::isUsable() const {
    return m_enabled && m_visible && (!m_frame || m_frame->isUsable());
}

void Control::setColor(std::optional<unsigned> rgb) {
    m_color = rgb;
    touch();
}

void Control::setFocus() {
    m_form.focus(this);
    Q_EMIT focusWanted();
}

void Control::click() {
    raise(onClick);
}

void Control::dblClick() {
    raise(onDblClick);
}

void Control::gotFocus() {
    raise(onFocus);
}

void Control::leave() {
    raise(onLeave);
}

bool Control::keyPress(QChar key) {
    bool accepted = true;
    if (onKeyPress)
        m_form.run([&] { accepted = onKeyPress(key); });
    return accepted;
}

void Control::raise(const Handler& handler) {
    if (!handler)
        return;
    // The handler may close the form and so replace itself: run a copy.
    const Handler copy = handler;
    m_form.run(copy);
}

void Control::touch() {
    Q_EMIT changed();
}

void Control::touchContent() {
    ++m_contentRevision;
    touch();
}

} // namespace orvane
