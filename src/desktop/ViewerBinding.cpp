#include "desktop/ViewerBinding.h"

#include "desktop/FormView.h"
#include "desktop/PageFind.h"
#include "desktop/ReportView.h"
#include "reports/Workbook.h"

#include <algorithm>

namespace orvane {

Document documentOf(ReportViewer& viewer) {
    return {viewer.finish(), [&viewer](int number) { return viewer.page(number); }};
}

ViewerBinding::ViewerBinding(FormView& view, ReportViewer& viewer, QWidget* parent)
    : Binding(view, viewer, new ReportView(parent)), m_viewer(&viewer), m_view(static_cast<ReportView*>(widget())),
      m_seen(viewer.contentRevision() - 1) {
    connect(&m_view->pages(), &PageStack::pagesWanted, this, &ViewerBinding::bringPages);
    connect(&m_view->find(), &PageFind::searchWanted, this,
            [this] { user([this] { m_view->find().searchOn(*m_viewer); }); });
    connect(m_view, &ReportView::pageWanted, this, &ViewerBinding::goTo);
    connect(m_view, &ReportView::lastWanted, this, &ViewerBinding::goToLast);
    connect(m_view, &ReportView::printWanted, this, &ViewerBinding::print);
    connect(m_view, &ReportView::pdfWanted, this, &ViewerBinding::savePdf);
    connect(m_view, &ReportView::workbookWanted, this, &ViewerBinding::saveWorkbook);
}

QWidget* ViewerBinding::editor() const {
    return &m_view->pages();
}

void ViewerBinding::refresh() {
    if (m_seen != m_viewer->contentRevision()) {
        m_seen = m_viewer->contentRevision();
        m_whole = false;
        m_view->find().forget();
        m_view->pages().clear();
    }
    const PageSource* report = m_viewer->report();
    const bool whole = report && report->isWhole();
    // The first page is laid out when it is wanted.
    m_view->setCount(report ? std::max(1, report->pagesMade()) : 0, whole);
    if (whole && !std::exchange(m_whole, true))
        m_view->pages().forgetPages();
}

void ViewerBinding::bringPages() {
    byItself([this] {
        for (const int number : m_view->pages().wanted())
            if (m_viewer->has(number))
                m_view->pages().setPage(number, m_viewer->page(number));
    });
}

/// A page that is not laid out yet has the report laid out that far.
void ViewerBinding::goTo(int number) {
    user([this, number] {
        if (!m_viewer->has(number))
            return;
        m_view->setCount(m_viewer->report()->pagesMade(), m_viewer->report()->isWhole());
        m_view->pages().goTo(number);
    });
}

/// The end is known only when the report was laid out to it, which may take a while.
void ViewerBinding::withWhole(const std::function<void()>& act) {
    user([this, act] {
        if (!m_viewer->report())
            return;
        Ui& ui = m_viewer->form().ui();
        ui.setBusy(true);
        m_viewer->finish();
        ui.setBusy(false);
        act();
    });
}

void ViewerBinding::goToLast() {
    withWhole([this] {
        const int pages = m_viewer->report()->pagesMade();
        m_view->setCount(pages, true);
        m_view->pages().goTo(pages - 1);
    });
}

void ViewerBinding::print() {
    withWhole([this] { printing::print(documentOf(*m_viewer), job()); });
}

void ViewerBinding::savePdf() {
    withWhole([this] { printing::savePdf(documentOf(*m_viewer), job()); });
}

printing::Job ViewerBinding::job() {
    return {name(), m_view, view().memory()};
}

QString ViewerBinding::name() const {
    const QString title = m_viewer->report()->title();
    return title.isEmpty() ? m_viewer->form().documentName() : title;
}

void ViewerBinding::saveWorkbook() {
    withWhole([this] {
        Ui& ui = m_viewer->form().ui();
        const QString file = exportFileName(ui.exportFolder(), name(), ui.now());
        exportWorkbook(*m_viewer->report(), file);
        ui.exported(file);
    });
}

} // namespace orvane
