#include "desktop/SmallBindings.h"

#include "desktop/DateEdit.h"
#include "desktop/FormView.h"
#include "desktop/Keyed.h"
#include "desktop/ListModels.h"
#include "desktop/Look.h"
#include "desktop/TreeModel.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>
#include <algorithm>

namespace orvane {

namespace {

/// A timer rests so long after a list was scrolled, so that its user can read what he has scrolled to.
constexpr int ticksAfterAList = 2;

/// Click and double click of a control that is no input: a strip, a picture, a label.
void raiseMouse(Binding& binding, QEvent* event) {
    const QPointer<Control> control(binding.control());
    if (!control)
        return;
    if (event->type() == QEvent::MouseButtonRelease && control->onClick)
        binding.press([control] { control->click(); });
    else if (event->type() == QEvent::MouseButtonDblClick && control->onDblClick)
        binding.press([control] { control->dblClick(); });
}

using TickBox = Keyed<QCheckBox, QStyle::SE_CheckBoxContents, QStyleOptionButton>;
using OptionCircle = Keyed<QRadioButton, QStyle::SE_RadioButtonContents, QStyleOptionButton>;

bool isEnter(const QEvent* event) {
    if (event->type() != QEvent::KeyPress)
        return false;
    const int key = static_cast<const QKeyEvent*>(event)->key();
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

} // namespace

LabelBinding::LabelBinding(FormView& view, Label& label, QWidget* parent, Place place, int characters)
    : Binding(view, label, new QLabel(parent)), m_label(&label), m_text(static_cast<QLabel*>(widget())),
      m_longestLine(place == Place::Card ? 22 : 70) {
    m_text->setTextFormat(Qt::PlainText);
    m_text->setFocusPolicy(Qt::NoFocus);
    look::mark(*m_text, "strong", place == Place::Facts || place == Place::Card);
    look::mark(*m_text, "large", place == Place::Large);
    if (place == Place::Card || place == Place::Large)
        m_text->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    if (characters > 0)
        m_text->setMinimumWidth(look::charactersWidth(*m_text, characters));
}

void LabelBinding::refresh() {
    const QString text = Mnemonics::plain(m_label->caption());
    m_text->setText(text);
    // A sentence goes on in a second line rather than push its form wider.
    if (text.size() > m_longestLine)
        m_text->setWordWrap(true);
    QPalette palette;
    if (const auto color = m_label->color()) {
        palette.setColor(QPalette::Window, QColor(QRgb(*color)));
        palette.setColor(QPalette::WindowText, look::inkOn(QColor(QRgb(*color))));
    }
    m_text->setPalette(palette);
    m_text->setAutoFillBackground(m_label->color().has_value());
}

bool LabelBinding::eventFilter(QObject* watched, QEvent* event) {
    raiseMouse(*this, event);
    return Binding::eventFilter(watched, event);
}

CheckBinding::CheckBinding(FormView& view, CheckBox& box, QWidget* parent)
    : Binding(view, box, new TickBox(parent)), m_box(&box), m_tick(static_cast<QCheckBox*>(widget())),
      m_mnemonic(view.mnemonics().add(Mnemonics::Press, box.caption(), showKey(static_cast<TickBox&>(*m_tick)))) {
    m_tick->setAccessibleName(Mnemonics::plain(box.caption()));
    connect(m_tick, &QCheckBox::clicked, this,
            [this](bool checked) { user([this, checked] { m_box->setChecked(checked); }); });
}

void CheckBinding::refresh() {
    m_tick->setChecked(m_box->isChecked());
    view().mnemonics().captionChanged(m_mnemonic, m_box->caption());
}

OptionBinding::OptionBinding(FormView& view, OptionButton& option, QWidget* parent)
    : Binding(view, option, new OptionCircle(parent)), m_option(&option), m_radio(static_cast<QRadioButton*>(widget())),
      m_mnemonic(
          view.mnemonics().add(Mnemonics::Press, option.caption(), showKey(static_cast<OptionCircle&>(*m_radio)))) {
    m_radio->setAccessibleName(Mnemonics::plain(option.caption()));
    // Which options exclude each other the form model knows; the widgets only show it.
    m_radio->setAutoExclusive(false);
    connect(m_radio, &QRadioButton::clicked, this, [this] { user([this] { m_option->setChecked(true); }); });
}

void OptionBinding::refresh() {
    m_radio->setChecked(m_option->isChecked());
    view().mnemonics().captionChanged(m_mnemonic, m_option->caption());
}

ButtonBinding::ButtonBinding(FormView& view, Button& button, QWidget* parent)
    : Binding(view, button, new WordButton(parent)), m_button(&button), m_push(static_cast<QPushButton*>(widget())),
      m_mnemonic(view.mnemonics().add(&button == view.form()->saveButton() ? Mnemonics::First : Mnemonics::Press,
                                      button.caption(), showKey(static_cast<WordButton&>(*m_push)))) {
    m_push->setAutoDefault(false);
    connect(m_push, &QPushButton::clicked, this, [this] {
        if (m_button)
            this->view().press(*m_button);
    });
}

void ButtonBinding::refresh() {
    const QString waiting = m_button->count() > 0 ? QStringLiteral(" (%L1)").arg(m_button->count()) : QString();
    view().mnemonics().captionChanged(m_mnemonic, m_button->caption() + waiting);
    m_push->setAccessibleName(Mnemonics::plain(m_button->caption()) + waiting);
}

FrameBinding::FrameBinding(FormView& view, Frame& frame, QGroupBox* box)
    : Binding(view, frame, box), m_frame(&frame), m_box(box) {}

void FrameBinding::refresh() {
    if (m_frame->caption().isEmpty())
        return;
    const QString caption = m_frame->caption();
    m_box->setTitle(Mnemonics::marked(Mnemonics::plain(caption), {}));
}

bool FrameBinding::eventFilter(QObject* watched, QEvent* event) {
    raiseMouse(*this, event);
    return Binding::eventFilter(watched, event);
}

TabBinding::TabBinding(FormView& view, TabStrip& strip, QTabWidget* tabs)
    : Binding(view, strip, tabs), m_strip(&strip), m_tabs(tabs) {
    connect(
        m_tabs, &QTabWidget::currentChanged, this,
        [this](int tab) {
            if (m_strip && m_strip->tab() != tab)
                user([this, tab] { m_strip->setTab(tab); });
        });
}

void TabBinding::refresh() {
    const QSignalBlocker quiet(m_tabs);
    m_tabs->setCurrentIndex(m_strip->tab());
}

ListBinding::ListBinding(FormView& view, ListBox& list, QWidget* parent)
    : Binding(view, list, new QListView(parent)), m_list(&list), m_rows(static_cast<QListView*>(widget())),
      m_model(new TickModel(list, this)), m_seen(list.contentRevision()) {
    m_rows->setModel(m_model);
    m_rows->setUniformItemSizes(true);
    m_rows->setAlternatingRowColors(true);
    m_model->onTick = [this](int row, bool ticked) {
        if (m_list)
            user([this, row, ticked] { m_list->setSelected(row, ticked); });
    };
}

void ListBinding::refresh() {
    if (m_seen != m_list->contentRevision())
        m_model->reload();
    else
        m_model->redraw();
    m_seen = m_list->contentRevision();
}

DateBinding::DateBinding(FormView& view, DatePicker& picker, QWidget* parent)
    : Binding(view, picker, new DateEdit(parent)), m_picker(&picker), m_edit(static_cast<DateEdit*>(widget())) {
    watch(m_edit->lineEdit());
    if (picker.rangeEnd())
        m_range.emplace(picker, view.memory());
    connect(m_edit, &DateEdit::dateEdited, this,
            [this](QDate date) { user([this, date] { m_picker->setDate(date); }); });
}

QWidget* DateBinding::editor() const {
    return m_edit->lineEdit();
}

bool DateBinding::settle() {
    return m_edit->settle();
}

void DateBinding::released() {
    if (m_range)
        m_range->keep();
    m_picker = nullptr;
}

void DateBinding::refresh() {
    m_edit->setLocked(m_picker->isLocked());
    // What is being typed stays until the value itself changes.
    if (m_edit->date() != m_picker->date())
        m_edit->setDate(m_picker->date());
}

TreeBinding::TreeBinding(FormView& view, Tree& tree, QWidget* parent)
    : Binding(view, tree, new QTreeView(parent)), m_tree(&tree), m_items(static_cast<QTreeView*>(widget())),
      m_model(new TreeModel(tree, this)), m_seen(tree.contentRevision()) {
    m_items->setHeaderHidden(true);
    m_items->setUniformRowHeights(true);
    m_items->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_items->setModel(m_model);
    expand();
    connect(m_items, &QTreeView::clicked, this, &TreeBinding::picked);
}

void TreeBinding::expand() {
    for (const Tree::Node& node : m_tree->nodesRead())
        if (node.expanded)
            m_items->expand(m_model->indexOf(node.key));
}

void TreeBinding::refresh() {
    const bool another = m_seen != m_tree->contentRevision();
    if (another) {
        m_seen = m_tree->contentRevision();
        m_model->reload();
        expand();
    } else if (!m_tree->hasMore() || m_tree->nodesRead().size() > 2 * m_model->nodesShown()) {
        // The view lays all its nodes out whenever some come in: let them come in a few times only.
        m_model->catchUp();
    }
    // The keys move through the nodes without choosing one: that place stays until another node is chosen.
    if (!another && m_shownKey == m_tree->selectedKey())
        return;
    m_shownKey = m_tree->selectedKey();
    const QSignalBlocker quiet(m_items);
    m_items->setCurrentIndex(m_model->indexOf(m_shownKey));
}

void TreeBinding::picked() {
    const QString key = m_model->keyOf(m_items->currentIndex());
    if (!key.isEmpty() && m_tree)
        user([this, key] { m_tree->select(key); });
}

bool TreeBinding::eventFilter(QObject* watched, QEvent* event) {
    if (isEnter(event)) {
        picked();
        return true;
    }
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Space) {
        picked();
        return true;
    }
    return Binding::eventFilter(watched, event);
}

PictureBinding::PictureBinding(FormView& view, Picture& picture, QWidget* parent)
    : Binding(view, picture, new PictureBox(parent)), m_picture(&picture), m_box(static_cast<PictureBox*>(widget())) {}

void PictureBinding::refresh() {
    m_box->setAccessibleName(m_picture->toolTip());
    m_box->setColor(m_picture->color());
    m_box->setFile(m_picture->file());
}

bool PictureBinding::eventFilter(QObject* watched, QEvent* event) {
    raiseMouse(*this, event);
    return Binding::eventFilter(watched, event);
}

ProgressBinding::ProgressBinding(FormView& view, ProgressBar& bar, QWidget* parent)
    : Binding(view, bar, new QProgressBar(parent)), m_bar(&bar), m_progress(static_cast<QProgressBar*>(widget())) {
    m_progress->setRange(0, 100);
}

void ProgressBinding::refresh() {
    m_progress->setValue(m_bar->value());
}

StatusBinding::StatusBinding(FormView& view, StatusBar& bar, QWidget* row) : Binding(view, bar, row), m_bar(&bar) {
    for (int panel = 0; panel < bar.panels(); ++panel) {
        auto* label = new QLabel(row);
        label->setTextFormat(Qt::PlainText);
        row->layout()->addWidget(label);
        m_panels << label;
    }
    m_message = new QLabel(row);
    m_message->setTextFormat(Qt::PlainText);
    m_message->setAccessibleDescription("What was saved last");
    // A long text must not push the main window wider.
    m_message->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void StatusBinding::refresh() {
    for (int panel = 0; panel < int(m_panels.size()); ++panel) {
        const QString text = m_bar->panel(panel + 1);
        m_panels.at(panel)->setText(text);
        m_panels.at(panel)->setVisible(!text.isEmpty());
    }
    m_message->setText(m_bar->message());
    m_message->setToolTip(look::plainHint(m_bar->message()));
}

TimerBinding::TimerBinding(FormView& view, Timer& timer) : Binding(view, timer, nullptr), m_timer(&timer) {
    connect(
        &m_clock, &QTimer::timeout, this,
        [this] {
            if (m_rest > 0)
                --m_rest;
            else if (!isWorking())
                byItself([this] { m_timer->tick(); });
        });
    connect(&view, &FormView::listHandled, this, [this] { m_rest = ticksAfterAList; });
}

void TimerBinding::refresh() {
    if (view().isScripted())
        return;
    if (!m_timer->isEnabled())
        m_clock.stop();
    else if (!m_clock.isActive())
        m_clock.start(std::max(1, m_timer->interval() / view().timerSpeed()));
}

void TimerBinding::released() {
    m_timer = nullptr;
    m_clock.stop();
}

} // namespace orvane
