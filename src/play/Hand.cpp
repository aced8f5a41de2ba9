#include "play/Hand.h"

#include "data/DataError.h"

namespace orvane {

void Hand::fail(const QString& name, const QString& what) const {
    throw DataError(QStringLiteral("%1.%2: %3").arg(m_form.name(), name, what));
}

template <typename Kind>
Kind& Hand::usable(const QString& name, ControlKind kind) {
    Control* control = m_form.find(name);
    if (!control || control->kind() != kind)
        fail(name, "the form has no such control");
    if (!control->isUsable())
        fail(name, "hidden or disabled");
    return static_cast<Kind&>(*control);
}

void Hand::type(const QString& name, const QString& text) {
    auto& box = usable<TextBox>(name, ControlKind::TextBox);
    if (box.isLocked())
        fail(name, "locked");
    m_driver.type(box, text);
}

void Hand::choose(const QString& name, const QString& entry) {
    auto& box = usable<ComboBox>(name, ControlKind::ComboBox);
    const int index = int(box.items().indexOf(entry));
    if (index < 0)
        fail(name, QStringLiteral("no entry \"%1\"").arg(entry));
    m_driver.choose(box, index);
}

void Hand::chooseContaining(const QString& name, const QString& part) {
    auto& box = usable<ComboBox>(name, ControlKind::ComboBox);
    for (int index = 0; index < box.count(); ++index) {
        if (box.item(index).contains(part)) {
            m_driver.choose(box, index);
            return;
        }
    }
    fail(name, QStringLiteral("no entry with \"%1\"").arg(part));
}

void Hand::tick(const QString& name, bool checked) {
    m_driver.setChecked(usable<CheckBox>(name, ControlKind::CheckBox), checked);
}

void Hand::date(const QString& name, QDate date) {
    m_driver.setDate(usable<DatePicker>(name, ControlKind::DatePicker), date);
}

void Hand::tickEntry(const QString& name, int entry) {
    auto& list = usable<ListBox>(name, ControlKind::ListBox);
    if (entry >= list.count())
        fail(name, QStringLiteral("no entry %1").arg(entry));
    m_driver.setSelected(list, entry, true);
}

void Hand::click(const QString& name) {
    m_driver.click(usable<Button>(name, ControlKind::Button));
}

void Hand::ring(const QString& name) {
    m_driver.tick(usable<Timer>(name, ControlKind::Timer));
}

QString Hand::value(const QString& name) {
    const Control* control = m_form.find(name);
    if (!control)
        fail(name, "the form has no such control");
    return control->valueText();
}

} // namespace orvane
