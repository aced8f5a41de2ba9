#include "desktop/ReportView.h"

#include "desktop/Look.h"
#include "desktop/PageFind.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QIntValidator>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>
#include <algorithm>
#include <cmath>

namespace orvane {

ReportView::ReportView(QWidget* parent)
    : QWidget(parent), m_pages(new PageStack(this)), m_find(new PageFind(*m_pages, this)),
      m_number(new QLineEdit(this)), m_count(new QLabel(this)), m_zoom(new QComboBox(this)) {
    auto* box = new QVBoxLayout(this);
    box->setContentsMargins(0, 0, 0, 0);
    box->setSpacing(look::rowSpacing);
    box->addWidget(bar());
    box->addWidget(m_pages, 1);
    box->addWidget(m_find);
    connect(m_pages, &PageStack::looksMoved, this, &ReportView::showPlace);
    connect(m_pages, &PageStack::lastWanted, this, &ReportView::lastWanted);
    setCount(0, true);
}

/// What stands above the pages is worked by keys of its own: Tab goes to the pages at once.
QWidget* ReportView::bar() {
    auto* bar = new QWidget(this);
    auto* box = new QHBoxLayout(bar);
    box->setContentsMargins(0, 0, 0, 0);
    box->setSpacing(look::rowSpacing);
    const auto add = [&](const QString& words, const QString& hint, const std::function<void()>& act) {
        box->addWidget(button(words, hint, act));
    };
    add(
        "First", "First page (Ctrl+Home)", [this] { Q_EMIT pageWanted(0); });
    add("Previous", "Page before (Ctrl+PgUp)", [this] { Q_EMIT pageWanted(m_pages->current() - 1); });
    box->addWidget(m_number);
    box->addWidget(m_count);
    add(
        "Next", "Next page (Ctrl+PgDown)", [this] { Q_EMIT pageWanted(m_pages->current() + 1); });
    add("Last", "Last page (Ctrl+End)", [this] { Q_EMIT lastWanted(); });
    box->addSpacing(look::spacing);
    box->addWidget(m_zoom);
    add("Find", "Find words (Ctrl+F)", [this] { m_find->begin(); });
    box->addStretch(1);
    add(
        "Print", "Print (Ctrl+P)", [this] { Q_EMIT printWanted(); });
    add(
        "Save as PDF", "Save as PDF (Ctrl+Shift+S)", [this] { Q_EMIT pdfWanted(); });
    add("Workbook", "The rows as a workbook (Ctrl+E)", [this] { Q_EMIT workbookWanted(); });
    // A report that grows while it is laid out on does not push the buttons about.
    m_count->setMinimumWidth(look::charactersWidth(*m_count, 12));
    m_number->setAccessibleName("Page number");
    m_number->setToolTip("Page number (Ctrl+G), Enter goes there");
    m_number->setFixedWidth(look::charactersWidth(*m_number, 6) + 22);
    m_number->setAlignment(Qt::AlignRight);
    m_number->setFocusPolicy(Qt::ClickFocus);
    m_number->setValidator(new QIntValidator(1, 9'999'999, m_number));
    m_number->setMinimumHeight(look::lineHeight());
    addZooms();
    return bar;
}

QToolButton* ReportView::button(const QString& words, const QString& hint, const std::function<void()>& act) {
    auto* made = new QToolButton(this);
    made->setText(words);
    made->setFocusPolicy(Qt::NoFocus);
    made->setToolTip(hint);
    made->setMinimumHeight(look::lineHeight());
    connect(made, &QToolButton::clicked, this, act);
    m_buttons << made;
    return made;
}

void ReportView::addZooms() {
    m_zoom->addItem("Fit width", 0);
    m_zoom->addItem("Whole page", 0);
    for (const int percent : PageStack::percentages())
        m_zoom->addItem(QStringLiteral("%1 %").arg(percent), percent);
    m_zoom->setAccessibleName("Size of the pages");
    m_zoom->setToolTip("Larger (Ctrl++), smaller (Ctrl+-), whole page (Ctrl+0), 100 % (Ctrl+1), fit width (Ctrl+2)");
    m_zoom->setFocusPolicy(Qt::ClickFocus);
    m_zoom->setMinimumHeight(look::lineHeight());
    connect(m_zoom, &QComboBox::activated, this, &ReportView::zoomChosen);
}

void ReportView::zoomChosen(int index) {
    m_pages->setZoom(index == 0   ? PageStack::fitWidth()
                     : index == 1 ? PageStack::wholePage()
                                  : PageStack::Zoom{PageStack::Zoom::Percent, m_zoom->itemData(index).toDouble()});
    m_pages->setFocus(Qt::OtherFocusReason);
}

void ReportView::setCount(int pages, bool whole) {
    m_pages->setCount(pages);
    m_count->setText(pages == 0 ? QString() : QStringLiteral("of %L1%2").arg(pages).arg(whole ? "" : " …"));
    for (QToolButton* button : std::as_const(m_buttons))
        button->setEnabled(pages > 0);
    m_number->setEnabled(pages > 0);
    m_zoom->setEnabled(pages > 0);
    showPlace();
}

void ReportView::showPlace() {
    if (!m_number->hasFocus())
        m_number->setText(m_pages->count() == 0 ? QString() : QString::number(m_pages->current() + 1));
    const PageStack::Zoom zoom = m_pages->zoom();
    m_zoom->setCurrentIndex(zoom.kind == PageStack::Zoom::Width   ? 0
                            : zoom.kind == PageStack::Zoom::Whole ? 1
                                                                  : m_zoom->findData(int(std::lround(zoom.percent))));
}

void ReportView::numberEntered() {
    const int number = m_number->text().toInt();
    m_pages->setFocus(Qt::OtherFocusReason);
    if (number > 0)
        Q_EMIT pageWanted(number - 1);
    showPlace();
}

void ReportView::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (m_number->hasFocus() && enter) {
        numberEntered();
    } else if (m_number->hasFocus() && event->key() == Qt::Key_Escape) {
        m_pages->setFocus(Qt::OtherFocusReason);
        showPlace();
    } else if (!takesKey(*event)) {
        QWidget::keyPressEvent(event);
    }
}

bool ReportView::takesKey(const QKeyEvent& event) {
    struct Key {
        QKeySequence key;
        std::function<void()> act;
    };
    const QVector<Key> keys = {
        {{"Ctrl+P"}, [this] { Q_EMIT printWanted(); }},
        {{"Ctrl+Shift+S"}, [this] { Q_EMIT pdfWanted(); }},
        {{"Ctrl+E"}, [this] { Q_EMIT workbookWanted(); }},
        {{"Ctrl+F"}, [this] { m_find->begin(); }},
        {{"Ctrl+G"},
         [this] {
             m_number->setFocus(Qt::OtherFocusReason);
             m_number->selectAll();
         }},
    };
    const QKeySequence pressed(QKeyCombination(event.modifiers() & ~Qt::KeypadModifier, Qt::Key(event.key())));
    const auto key = std::find_if(keys.cbegin(), keys.cend(), [&](const Key& one) { return one.key == pressed; });
    if (key == keys.cend())
        return m_pages->takesKey(event);
    if (m_pages->count() > 0)
        key->act();
    return true;
}

} // namespace orvane
