#include "forms/Layout.h"

#include "forms/Controls.h"

namespace orvane::layout {

namespace {

Layout container(Layout::Kind kind, const QString& text, std::initializer_list<Layout> items) {
    Layout layout;
    layout.kind = kind;
    layout.text = text;
    layout.children = items;
    return layout;
}

// A form states its layout without changing itself; whoever shows the layout drives the controls.
Control* shown(const Control* control) {
    return const_cast<Control*>(control);
}

Layout single(Layout::Kind kind, const QString& text, const Control* control, int characters) {
    Layout layout;
    layout.kind = kind;
    layout.text = text;
    layout.control = shown(control);
    layout.characters = characters;
    return layout;
}

} // namespace

Layout row(std::initializer_list<Layout> items) {
    return container(Layout::Row, {}, items);
}

Layout flow(std::initializer_list<Layout> items) {
    return container(Layout::Flow, {}, items);
}

Layout column(std::initializer_list<Layout> items) {
    return container(Layout::Column, {}, items);
}

Layout field(const QString& label, const Control& control, int characters) {
    return single(Layout::Field, label, &control, characters);
}

Layout cell(const Control& control, int characters) {
    return single(Layout::Cell, {}, &control, characters);
}

Layout large(const QString& label, const Control& control) {
    Layout layout = field(label, control);
    layout.emphasis = true;
    return layout;
}

Layout facts(std::initializer_list<std::pair<QString, const Control*>> items) {
    Layout layout = container(Layout::Facts, {}, {});
    for (const auto& [label, control] : items)
        layout.children.append(single(Layout::Field, label, control, 0));
    return layout;
}

Layout card(std::initializer_list<Layout> items) {
    return container(Layout::Card, {}, items);
}

Layout group(const QString& heading, std::initializer_list<Layout> items, const Control* frame) {
    Layout layout = container(Layout::Group, heading, items);
    layout.control = shown(frame);
    return layout;
}

Layout tabs(const TabStrip& strip, std::initializer_list<Layout> pages) {
    Layout layout = container(Layout::Tabs, {}, pages);
    layout.control = shown(&strip);
    return layout;
}

Layout page(const QString& caption, std::initializer_list<Layout> items) {
    return container(Layout::Page, caption, items);
}

Layout buttons(std::initializer_list<const Control*> left, std::initializer_list<const Control*> right) {
    Layout sides = container(Layout::Buttons, {}, {});
    for (const auto& side : {left, right}) {
        Layout layout = container(Layout::Row, {}, {});
        for (const Control* control : side)
            layout.children.append(single(Layout::Cell, {}, control, 0));
        sides.children.append(layout);
    }
    return sides;
}

Layout stretch() {
    return container(Layout::Stretch, {}, {});
}

Layout growing(Layout item) {
    item.grows = true;
    return item;
}

} // namespace orvane::layout
