#include "desktop/WindowDriver.h"

#include "desktop/DateEdit.h"
#include "desktop/GridBinding.h"
#include "desktop/GridModel.h"
#include "desktop/ShellWindow.h"
#include "desktop/SmallBindings.h"
#include "desktop/TableView.h"
#include "desktop/TreeModel.h"
#include "play/HeadlessDriver.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QTabWidget>

namespace orvane {

namespace {

void requireReachable(const Control& control, const QWidget& widget) {
    if (!widget.isEnabled())
        throw PlayError(control.form().name() + QLatin1Char('.') + control.name() + " is disabled in its window");
}

/// Replaces the text as a paste over the whole text does: one edit.
void replaceText(QLineEdit& line, const QString& text) {
    line.selectAll();
    line.insert(text);
}

void sendMouse(QWidget& widget, QEvent::Type type) {
    const QPointF place = widget.rect().center();
    QMouseEvent event(type, place, widget.mapToGlobal(place), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

} // namespace

Binding* WindowDriver::bindingOf(const Control& control) const {
    FormView* view = m_windows.viewOf(control.form());
    if (!view)
        return nullptr;
    view->refreshNow();
    Binding* binding = view->bindingOf(control);
    if (binding && binding->widget())
        requireReachable(control, *binding->widget());
    return binding;
}

void WindowDriver::type(TextBox& box, const QString& text) {
    Binding* binding = bindingOf(box);
    if (!binding) {
        HeadlessDriver().type(box, text);
    } else if (auto* lines = qobject_cast<QPlainTextEdit*>(binding->widget())) {
        lines->selectAll();
        lines->insertPlainText(text);
    } else {
        replaceText(static_cast<QLineEdit&>(*binding->widget()), text);
    }
}

void WindowDriver::type(ComboBox& box, const QString& text) {
    if (Binding* binding = bindingOf(box))
        replaceText(*static_cast<QComboBox*>(binding->widget())->lineEdit(), text);
    else
        HeadlessDriver().type(box, text);
}

void WindowDriver::choose(ComboBox& box, int index) {
    if (Binding* binding = bindingOf(box))
        Q_EMIT static_cast<QComboBox*>(binding->widget())->activated(index);
    else
        HeadlessDriver().choose(box, index);
}

void WindowDriver::choose(TabStrip& tabs, int tab) {
    Binding* binding = bindingOf(tabs);
    if (!binding) {
        HeadlessDriver().choose(tabs, tab);
        return;
    }
    auto* widget = static_cast<QTabWidget*>(binding->widget());
    if (tab >= widget->count())
        throw PlayError(tabs.form().name() + QLatin1Char('.') + tabs.name() +
                        QStringLiteral(" has no tab %1").arg(tab));
    widget->setCurrentIndex(tab);
}

void WindowDriver::choose(Tree& tree, const QString& key) {
    auto* binding = static_cast<TreeBinding*>(bindingOf(tree));
    if (!binding) {
        HeadlessDriver().choose(tree, key);
        return;
    }
    const QModelIndex index = binding->model()->indexOf(key);
    binding->items()->setCurrentIndex(index);
    Q_EMIT binding->items()->clicked(index);
}

void WindowDriver::setChecked(CheckBox& box, bool checked) {
    Binding* binding = bindingOf(box);
    if (!binding)
        HeadlessDriver().setChecked(box, checked);
    else if (box.isChecked() != checked)
        static_cast<QAbstractButton*>(binding->widget())->click();
}

void WindowDriver::check(OptionButton& option) {
    Binding* binding = bindingOf(option);
    if (!binding)
        HeadlessDriver().check(option);
    else if (!option.isChecked())
        static_cast<QAbstractButton*>(binding->widget())->click();
}

void WindowDriver::setSelected(ListBox& list, int index, bool selected) {
    Binding* binding = bindingOf(list);
    if (!binding) {
        HeadlessDriver().setSelected(list, index, selected);
        return;
    }
    QAbstractItemModel* rows = static_cast<QListView*>(binding->widget())->model();
    rows->setData(rows->index(index, 0), selected ? Qt::Checked : Qt::Unchecked, Qt::CheckStateRole);
}

void WindowDriver::setDate(DatePicker& picker, QDate date) {
    Binding* binding = bindingOf(picker);
    if (!binding) {
        HeadlessDriver().setDate(picker, date);
        return;
    }
    auto* edit = static_cast<DateEdit*>(binding->widget());
    replaceText(*edit->lineEdit(), date.toString("dd/MM/yyyy"));
    edit->settle();
}

void WindowDriver::pickRow(Control& grid, int row) {
    auto* binding = static_cast<GridBinding*>(bindingOf(grid));
    Q_EMIT binding->table()->rowPicked(binding->model()->viewRow(row));
}

void WindowDriver::selectRow(Grid& grid, int row) {
    if (bindingOf(grid))
        pickRow(grid, row);
    else
        HeadlessDriver().selectRow(grid, row);
}

void WindowDriver::selectRow(EntryGrid& grid, int row) {
    if (bindingOf(grid))
        pickRow(grid, row);
    else
        HeadlessDriver().selectRow(grid, row);
}

void WindowDriver::click(Control& control) {
    Binding* binding = bindingOf(control);
    if (!binding)
        HeadlessDriver().click(control);
    else if (control.kind() == ControlKind::Button)
        static_cast<QAbstractButton*>(binding->widget())->click();
    else if (control.kind() == ControlKind::Label || control.kind() == ControlKind::Picture)
        sendMouse(*binding->widget(), QEvent::MouseButtonRelease);
    else
        binding->user([&] { control.click(); });
}

void WindowDriver::click(MenuItem& entry) {
    auto* binding = static_cast<MenuBinding*>(bindingOf(entry));
    if (binding)
        binding->action()->trigger();
    else
        HeadlessDriver().click(entry);
}

void WindowDriver::dblClick(Control& control) {
    Binding* binding = bindingOf(control);
    if (!binding)
        HeadlessDriver().dblClick(control);
    else if (control.kind() == ControlKind::Label || control.kind() == ControlKind::Picture)
        sendMouse(*binding->widget(), QEvent::MouseButtonDblClick);
    else
        binding->user([&] { control.dblClick(); });
}

void WindowDriver::leave(Control& control) {
    Binding* binding = bindingOf(control);
    if (!binding)
        HeadlessDriver().leave(control);
    else if (binding->settle())
        binding->user([&] { control.leave(); });
}

void WindowDriver::key(Control& control, QChar character) {
    Binding* binding = bindingOf(control);
    if (!binding) {
        HeadlessDriver().key(control, character);
        return;
    }
    QWidget* editor = binding->editor();
    if (auto* line = qobject_cast<QLineEdit*>(editor))
        line->end(false);
    const bool enter = character == QLatin1Char('\n');
    const int code = enter ? int(Qt::Key_Return) : int(character.toUpper().unicode());
    const QString text = enter ? "\r" : QString(character);
    QKeyEvent press(QEvent::KeyPress, code, Qt::NoModifier, text);
    QApplication::sendEvent(editor, &press);
}

void WindowDriver::tick(Timer& timer) {
    if (Binding* binding = bindingOf(timer))
        binding->user([&] { timer.tick(); });
    else
        HeadlessDriver().tick(timer);
}

void WindowDriver::close(Form& form) {
    if (QWidget* window = m_windows.windowOf(form))
        window->close();
    else
        HeadlessDriver().close(form);
}

void WindowDriver::picture(const QString& file) {
    const QString path = QDir(m_outputFolder.isEmpty() ? QDir::currentPath() : m_outputFolder).filePath(file);
    if (!m_windows.savePicture(path))
        throw PlayError(QStringLiteral("the picture %1 cannot be written").arg(path));
}

} // namespace orvane
