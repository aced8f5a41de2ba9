#pragma once

#include "forms/Control.h"
#include "forms/RowFeed.h"

#include <QVariant>
#include <QVector>
#include <optional>
#include <utility>

namespace orvane {

class Label : public Control {
public:
    Label(Form& form, const QString& name, const QString& caption = {}) : Control(form, ControlKind::Label, name) {
        setCaption(caption);
    }
    template <typename FormClass, typename Class, typename Result>
    Label(FormClass& form, const QString& name, const QString& caption, Result (Class::*handler)())
        : Label(form, name, caption) {
        onChange = handlerOf(form, handler);
    }
    Handler onChange; ///< raised when code changes the caption, where a screen asks for it
    void setText(const QString& text);
    const QString& text() const { return caption(); }
    void clear() { setText({}); }
};

class TextBox : public Control {
public:
    TextBox(Form& form, const QString& name) : Control(form, ControlKind::TextBox, name) {}
    template <typename FormClass, typename Class, typename Result>
    TextBox(FormClass& form, const QString& name, Result (Class::*handler)()) : TextBox(form, name) {
        onChange = handlerOf(form, handler);
    }
    const QString& text() const { return m_text; }
    /// Raises onChange when the text differs, whoever sets it.
    void setText(const QString& text);
    void clear() { setText({}); }
    bool isLocked() const { return m_locked; }
    void setLocked(bool locked);
    bool isMasked() const { return m_masked; }
    TextBox& masked() {
        m_masked = true;
        return *this;
    }
    bool isMultiline() const { return m_multiline; }
    TextBox& multiline() {
        m_multiline = true;
        return *this;
    }
    bool isUpperCase() const { return m_upper; }
    TextBox& upperCase() {
        m_upper = true;
        return *this;
    } ///< typed letters become capitals
    bool isNumeric() const { return m_numeric; }
    TextBox& numeric() {
        m_numeric = true;
        return *this;
    } ///< shown right aligned
    int maxLength() const { return m_maxLength; }
    void setMaxLength(int length) { m_maxLength = length; } ///< 0: no limit
    /// Asks for the focus with the whole text selected, so that what is typed next takes its place.
    void typeOver();
    bool takeTypeOver() { return std::exchange(m_typeOver, false); } ///< for its view, which selects the text
    QString valueText() const override { return m_text; }

    Handler onChange;
    Handler onEnter; ///< the Enter key inside the box; unset: the form's default button
    Handler onDown;  ///< the Down key inside the box, such as into the list that it fills

private:
    QString m_text;
    bool m_locked = false, m_masked = false, m_multiline = false, m_upper = false, m_numeric = false;
    bool m_typeOver = false;
    int m_maxLength = 0;
};

/// A drop-down with free text, or a list only. Choosing an index, by the user or by code, sets the text and raises
/// onClick; setting a list-only box to a text that is not in its list changes nothing.
class ComboBox : public Control {
public:
    enum Style { FreeText, ListOnly };
    ComboBox(Form& form, const QString& name, Style style = FreeText)
        : Control(form, ControlKind::ComboBox, name), m_style(style) {}
    template <typename FormClass, typename Class, typename Result>
    ComboBox(FormClass& form, const QString& name, Style style, Result (Class::*handler)())
        : ComboBox(form, name, style) {
        onClick = handlerOf(form, handler);
    }
    Style style() const { return m_style; }
    void clear(); ///< no entries, no text, index -1; raises nothing
    void addItem(const QString& text, const QVariant& data = {});
    void addItems(const QStringList& texts);
    /// An entry's text and what it stands for.
    struct Entry {
        QString text;
        QVariant data = {};
    };
    /// Adds an entry for each row, made when it is first asked for.
    void fill(const Recordset& rows, const std::function<Entry(const Recordset&)>& entry);
    bool hasMore() const override { return m_feed.hasMore(); }
    void readMore(int rows) override { m_feed.read(rows); }
    int entriesRead() const { return int(m_items.size()); }
    int count() const;
    const QString& item(int index) const { return m_items.at(index).text; }
    QVariant itemData(int index) const { return m_items.at(index).data; }
    QStringList items() const;
    int listIndex() const { return m_index; } ///< -1: the text is not taken from the list
    /// What the picked entry stands for: the data that it was added with, never its text. Nothing where no entry is
    /// picked, or one without such data, as the blank one.
    template <typename T>
    std::optional<T> picked() const {
        const QVariant data = m_index < 0 ? QVariant() : m_items.at(m_index).data;
        return data.canConvert<T>() ? std::optional<T>(data.value<T>()) : std::nullopt;
    }
    void setListIndex(int index); ///< -1 clears the text; any index raises onClick
    const QString& text() const { return m_text; }
    /// The text of an entry (without regard to case) takes that entry's index and raises onClick; a free text sets
    /// index -1 and raises onChange.
    void setText(const QString& text);
    bool isLocked() const { return m_locked; }
    void setLocked(bool locked);
    bool isUpperCase() const { return m_upper; }
    ComboBox& upperCase() {
        m_upper = true;
        return *this;
    }
    QString valueText() const override { return m_text; }

