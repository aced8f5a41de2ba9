#include "desktop/ComboBinding.h"

#include "desktop/FormView.h"
#include "desktop/ListModels.h"
#include "desktop/Look.h"
#include "desktop/TextBinding.h"

#include <QComboBox>
#include <QCompleter>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QScrollBar>
#include <QSignalBlocker>
#include <algorithm>

namespace orvane {

namespace {

constexpr int sampledEntries = 60; ///< whose widths count for the list's width
constexpr int widestList = 900;    ///< pixels

/// The completer's own list would measure each of 100,000 entries before it is told that all are of one height.
QListView* completionList() {
    auto* list = new QListView;
    list->setUniformItemSizes(true);
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setSelectionBehavior(QAbstractItemView::SelectRows);
    list->setSelectionMode(QAbstractItemView::SingleSelection);
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
        user([this, text] { m_box->setText(text); });
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

/// Takes the one entry that the typed words leave; else the choice stays as it was.
void ComboBinding::finishSearch() {
    if (!m_box || !m_searching || m_combo->completer()->popup()->isVisible())
        return;
    m_searching = false;
    const QString text = m_combo->currentText().trimmed();
    int exact = -1, only = -1, matches = 0;
    for (int i = 0; i < m_box->count() && !text.isEmpty() && exact < 0; ++i) {
        if (m_box->item(i).compare(text, Qt::CaseInsensitive) == 0)
            exact = i;
        if (m_box->item(i).contains(text, Qt::CaseInsensitive)) {
            only = i;
            ++matches;
        }
    }
    const int found = exact >= 0 ? exact : matches == 1 ? only : -1;
    if (found >= 0 && found != m_box->listIndex())
        picked(found);
    else
        refreshNow();
}

bool ComboBinding::settle() {
    finishSearch();
    return true;
}

void ComboBinding::reloadEntries() {
    m_seen = m_box->contentRevision();
    m_model->reload();
    int widest = 0;
    const QFontMetrics metrics(m_combo->font());
    for (int i = 0; i < std::min(m_box->entriesRead(), sampledEntries); ++i)
        widest = std::max(widest, metrics.horizontalAdvance(m_box->item(i)));
    const int room = widest + m_combo->view()->verticalScrollBar()->sizeHint().width() + 16;
    m_combo->view()->setMinimumWidth(std::min(room, widestList));
}

void ComboBinding::refresh() {
    const QSignalBlocker quiet(m_combo);
    if (m_seen != m_box->contentRevision())
        reloadEntries();
    else
        m_model->catchUp();
    m_combo->lineEdit()->setReadOnly(m_box->isLocked());
    QPalette palette;
    if (m_box->isLocked())
        palette.setColor(QPalette::Base, look::readOnly());
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
    if (m_combo->completer()->popup()->isVisible() && m_combo->completer()->completionPrefix() != line->text())
        m_combo->completer()->setCompletionPrefix(line->text());
    line->setCursorPosition(typing ? cursor : 0);
    line->setToolTip(look::plainHint(m_box->text()));
}

bool ComboBinding::eventFilter(QObject* watched, QEvent* event) {
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
        !m_combo->completer()->popup()->isVisible()) {
        m_searching = false;
        refreshNow();
        return true;
    }
    return Binding::eventFilter(watched, event);
}

} // namespace orvane
