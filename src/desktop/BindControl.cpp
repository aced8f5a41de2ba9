#include "data/Assert.h"
#include "desktop/Binding.h"
#include "desktop/ComboBinding.h"
#include "desktop/FormView.h"
#include "desktop/GridBinding.h"
#include "desktop/SmallBindings.h"
#include "desktop/TextBinding.h"
#include "desktop/ViewerBinding.h"

#include <QHBoxLayout>

namespace orvane {

namespace {

QWidget* panelRow(QWidget* parent) {
    auto* row = new QWidget(parent);
    auto* box = new QHBoxLayout(row);
    box->setContentsMargins(0, 0, 0, 0);
    return row;
}

} // namespace

Binding* bindControl(FormView& view, Control& control, QWidget* parent, Place place, int characters) {
    // One control has one widget.
    ORVANE_ASSERT(!view.bindingOf(control));
    switch (control.kind()) {
    case ControlKind::Label:
        return new LabelBinding(view, static_cast<Label&>(control), parent, place, characters);
    case ControlKind::TextBox:
        if (static_cast<TextBox&>(control).isMultiline())
            return new TextBinding(view, static_cast<TextBox&>(control), parent, place);
        return new LineBinding(view, static_cast<TextBox&>(control), parent, place, characters);
    case ControlKind::ComboBox:
        return new ComboBinding(view, static_cast<ComboBox&>(control), parent, characters);
    case ControlKind::CheckBox:
        return new CheckBinding(view, static_cast<CheckBox&>(control), parent);
    case ControlKind::OptionButton:
        return new OptionBinding(view, static_cast<OptionButton&>(control), parent);
    case ControlKind::ListBox:
        return new ListBinding(view, static_cast<ListBox&>(control), parent);
    case ControlKind::DatePicker:
        return new DateBinding(view, static_cast<DatePicker&>(control), parent);
    case ControlKind::Button:
        return new ButtonBinding(view, static_cast<Button&>(control), parent);
    case ControlKind::Tree:
        return new TreeBinding(view, static_cast<Tree&>(control), parent);
    case ControlKind::Grid:
        return new GridBinding(view, static_cast<Grid&>(control), parent);
    case ControlKind::EntryGrid:
        return new GridBinding(view, static_cast<EntryGrid&>(control), parent);
    case ControlKind::Picture:
        return new PictureBinding(view, static_cast<Picture&>(control), parent);
    case ControlKind::ProgressBar:
        return new ProgressBinding(view, static_cast<ProgressBar&>(control), parent);
    case ControlKind::StatusBar:
        return new StatusBinding(view, static_cast<StatusBar&>(control), panelRow(parent));
    case ControlKind::Viewer:
        return new ViewerBinding(view, static_cast<ReportViewer&>(control), parent);
    case ControlKind::Frame:
    case ControlKind::TabStrip:
    case ControlKind::Timer:
    case ControlKind::Menu:
        break;
    }
    ORVANE_ASSERT(!"a kind of control that a layout does not place as a cell");
    return nullptr;
}

} // namespace orvane