    Handler onChange; ///< the text was typed (not picked)

private:
    QVector<Entry> m_items;
    mutable RowFeed m_feed;
    QString m_text;
    int m_index = -1;
    Style m_style;
    bool m_locked = false, m_upper = false;
};

/// Raises onClick whenever the tick changes, by the user or by code.
class CheckBox : public Control {
public:
    CheckBox(Form& form, const QString& name, const QString& caption) : Control(form, ControlKind::CheckBox, name) {
        setCaption(caption);
    }
    template <typename FormClass, typename Class, typename Result>
    CheckBox(FormClass& form, const QString& name, const QString& caption, Result (Class::*handler)())
        : CheckBox(form, name, caption) {
        onClick = handlerOf(form, handler);
    }
    bool isChecked() const { return m_checked; }
    void setChecked(bool checked);
    QString valueText() const override { return m_checked ? "yes" : "no"; }

private:
    bool m_checked = false;
};

/// One of a group: checking it unchecks the others of the same frame (or form).
class OptionButton : public Control {
public:
    OptionButton(Form& form, const QString& name, const QString& caption)
        : Control(form, ControlKind::OptionButton, name) {
        setCaption(caption);
    }
    template <typename FormClass, typename Class, typename Result>
    OptionButton(FormClass& form, const QString& name, const QString& caption, Result (Class::*handler)())
        : OptionButton(form, name, caption) {
        onClick = handlerOf(form, handler);
    }
    bool isChecked() const { return m_checked; }
    void setChecked(bool checked);
    QString valueText() const override { return m_checked ? "yes" : "no"; }

private:
    bool m_checked = false;
};

/// A list with multiple selection and data behind each entry.
class ListBox : public Control {
public:
    ListBox(Form& form, const QString& name) : Control(form, ControlKind::ListBox, name) {}
    template <typename FormClass, typename Class, typename Result>
    ListBox(FormClass& form, const QString& name, Result (Class::*handler)()) : ListBox(form, name) {
        onClick = handlerOf(form, handler);
    }
    void clear();
    void addItem(const QString& text, const QVariant& data = {});
    int count() const { return int(m_items.size()); }
    const QString& item(int index) const { return m_items.at(index).text; }
    QVariant itemData(int index) const { return m_items.at(index).data; }
    bool isSelected(int index) const { return m_items.at(index).selected; }
    void setSelected(int index, bool selected); ///< raises onClick
    QString valueText() const override;         ///< the selected entries, one a line

private:
    struct Item {
        QString text;
        QVariant data;
        bool selected = false;
    };
    QVector<Item> m_items;
};

/// A date that can be empty.
class DatePicker : public Control {
public:
    DatePicker(Form& form, const QString& name) : Control(form, ControlKind::DatePicker, name) {}
    template <typename FormClass, typename Class, typename Result>
    DatePicker(FormClass& form, const QString& name, Result (Class::*handler)()) : DatePicker(form, name) {
        onChange = handlerOf(form, handler);
    }
    QDate date() const { return m_date; }
    void setDate(QDate date); ///< raises onChange when it differs
    void clear() { setDate({}); }
    bool isEmpty() const { return !m_date.isValid(); }
    bool isLocked() const { return m_locked; }
    void setLocked(bool locked);
    /// The other end of the range of days that this date begins; null: it begins none.
    DatePicker* rangeEnd() const { return m_rangeEnd; }
    void setRangeEnd(DatePicker* end) { m_rangeEnd = end; }
    QString valueText() const override { return m_date.toString(Qt::ISODate); }

