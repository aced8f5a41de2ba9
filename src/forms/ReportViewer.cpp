#include "forms/ReportViewer.h"

#include "forms/Form.h"

namespace orvane {

void ReportViewer::show(const std::shared_ptr<PageSource>& report, const QString& file) {
    m_report = report;
    touchContent();
    form().ui().reportShown(file, report->rows());
}

void ReportViewer::clear() {
    m_report.reset();
    touchContent();
}

template <typename Ask>
auto ReportViewer::ofReport(const Ask& ask) {
    // The report outlives what it was asked, though the viewer lets go of it.
    const std::shared_ptr<PageSource> report = m_report;
    try {
        return ask(*report);
    } catch (...) {
        clear();
        throw;
    }
}

bool ReportViewer::has(int number) {
    return m_report && number >= 0 && ofReport([&](PageSource& report) { return report.has(number); });
}

Page ReportViewer::page(int number) {
    return ofReport([&](PageSource& report) { return report.page(number); });
}

int ReportViewer::finish() {
    return ofReport([](PageSource& report) {
        report.finish();
        return report.pagesMade();
    });
}

void ReportViewer::readMore(int rows) {
    ofReport([&](PageSource& report) { report.layOut(rows); });
    touch();
}

QString ReportViewer::valueText() const {
    if (!m_report)
        return {};
    m_report->finish();
    return m_report->pagesMade() == 1 ? QStringLiteral("1 page")
                                      : QStringLiteral("%1 pages").arg(m_report->pagesMade());
}

} // namespace orvane
