#include "desktop/LayoutRules.h"

#include "forms/Controls.h"

#include <algorithm>

namespace orvane {

bool isMultiline(const Control& control) {
    return control.kind() == ControlKind::TextBox && static_cast<const TextBox&>(control).isMultiline();
}

bool isList(const Control& control) {
    return control.kind() == ControlKind::Grid || control.kind() == ControlKind::EntryGrid ||
           control.kind() == ControlKind::ListBox || control.kind() == ControlKind::Tree;
}

bool takesRoom(const Control& control) {
    return isList(control) || control.kind() == ControlKind::Viewer;
}

bool isOnlyRead(const Control& control) {
    return control.kind() == ControlKind::TextBox && static_cast<const TextBox&>(control).isLocked();
}

bool growsDown(const Layout& item) {
    if (item.grows || item.kind == Layout::Stretch)
        return true;
    if (item.control && (item.kind == Layout::Field || item.kind == Layout::Cell))
        return takesRoom(*item.control) || isMultiline(*item.control);
    if (item.kind == Layout::Buttons || item.kind == Layout::Facts || item.kind == Layout::Card)
        return false;
    // Room between the items of a row is room across.
    const bool row = item.kind == Layout::Row || item.kind == Layout::Flow;
    return std::any_of(item.children.cbegin(), item.children.cend(), [row](const Layout& child) {
        return growsDown(child) && !(row && child.kind == Layout::Stretch);
    });
}

bool growsAcross(const Layout& item) {
    if (item.grows || item.kind == Layout::Stretch)
        return true;
    if (item.control && (item.kind == Layout::Field || item.kind == Layout::Cell)) {
        const ControlKind kind = item.control->kind();
        const bool text = kind == ControlKind::TextBox || kind == ControlKind::ComboBox;
        const bool navigates = kind == ControlKind::Tree && item.characters > 0; // a tree beside what it leads to
        return (takesRoom(*item.control) && !navigates) || kind == ControlKind::ProgressBar ||
               (text && (item.characters == 0 || isMultiline(*item.control)));
    }
    if (item.kind == Layout::Card)
        return false;
    if (item.kind == Layout::Tabs)
        return true;
    return std::any_of(item.children.cbegin(), item.children.cend(), growsAcross);
}

int shareAcross(const Layout& item) {
    if (!growsAcross(item))
        return 0;
    return growsDown(item) && item.kind != Layout::Stretch ? 3 : 1;
}

bool isLabelled(const Layout& item) {
    return item.kind == Layout::Field && !item.text.isEmpty();
}

bool isFieldLine(const Layout& item) {
    return isLabelled(item) || ((item.kind == Layout::Row || item.kind == Layout::Flow) && !item.children.isEmpty() &&
                                isLabelled(item.children.first()));
}

bool isAllFields(const Layout& item) {
    return isLabelled(item) || std::all_of(item.children.cbegin(), item.children.cend(), isLabelled);
}

} // namespace orvane
