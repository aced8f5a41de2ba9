#include "play/QuietUi.h"

#include "forms/Form.h"

namespace orvane {

void QuietUi::box(const QString& text, Icon, const QString&) {
    m_boxes.append(text);
}

void QuietUi::showModal(Form& form) {
    if (onModal)
        onModal(form);
    if (!form.isClosed())
        form.userEvent([&form] { form.unload(); });
}

QDateTime QuietUi::now() const {
    return m_clock.isValid() ? m_clock : QDateTime::currentDateTime();
}

} // namespace orvane
