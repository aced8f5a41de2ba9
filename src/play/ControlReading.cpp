#include "play/ControlReading.h"

#include "play/EventLog.h"

namespace orvane {

namespace {

bool isLocked(const Control& control) {
    switch (control.kind()) {
    case ControlKind::TextBox:
        return static_cast<const TextBox&>(control).isLocked();
    case ControlKind::ComboBox:
        return static_cast<const ComboBox&>(control).isLocked();
    case ControlKind::DatePicker:
        return static_cast<const DatePicker&>(control).isLocked();
    default:
        return false;
    }
}

QString joined(const QStringList& cells) {
    QStringList texts;
    for (const QString& cell : cells)
        texts << EventLog::oneLine(cell);
    return texts.join(QLatin1Char('\t'));
}

QStringList rowsOfGrid(const Grid& grid) {
    QList<int> shown;
    QStringList heads;
    for (int column = 0; column < grid.columnCount(); ++column)
        if (!grid.isHidden(column)) {
            shown << column;
            heads << grid.columnHead(column);
        }
    QStringList lines{joined(heads)};
    for (int row = 0; row < grid.rowCount(); ++row) {
        QStringList cells;
        for (const int column : shown)
            cells << grid.cellText(row, column);
        lines << joined(cells);
    }
    return lines;
}

QStringList rowsOfEntryGrid(const EntryGrid& grid) {
    QStringList heads;
    for (int column = 0; column < grid.columns(); ++column)
        heads << grid.head(column);
    QStringList lines{joined(heads)};
    for (int row = 1; row < grid.rows(); ++row) {
        QStringList cells;
        for (int column = 0; column < grid.columns(); ++column)
            cells << grid.cell(row, column);
        lines << joined(cells);
    }
    return lines;
}

} // namespace

QString stateOf(const Control& control) {
    bool enabled = true;
    for (const Control* part = &control; part; part = part->parentFrame())
        enabled = enabled && part->isEnabled();
    QString state = control.isShown() ? "visible " : "hidden ";
    state += enabled ? "enabled" : "disabled";
    return isLocked(control) ? state + " locked" : state;
}

std::optional<QStringList> itemsOf(const Control& control) {
    QStringList items;
    switch (control.kind()) {
    case ControlKind::ComboBox:
        return static_cast<const ComboBox&>(control).items();
    case ControlKind::ListBox: {
        const auto& list = static_cast<const ListBox&>(control);
        for (int i = 0; i < list.count(); ++i)
            items << list.item(i);
        return items;
    }
    case ControlKind::Tree:
        for (const Tree::Node& node : static_cast<const Tree&>(control).nodes())
            items << node.text;
        return items;
    case ControlKind::StatusBar: {
        const auto& bar = static_cast<const StatusBar&>(control);
        for (int panel = 1; panel <= bar.panels(); ++panel)
            items << bar.panel(panel);
        return items;
    }
    case ControlKind::Menu:
        for (const MenuItem* entry : static_cast<const MenuItem&>(control).entries())
            items << entry->name();
        return items;
    default:
        return std::nullopt;
    }
}

std::optional<QStringList> rowsOf(const Control& control) {
    if (control.kind() == ControlKind::Grid)
        return rowsOfGrid(static_cast<const Grid&>(control));
    if (control.kind() == ControlKind::EntryGrid)
        return rowsOfEntryGrid(static_cast<const EntryGrid&>(control));
    return std::nullopt;
}

QStringList rowsOf(Recordset rows) {
    const int columns = int(rows.columns().size());
    if (columns == 0)
        return {};
    QStringList lines{joined(rows.columns())};
    for (rows.moveFirst(); !rows.eof(); rows.moveNext()) {
        QStringList cells;
        for (int column = 0; column < columns; ++column)
            cells << rows.text(column);
        lines << joined(cells);
    }
    return lines;
}

} // namespace orvane