    Handler onChange;

private:
    QDate m_date;
    DatePicker* m_rangeEnd = nullptr;
    bool m_locked = false;
};

class Button : public Control {
public:
    Button(Form& form, const QString& name, const QString& caption) : Control(form, ControlKind::Button, name) {
        setCaption(caption);
    }
    template <typename FormClass, typename Class, typename Result>
    Button(FormClass& form, const QString& name, const QString& caption, Result (Class::*handler)())
        : Button(form, name, caption) {
        onClick = handlerOf(form, handler);
    }
    int count() const { return m_count; }
    /// How many wait behind the button, which a window shows after its caption; 0: nothing to say.
    void setCount(int count);

private:
    int m_count = 0;
};

/// A box around controls; its enabled and visible flags reach them. Controls join by Frame::holds.
class Frame : public Control {
public:
    Frame(Form& form, const QString& name, const QString& caption = {}) : Control(form, ControlKind::Frame, name) {
        setCaption(caption);
    }
    void holds(std::initializer_list<Control*> controls);
};

/// The tabs of a form; the pages are in the layout. Changing the tab, by the user or by code, raises onClick.
class TabStrip : public Control {
public:
    TabStrip(Form& form, const QString& name) : Control(form, ControlKind::TabStrip, name) {}
    template <typename FormClass, typename Class, typename Result>
    TabStrip(FormClass& form, const QString& name, Result (Class::*handler)()) : TabStrip(form, name) {
        onClick = handlerOf(form, handler);
    }
    int tab() const { return m_tab; }
    void setTab(int tab);
    QString valueText() const override { return QString::number(m_tab); }

private:
    int m_tab = 0;
};

/// Nodes with a key and a text; clicking one sets the selected node and raises onClick.
class Tree : public Control {
public:
    struct Node {
        QString key;
        QString text;
        QString parentKey;
        bool expanded = false;
        QVariant data = {}; ///< what the node stands for
    };
    Tree(Form& form, const QString& name) : Control(form, ControlKind::Tree, name) {}
    template <typename FormClass, typename Class, typename Result>
    Tree(FormClass& form, const QString& name, Result (Class::*handler)()) : Tree(form, name) {
        onClick = handlerOf(form, handler);
    }
    void clear();
    void addNode(const Node& node);
    /// Adds a node for each row, made when it is first asked for.
    void fill(const Recordset& rows, const std::function<Node(const Recordset&)>& node);
    bool hasMore() const override { return m_feed.hasMore(); }
    void readMore(int rows) override { m_feed.read(rows); }
    const QVector<Node>& nodesRead() const { return m_nodes; }
    const QVector<Node>& nodes() const;
    const QString& selectedKey() const { return m_selected; }
    const Node* selectedNode() const;
    /// What the selected node stands for: its data, never its key or text. Nothing where none is selected, or one
    /// without such data, as the root.
    template <typename T>
    std::optional<T> picked() const {
        const Node* node = selectedNode();
        return node && node->data.canConvert<T>() ? std::optional<T>(node->data.value<T>()) : std::nullopt;
    }
    void select(const QString& key); ///< as the user's click
    QString valueText() const override;

private:
    QVector<Node> m_nodes;
    mutable RowFeed m_feed;
    QString m_selected;
};

/// A picture from a file; a missing file shows nothing.
class Picture : public Control {
public:
    Picture(Form& form, const QString& name) : Control(form, ControlKind::Picture, name) {}
    const QString& file() const { return m_file; }
    void setFile(const QString& path); ///< a file that cannot be read is ignored
    QString valueText() const override { return m_file; }

private:
    QString m_file;
};

class ProgressBar : public Control {
public:
    ProgressBar(Form& form, const QString& name) : Control(form, ControlKind::ProgressBar, name) {}
    int value() const { return m_value; }
    void setValue(int percent); ///< 0 to 100
    QString valueText() const override { return QString::number(m_value); }

private:
    int m_value = 0;
};

/// Panels counted from 1, as the screens count them.
class StatusBar : public Control {
public:
    StatusBar(Form& form, const QString& name, int panels)
        : Control(form, ControlKind::StatusBar, name), m_panels(panels) {}
    int panels() const { return int(m_panels.size()); }
    QString panel(int number) const { return m_panels.at(number - 1); }
    void setPanel(int number, const QString& text);
    /// What has just happened, beside the panels and no part of the value.
    const QString& message() const { return m_message; }
    void setMessage(const QString& text);
    QString valueText() const override { return m_panels.join(QLatin1Char('|')); }

private:
    QStringList m_panels;
    QString m_message;
};

/// Raises onTimer each interval while enabled; the desktop ticks it, the script player on demand.
class Timer : public Control {
public:
    Timer(Form& form, const QString& name, int milliseconds, bool startEnabled)
        : Control(form, ControlKind::Timer, name), m_interval(milliseconds) {
        setEnabled(startEnabled);
    }
    template <typename FormClass, typename Class, typename Result>
    Timer(FormClass& form, const QString& name, int milliseconds, bool startEnabled, Result (Class::*handler)())
        : Timer(form, name, milliseconds, startEnabled) {
        onTimer = handlerOf(form, handler);
    }
    int interval() const { return m_interval; }
    void tick(); ///< does nothing while disabled
    Handler onTimer;

private:
    int m_interval;
};

/// A menu or an entry of one. Clicking raises onClick. Entries are in the order of their construction below their menu.
class MenuItem : public Control {
public:
    MenuItem(Form& form, const QString& name, const QString& caption, MenuItem* menu = nullptr);
    MenuItem* menu() const { return m_menu; }
    const QVector<MenuItem*>& entries() const { return m_entries; }

private:
    MenuItem* m_menu;
    QVector<MenuItem*> m_entries;
};

} // namespace orvane
