#include "desktop/ComboBinding.h"

#include "desktop/FormView.h"
#include "desktop/ListModels.h"
#include "desktop/Look.h"
#include "desktop/TextBinding.h"

#include <QAbstractItemView>
#include <QAbstractProxyModel>
#include <QComboBox>
#include <QCompleter>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QScreen>
#include <QScrollBar>
#include <QSignalBlocker>
#include <algorithm>

namespace orvane {

namespace {

constexpr int widestList = 900; ///< pixels

bool isEnter(const QKeyEvent& key) {
    return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
}

/// The completer's own list would measure each of 100,000 entries before it is told that all are of one height.
QListView* completionList() {
    auto* list = new QListView;
    list->setUniformItemSizes(true);
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setSelectionBehavior(QAbstractItemView::SelectRows);
    list->setSelectionMode(QAbstractItemView::SingleSelection);
    // What is too long loses its middle: entries that begin alike often differ at their ends.
    list->setTextElideMode(Qt::ElideMiddle);
    return list;
}

} // namespace

ComboBinding::ComboBinding(FormView& view, ComboBox& box, QWidget* parent, int characters)
    : Binding(view, box, new QComboBox(parent)), m_box(&box), m_combo(static_cast<QComboBox*>(widget())),
      m_model(new ComboModel(box, this)), m_seen(box.contentRevision()) {
    m_combo->setEditable(true);
    m_combo->setInsertPolicy(QComboBox::NoInsert);
    // Entries may be equal in their words and differ in what stands behind them.
    m_combo->setDuplicatesEnabled(true);
    m_combo->setMaxVisibleItems(16);
    m_combo->setFocusPolicy(Qt::StrongFocus);
    m_combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_combo->setMinimumContentsLength(characters > 0 ? std::max(2, characters - 2) : 12);
    auto* list = new QListView(m_combo);
    list->setUniformItemSizes(true);
    list->setTextElideMode(Qt::ElideMiddle);
    m_combo->setView(list);
    m_combo->setModel(m_model);

    auto* completer = new QCompleter(m_model, m_combo);
    completer->setFilterMode(Qt::MatchContains);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    completer->setCompletionMode(QCompleter::PopupCompletion);
    completer->setMaxVisibleItems(12);
    completer->setPopup(completionList());
    m_combo->setCompleter(completer);
    watch(m_combo->lineEdit());
    // Before the completer sees its keys.
    m_popup = completer->popup();
    m_popup->installEventFilter(this);

    connect(m_combo->lineEdit(), &QLineEdit::textEdited, this, &ComboBinding::typed);
    connect(m_combo->lineEdit(), &QLineEdit::editingFinished, this, &ComboBinding::finishSearch);
    // Raised for a completion too, with the entry that it stands for.
    connect(m_combo, &QComboBox::activated, this, &ComboBinding::picked);
}

QWidget* ComboBinding::editor() const {
    return m_combo->lineEdit();
}

void ComboBinding::typed() {
    if (!m_box)
        return;
    const QString text = takeOneLine(*m_combo->lineEdit());
    if (m_box->style() == ComboBox::ListOnly) {
        m_searching = true;
        if (m_box->hasMore())
            user([this] { m_box->count(); });
    } else {
        userEdit([this, text, before = m_box->text()] {
            if (m_box->text() == before)
                m_box->setText(text);
        });
    }
    // The completer, whose turn comes next, searches all entries.
    m_model->catchUp();
}

void ComboBinding::picked(int index) {
    if (!m_box || index < 0 || index >= m_box->entriesRead())
        return;
    m_searching = false;
    user([this, index] { m_box->setListIndex(index); });
}

/// The first entry that has the text, or else contains it; -1 when none does. An equal entry that is chosen already
/// comes before the others.
int ComboBinding::foundBelow(const QString& text) const {
    int containing = -1;
    for (int i = 0; i < m_box->count(); ++i) {
        if (m_box->item(i).compare(text, Qt::CaseInsensitive) == 0)
            return m_box->text().compare(text, Qt::CaseInsensitive) == 0 ? m_box->listIndex() : i;
        if (containing < 0 && m_box->item(i).contains(text, Qt::CaseInsensitive))
            containing = i;
    }
    return containing;
}

int ComboBinding::found() const {
    const QModelIndex marked = m_combo->completer()->popup()->currentIndex();
    if (m_popup->isVisible() && marked.isValid()) {
        const auto* matches = qobject_cast<const QAbstractProxyModel*>(m_combo->completer()->completionModel());
        return matches->mapToSource(marked).row();
    }
    const QString text = m_combo->currentText().trimmed();
    return text.isEmpty() ? -1 : foundBelow(text);
}

void ComboBinding::finishSearch() {
    if (!m_box || !m_searching || m_lookedAway)
        return;
    const int entry = found();
    m_searching = false;
    m_popup->hide();
    if (entry >= 0 && entry != m_box->listIndex())
        picked(entry);
    else
        refreshNow();
}

bool ComboBinding::settle() {
    m_lookedAway = false;
    finishSearch();
    return true;
}

void ComboBinding::reloadEntries() {
    m_seen = m_box->contentRevision();
    m_model->reload();
    m_measured = m_widest = 0;
    m_longest = 0;
}

/// As wide as the longest entry; with 100,000 of them only a longer one than those before it is measured.
void ComboBinding::widenLists() {
    if (m_measured == m_box->entriesRead())
        return;
    const QFontMetrics metrics(m_combo->font());
    for (; m_measured < m_box->entriesRead(); ++m_measured) {
        const QString& entry = m_box->item(m_measured);
        if (entry.size() <= m_longest)
            continue;
        m_longest = entry.size();
        m_widest = std::max(m_widest, metrics.horizontalAdvance(entry));
    }
    // A shorter entry of wider letters may need a little more.
    const int room = m_widest + m_widest / 16 + m_combo->view()->verticalScrollBar()->sizeHint().width() + 16;
    const int screenWidth = m_combo->screen()->availableGeometry().width();
    for (QAbstractItemView* list : {m_combo->view(), m_combo->completer()->popup()})
        list->setMinimumWidth(std::min({room, widestList, screenWidth}));
}

void ComboBinding::refresh() {
    const QSignalBlocker quiet(m_combo);
    if (m_seen != m_box->contentRevision())
        reloadEntries();
    else
        m_model->catchUp();
    widenLists();
    m_combo->lineEdit()->setReadOnly(m_box->isLocked());
    QPalette palette;
    if (m_box->isLocked())
        palette.setColor(QPalette::Base, look::color(look::Tone::ReadOnly));
    m_combo->setPalette(palette);
    if (m_searching)
        return;
    QLineEdit* line = m_combo->lineEdit();
    const int cursor = line->cursorPosition();
    const bool typing = line->hasFocus() && line->text().compare(m_box->text(), Qt::CaseInsensitive) == 0;
    if (m_combo->currentIndex() != m_box->listIndex())
        m_combo->setCurrentIndex(m_box->listIndex());
    if (line->text() != m_box->text())
        m_combo->setEditText(m_box->text());
    // Another index has emptied what the entries are searched for.
    if (m_popup->isVisible() && m_combo->completer()->completionPrefix() != line->text())
        m_combo->completer()->setCompletionPrefix(line->text());
    line->setCursorPosition(typing ? cursor : 0);
    line->setToolTip(look::plainHint(m_box->text()));
}

/// Enter and Tab among the suggestions of a list: takes the marked one, or the first. True: the key has done its work.
bool ComboBinding::pickFromPopup(const QKeyEvent& key) {
    if (!m_searching || (!isEnter(key) && key.key() != Qt::Key_Tab))
        return false;
    m_lookedAway = false;
    finishSearch();
    return isEnter(key);
}

/// The completer places its list by the field's width: a wider one must not leave the screen.
void ComboBinding::keepInSight(QWidget& popup) const {
    const QRect screen = m_combo->screen()->availableGeometry();
    if (popup.geometry().right() > screen.right())
        popup.move(std::max(screen.left(), screen.right() - popup.width()), popup.y());
}

bool ComboBinding::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_popup) {
        if (event->type() == QEvent::Show)
            keepInSight(*m_popup);
        return event->type() == QEvent::KeyPress && pickFromPopup(*static_cast<QKeyEvent*>(event));
    }
    if (event->type() == QEvent::FocusIn)
        m_lookedAway = false;
    if (event->type() == QEvent::FocusOut)
        m_lookedAway = static_cast<QFocusEvent*>(event)->reason() == Qt::ActiveWindowFocusReason;
    const bool press = event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick;
    if (m_box && m_box->isLocked() && watched == m_combo) {
        if (press || event->type() == QEvent::Wheel)
            return true;
        if (event->type() == QEvent::KeyPress) {
            // A locked choice can be read and left, not changed.
            const int key = static_cast<QKeyEvent*>(event)->key();
            if (key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown ||
                key == Qt::Key_F4)
                return true;
        }
    }
    if (m_searching && event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape &&
        !m_popup->isVisible()) {
        m_searching = false;
        refreshNow();
        return true;
    }
    return Binding::eventFilter(watched, event);
}

} // namespace orvane
