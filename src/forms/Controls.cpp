#include "forms/Controls.h"

#include "data/Assert.h"
#include "forms/Form.h"

#include <QFileInfo>
#include <algorithm>

namespace orvane {

namespace {

constexpr int firstPage = 100; ///< entries of a long list that are made at once

} // namespace

void Label::setText(const QString& text) {
    if (text == caption())
        return;
    setCaption(text);
    raise(onChange);
}

void TextBox::setText(const QString& text) {
    const QString value = m_upper ? text.toUpper() : text;
    if (value == m_text)
        return;
    m_text = value;
    touch();
    raise(onChange);
}

void TextBox::typeOver() {
    m_typeOver = true;
    setFocus();
    touch();
}

void TextBox::setLocked(bool locked) {
    m_locked = locked;
    touch();
}

void ComboBox::clear() {
    m_feed = RowFeed();
    m_items.clear();
    m_index = -1;
    m_text.clear();
    touchContent();
}

void ComboBox::addItem(const QString& text, const QVariant& data) {
    m_items.append({text, data});
    touchContent();
}

void ComboBox::addItems(const QStringList& texts) {
    for (const QString& text : texts)
        m_items.append({text, {}});
    touchContent();
}

void ComboBox::fill(const Recordset& rows, const std::function<Entry(const Recordset&)>& entry) {
    m_feed.readAll();
    m_feed = RowFeed(rows, [this, entry](const Recordset& row) { m_items.append(entry(row)); });
    m_feed.read(firstPage);
    touchContent();
}

int ComboBox::count() const {
    m_feed.readAll();
    return entriesRead();
}

QStringList ComboBox::items() const {
    m_feed.readAll();
    QStringList texts;
    for (const Entry& item : m_items)
        texts << item.text;
    return texts;
}

void ComboBox::setListIndex(int index) {
    ORVANE_ASSERT(index >= -1 && (index < entriesRead() || index < count()));
    m_index = index;
    m_text = index < 0 ? QString() : m_items.at(index).text;
    touch();
    raise(onClick);
}

void ComboBox::setText(const QString& text) {
    const QString value = m_upper ? text.toUpper() : text;
    // Of two entries with one text, the chosen one stays chosen.
    if (m_index >= 0 && value.compare(m_text, Qt::CaseInsensitive) == 0)
        return;
    m_feed.readAll();
    const auto found = std::find_if(m_items.cbegin(), m_items.cend(), [&](const Entry& item) {
        return item.text.compare(value, Qt::CaseInsensitive) == 0;
    });
    if (found != m_items.cend()) {
        setListIndex(int(found - m_items.cbegin()));
        return;
    }
    if (m_style == ListOnly || (value == m_text && m_index == -1))
        return;
    m_index = -1;
    m_text = value;
    touch();
    raise(onChange);
}

void ComboBox::setLocked(bool locked) {
    m_locked = locked;
    touch();
}

void CheckBox::setChecked(bool checked) {
    if (m_checked == checked)
        return;
    m_checked = checked;
    touch();
    click();
}

void OptionButton::setChecked(bool checked) {
    if (m_checked == checked)
        return;
    m_checked = checked;
    touch();
    if (!checked)
        return;
    for (Control* other : form().controls())
        if (other != this && other->kind() == ControlKind::OptionButton && other->parentFrame() == parentFrame())
            static_cast<OptionButton*>(other)->setChecked(false);
    click();
}

void ListBox::clear() {
    m_items.clear();
    touchContent();
}

void ListBox::addItem(const QString& text, const QVariant& data) {
    m_items.append({text, data, false});
    touchContent();
}

void ListBox::setSelected(int index, bool selected) {
    ORVANE_ASSERT(index >= 0 && index < count());
    if (m_items[index].selected == selected)
        return;
    m_items[index].selected = selected;
    touch();
    click();
}

QString ListBox::valueText() const {
    QStringList chosen;
    for (const Item& entry : m_items)
        if (entry.selected)
            chosen << entry.text;
    return chosen.join(QLatin1Char('\n'));
}

void DatePicker::setDate(QDate date) {
    if (m_date == date)
        return;
    m_date = date;
    touch();
    raise(onChange);
}

void DatePicker::setLocked(bool locked) {
    m_locked = locked;
    touch();
}

void Frame::holds(std::initializer_list<Control*> controls) {
    for (Control* control : controls)
        control->setParentFrame(this);
    // The children look at the frame's flags when they are shown.
    QObject::connect(this, &Control::changed, this, [held = QVector<Control*>(controls)] {
        for (Control* control : held)
            Q_EMIT control->changed();
    });
}

void TabStrip::setTab(int tab) {
    if (m_tab == tab)
        return;
    m_tab = tab;
    touch();
    click();
}

void Tree::clear() {
    m_feed = RowFeed();
    m_nodes.clear();
    m_selected.clear();
    touchContent();
}

void Tree::addNode(const Node& node) {
    m_nodes.append(node);
    touchContent();
}

void Tree::fill(const Recordset& rows, const std::function<Node(const Recordset&)>& node) {
    m_feed.readAll();
    m_feed = RowFeed(rows, [this, node](const Recordset& row) { m_nodes.append(node(row)); });
    m_feed.read(firstPage);
    touchContent();
}

const QVector<Tree::Node>& Tree::nodes() const {
    m_feed.readAll();
    return m_nodes;
}

const Tree::Node* Tree::selectedNode() const {
    for (const Node& node : m_nodes)
        if (node.key == m_selected)
            return &node;
    return nullptr;
}

void Tree::select(const QString& key) {
    m_selected = key;
    touch();
    click();
}

QString Tree::valueText() const {
    const Node* node = selectedNode();
    return node ? node->text : QString();
}

void Picture::setFile(const QString& path) {
    m_file = QFileInfo(path).isReadable() ? path : QString();
    touch();
}

void ProgressBar::setValue(int percent) {
    m_value = std::clamp(percent, 0, 100);
    touch();
}

void StatusBar::setPanel(int number, const QString& text) {
    m_panels[number - 1] = text;
    touch();
}

void StatusBar::setMessage(const QString& text) {
    m_message = text;
    touch();
}

void Timer::tick() {
    if (isEnabled())
        raise(onTimer);
}

void Button::setCount(int count) {
    if (m_count == count)
        return;
    m_count = count;
    touch();
}

MenuItem::MenuItem(Form& form, const QString& name, const QString& caption, MenuItem* menu)
    : Control(form, ControlKind::Menu, name), m_menu(menu) {
    setCaption(caption);
    if (!menu)
        return;
    menu->m_entries.append(this);
    setParentFrame(menu); // an entry of a hidden or disabled menu cannot be reached
}

} // namespace orvane
