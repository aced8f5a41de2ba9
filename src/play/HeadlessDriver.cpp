#include "play/HeadlessDriver.h"

namespace orvane {

namespace {

template <typename Act>
void act(Control& control, Act&& step) {
    control.form().userEvent(std::forward<Act>(step));
}

void pressEnter(Control& control) {
    Form& form = control.form();
    if (control.kind() == ControlKind::TextBox) {
        auto& box = static_cast<TextBox&>(control);
        if (box.isMultiline()) {
            box.setText(box.text() + QLatin1Char('\n'));
            return;
        }
        if (const Control::Handler entered = box.onEnter) {
            entered();
            return;
        }
    }
    if (Button* button = form.defaultButton(); button && button->isUsable())
        button->click();
}

void typeCharacter(Control& control, QChar character) {
    if (control.kind() == ControlKind::TextBox) {
        auto& box = static_cast<TextBox&>(control);
        const bool full = box.maxLength() > 0 && box.text().size() >= box.maxLength();
        if (!box.isLocked() && !full)
            box.setText(box.text() + character);
    } else if (control.kind() == ControlKind::ComboBox) {
        auto& box = static_cast<ComboBox&>(control);
        if (!box.isLocked() && box.style() == ComboBox::FreeText)
            box.setText(box.text() + character);
    }
}

} // namespace

void HeadlessDriver::type(TextBox& box, const QString& text) {
    act(
        box, [&] { box.setText(text); });
}

void HeadlessDriver::type(ComboBox& box, const QString& text) {
    act(
        box, [&] { box.setText(text); });
}

void HeadlessDriver::choose(ComboBox& box, int index) {
    act(
        box, [&] { box.setListIndex(index); });
}

void HeadlessDriver::choose(TabStrip& tabs, int tab) {
    act(
        tabs, [&] { tabs.setTab(tab); });
}

void HeadlessDriver::choose(Tree& tree, const QString& key) {
    act(
        tree, [&] { tree.select(key); });
}

void HeadlessDriver::setChecked(CheckBox& box, bool checked) {
    act(
        box, [&] { box.setChecked(checked); });
}

void HeadlessDriver::check(OptionButton& option) {
    act(
        option, [&] { option.setChecked(true); });
}

void HeadlessDriver::setSelected(ListBox& list, int index, bool selected) {
    act(
        list, [&] { list.setSelected(index, selected); });
}

void HeadlessDriver::setDate(DatePicker& picker, QDate date) {
    act(
        picker, [&] { picker.setDate(date); });
}

void HeadlessDriver::selectRow(Grid& grid, int row) {
    act(
        grid, [&] { grid.selectRow(row); });
}

void HeadlessDriver::selectRow(EntryGrid& grid, int row) {
    act(
        grid, [&] { grid.selectRow(row); });
}

void HeadlessDriver::click(Control& control) {
    act(
        control, [&] { control.click(); });
}

void HeadlessDriver::click(MenuItem& entry) {
    act(
        entry, [&] { entry.click(); });
}

void HeadlessDriver::dblClick(Control& control) {
    act(
        control, [&] { control.dblClick(); });
}

void HeadlessDriver::leave(Control& control) {
    act(
        control, [&] { control.leave(); });
}

void HeadlessDriver::key(Control& control, QChar character) {
    act(
        control,
        [&] {
            if (character == QLatin1Char('\n'))
                pressEnter(control);
            else if (control.keyPress(character))
                typeCharacter(control, character);
        });
}

void HeadlessDriver::tick(Timer& timer) {
    act(
        timer, [&] { timer.tick(); });
}

void HeadlessDriver::close(Form& form) {
    form.userEvent([&] { form.unload(); });
}

void HeadlessDriver::picture(const QString&) {}

} // namespace orvane
