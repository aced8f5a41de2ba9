#include "desktop/FormWindow.h"

#include "desktop/Keyed.h"
#include "desktop/Look.h"
#include "desktop/PageScroll.h"
#include "desktop/PageStack.h"
#include "desktop/Printing.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <algorithm>

namespace orvane {

namespace {

constexpr int titleButtons = 130; ///< the width of what stands beside a title in its bar, pixels

/// Of a document's form only the buttons are laid out; its page stands in for its fields.
Layout buttonsOnly(const Layout& layout) {
    Layout column;
    for (const Layout& child : layout.children)
        if (child.kind == Layout::Buttons)
            column.children << child;
    return column;
}

bool hasList(const Form& form) {
    return std::any_of(
        form.controls().cbegin(), form.controls().cend(),
        [](const Control* control) {
            return control->kind() == ControlKind::Grid || control->kind() == ControlKind::EntryGrid ||
                   control->kind() == ControlKind::Viewer;
        });
}

} // namespace

FormWindow::FormWindow(Form& form, const ViewSetting& setting, QWidget* parent, Qt::WindowFlags flags)
    : QWidget(parent, flags), m_form(&form), m_scroll(new QScrollArea(this)) {
    const bool document = form.page().has_value();
    m_view = new FormView(form, document ? buttonsOnly(form.layout()) : form.layout(), setting);
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setWidgetResizable(true);
    m_scroll->setFocusPolicy(Qt::NoFocus);
    followFocus(*m_scroll);
    auto* box = new QVBoxLayout(this);
    box->setContentsMargins(0, 0, 0, 0);
    box->setSpacing(0);
    box->addWidget(m_scroll, 1);
    if (document)
        addPage(*box);
    else
        m_scroll->setWidget(m_view);
    setWindowTitle(form.caption());
    connect(&form, &Form::captionChanged, this, [this] { setWindowTitle(m_form ? m_form->caption() : QString()); });
}

/// A document's page takes the place of its view, which stands below it.
void FormWindow::addPage(QVBoxLayout& box) {
    m_scroll->hide();
    m_pages = new PageStack(this);
    box.addWidget(m_pages, 1);
    auto* bottom = new QHBoxLayout;
    bottom->addWidget(pdfButton());
    bottom->addWidget(m_view, 1);
    box.addLayout(bottom);
    m_pages->setCount(1);
    showPage();
    connect(m_pages, &PageStack::pagesWanted, this, &FormWindow::showPage);
    for (Control* control : m_form->controls())
        connect(control, &Control::changed, this, [this] {
            if (std::exchange(m_pageScheduled, true))
                return;
            QMetaObject::invokeMethod(this, &FormWindow::showPage, Qt::QueuedConnection);
        });
}

QWidget* FormWindow::pdfButton() {
    auto* row = new QWidget(this);
    auto* save = new WordButton(row);
    Mnemonics& keys = m_view->mnemonics();
    keys.add(Mnemonics::Press, QStringLiteral("&Save as PDF..."), showKey(*save));
    keys.assign();
    auto* box = new QHBoxLayout(row);
    box->setContentsMargins(look::margin, 0, 0, 0);
    box->addWidget(save);
    connect(save, &QPushButton::clicked, this, [this] {
        if (m_form && m_form->page())
            printing::savePdf(Document::of(*m_form->page()), {m_form->documentName(), this, m_view->memory()});
    });
    return row;
}

void FormWindow::showPage() {
    m_pageScheduled = false;
    if (m_form && m_form->page())
        m_pages->setPage(0, *m_form->page());
}

QSize FormWindow::neededSize() const {
    const QSize named(fontMetrics().horizontalAdvance(windowTitle()) + titleButtons, 0);
    return m_view->sizeHint().expandedTo(named);
}

QSize FormWindow::sizeFor(QSize room) const {
    return fitted(m_form && hasList(*m_form) && !m_pages ? room : neededSize(), room);
}

QSize FormWindow::dialogSize(QSize room) const {
    QSize wanted = neededSize();
    if (m_form && hasList(*m_form) && !m_pages)
        wanted = wanted.expandedTo(wanted.width() > room.width() * 7 / 10
                                       ? room - QSize(2 * look::spacing, 2 * look::spacing)
                                       : QSize(room.width() * 8 / 10, room.height() * 9 / 10));
    return fitted(wanted, room);
}

QSize FormWindow::fitted(QSize wanted, QSize room) const {
    if (m_pages)
        wanted = QSize(std::max(wanted.width() + 280, m_pages->sizeHint().width()), room.height());
    wanted = wanted.boundedTo(room);
    // A narrower form needs more height where its rows break; a scroll bar at the side needs its width.
    const int needed = m_pages ? 0 : m_view->heightForWidth(wanted.width());
    wanted.setHeight(std::clamp(needed, wanted.height(), room.height()));
    const bool scrolls = needed > wanted.height();
    return QSize(wanted.width() + (scrolls ? m_scroll->verticalScrollBar()->sizeHint().width() : 0), wanted.height())
        .boundedTo(room);
}

void FormWindow::release() {
    if (!m_form)
        return;
    disconnect(m_form, nullptr, this, nullptr);
    for (Control* control : m_form->controls())
        disconnect(control, nullptr, this, nullptr);
    m_form = nullptr;
    m_view->release();
    Q_EMIT formReleased();
}

void FormWindow::closeEvent(QCloseEvent* event) {
    if (m_form)
        m_view->leave([form = m_form] { form->unload(); });
    event->setAccepted(!m_form);
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
    // The page of a document and the buttons beside it lie outside the view.
    auto* button = qobject_cast<QPushButton*>(focusWidget());
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && button && !m_view->isAncestorOf(button))
        button->click();
    else if (!(m_pages && m_pages->takesKey(*event)) && !m_view->takesKey(*event))
        QWidget::keyPressEvent(event);
}

void FormWindow::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        Q_EMIT activatedByUser();
}

} // namespace orvane
