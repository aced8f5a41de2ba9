#include "play/ControlActs.h"

namespace orvane {

namespace {

QString nameOf(const Control& control) {
    return control.form().name() + QLatin1Char('.') + control.name();
}

[[noreturn]] void refuse(const Control& control, const QString& reason) {
    throw PlayError(nameOf(control) + QLatin1Char(' ') + reason);
}

template <typename Box>
void requireUnlocked(const Box& box) {
    if (box.isLocked())
        refuse(box, "is locked");
}

/// What is left of a typed text when the control has seen each of its characters.
QString acceptedBy(Control& control, const QString& text) {
    if (!control.onKeyPress)
        return text;
    QString accepted;
    for (const QChar character : text)
        control.form().userEvent([&] {
            if (control.keyPress(character))
                accepted += character;
        });
    return accepted;
}

void setText(Driver& driver, TextBox& box, const QString& value) {
    requireUnlocked(box);
    if (!box.isMultiline() && value.contains(QLatin1Char('\n')))
        refuse(box, "takes one line");
    const QString accepted = acceptedBy(box, value);
    driver.type(box, box.maxLength() > 0 ? accepted.left(box.maxLength()) : accepted);
}

void setText(Driver& driver, ComboBox& box, const QString& value) {
    requireUnlocked(box);
    const int index = int(box.items().indexOf(value));
    if (index >= 0)
        driver.choose(box, index);
    else if (box.style() == ComboBox::ListOnly)
        refuse(box, QStringLiteral("has no entry \"%1\"").arg(value));
    else
        driver.type(box, acceptedBy(box, value));
}

bool readYesNo(const Control& control, const QString& value) {
    if (value != QLatin1String("yes") && value != QLatin1String("no"))
        refuse(control, "takes \"yes\" or \"no\"");
    return value == QLatin1String("yes");
}

void setChecked(Driver& driver, OptionButton& option, bool checked) {
    if (checked)
        driver.check(option);
    else if (option.isChecked())
        refuse(option, "is turned off by choosing another option");
}

void setDate(Driver& driver, DatePicker& picker, const QString& value) {
    requireUnlocked(picker);
    const QDate date = QDate::fromString(value, "yyyy-MM-dd");
    if (!date.isValid() && !value.isEmpty())
        refuse(picker, "takes a date as yyyy-mm-dd, or \"\"");
    driver.setDate(picker, date);
}

int indexOf(const Control& control, const QStringList& entries, const QString& wanted, bool isIndex) {
    if (isIndex) {
        bool isNumber = false;
        const int index = wanted.toInt(&isNumber);
        if (!isNumber || index < 0 || index >= entries.size())
            refuse(control, QStringLiteral("has no entry %1").arg(wanted));
        return index;
    }
    const qsizetype equal = entries.indexOf(wanted);
    if (equal >= 0)
        return int(equal);
    for (qsizetype i = 0; i < entries.size(); ++i)
        if (entries.at(i).contains(wanted, Qt::CaseInsensitive))
            return int(i);
    refuse(control, QStringLiteral("has no entry with \"%1\"").arg(wanted));
}

template <typename List>
QStringList entriesOf(const List& list) {
    QStringList entries;
    for (int i = 0; i < list.count(); ++i)
        entries << list.item(i);
    return entries;
}

QStringList textsOf(const Tree& tree) {
    QStringList texts;
    for (const Tree::Node& node : tree.nodes())
        texts << node.text;
    return texts;
}

/// The captions of the tabs, which stand in the form's layout.
QStringList pagesOf(const TabStrip& tabs, const Layout& layout) {
    QStringList captions;
    if (layout.kind == Layout::Tabs && layout.control == &tabs)
        for (const Layout& page : layout.children)
            captions << page.text;
    for (const Layout& part : layout.children)
        captions << pagesOf(tabs, part);
    return captions;
}

int rowNumber(const Control& control, const QString& text, int rows) {
    bool isNumber = false;
    const int row = text.toInt(&isNumber);
    if (!isNumber || row < 0 || row >= rows)
        refuse(control, QStringLiteral("has no row %1").arg(text));
    return row;
}

/// -1 when no row has such a cell in a shown (or hidden) column.
int rowWith(const Grid& grid, const QString& text, bool hidden) {
    for (int row = 0; row < grid.rowCount(); ++row)
        for (int column = 0; column < grid.columnCount(); ++column)
            if (grid.isHidden(column) == hidden && grid.cellText(row, column) == text)
                return row;
    return -1;
}

int findRow(const Grid& grid, const QString& text) {
    const int shown = rowWith(grid, text, false);
    const int row = shown >= 0 ? shown : rowWith(grid, text, true);
    if (row < 0)
        refuse(grid, QStringLiteral("has no row with \"%1\"").arg(text));
    return row;
}

int findRow(const EntryGrid& grid, const QString& text) {
    for (int row = 1; row < grid.rows(); ++row)
        for (int column = 0; column < grid.columns(); ++column)
            if (grid.cell(row, column) == text)
                return row;
    refuse(grid, QStringLiteral("has no row with \"%1\"").arg(text));
}

} // namespace

void requireUsable(const Control& control, const Form* modal) {
    const Form& form = control.form();
    if (modal && modal != &form)
        refuse(control, QStringLiteral("waits until %1 has closed").arg(modal->name()));
    if (form.isRunning())
        refuse(control, "waits until a handler of its form has ended");
    if (!control.isShown())
        refuse(control, "is hidden");
    if (!control.isUsable())
        refuse(control, "is disabled");
}

void setValue(Driver& driver, Control& control, const QString& value) {
    switch (control.kind()) {
    case ControlKind::TextBox:
        return setText(driver, static_cast<TextBox&>(control), value);
    case ControlKind::ComboBox:
        return setText(driver, static_cast<ComboBox&>(control), value);
    case ControlKind::CheckBox:
        return driver.setChecked(static_cast<CheckBox&>(control), readYesNo(control, value));
    case ControlKind::OptionButton:
        return setChecked(driver, static_cast<OptionButton&>(control), readYesNo(control, value));
    case ControlKind::DatePicker:
        return setDate(driver, static_cast<DatePicker&>(control), value);
    default:
        refuse(control, "takes no value");
    }
}

void pickEntry(Driver& driver, Control& control, const QString& entry, bool isIndex) {
    switch (control.kind()) {
    case ControlKind::ComboBox: {
        auto& box = static_cast<ComboBox&>(control);
        requireUnlocked(box);
        return driver.choose(box, indexOf(box, box.items(), entry, isIndex));
    }
    case ControlKind::ListBox: {
        auto& list = static_cast<ListBox&>(control);
        return driver.setSelected(list, indexOf(list, entriesOf(list), entry, isIndex), true);
    }
    case ControlKind::Tree: {
        auto& tree = static_cast<Tree&>(control);
        return driver.choose(tree, tree.nodes().at(indexOf(tree, textsOf(tree), entry, isIndex)).key);
    }
    case ControlKind::TabStrip: {
        auto& tabs = static_cast<TabStrip&>(control);
        return driver.choose(tabs, indexOf(tabs, pagesOf(tabs, tabs.form().layout()), entry, isIndex));
    }
    default:
        refuse(control, "has no entries to pick");
    }
}

void tickEntries(Driver& driver, Control& control, const QStringList& entries, bool ticked) {
    if (control.kind() != ControlKind::ListBox)
        refuse(control, "is not a list to tick in");
    auto& list = static_cast<ListBox&>(control);
    for (const QString& entry : entries) {
        const qsizetype index = entriesOf(list).indexOf(entry);
        if (index < 0)
            refuse(list, QStringLiteral("has no entry \"%1\"").arg(entry));
        driver.setSelected(list, int(index), ticked);
    }
}

void makeRowCurrent(Driver& driver, Control& control, const QString& row, bool isIndex) {
    if (control.kind() == ControlKind::Grid) {
        auto& grid = static_cast<Grid&>(control);
        driver.selectRow(grid, isIndex ? rowNumber(grid, row, grid.rowCount()) : findRow(grid, row));
    } else if (control.kind() == ControlKind::EntryGrid) {
        auto& grid = static_cast<EntryGrid&>(control);
        // A script counts the rows below the head from 0.
        driver.selectRow(grid, isIndex ? rowNumber(grid, row, grid.rows() - 1) + 1 : findRow(grid, row));
    } else {
        refuse(control, "has no rows");
    }
}

void clickControl(Driver& driver, Control& control) {
    switch (control.kind()) {
    case ControlKind::CheckBox: {
        auto& box = static_cast<CheckBox&>(control);
        return driver.setChecked(box, !box.isChecked());
    }
    case ControlKind::OptionButton:
        return driver.check(static_cast<OptionButton&>(control));
    case ControlKind::Menu:
        return driver.click(static_cast<MenuItem&>(control));
    default:
        driver.click(control);
    }
}

void typeKeys(Driver& driver, Control& control, const QString& keys) {
    for (const QChar key : keys)
        driver.key(control, key);
}

} // namespace orvane
