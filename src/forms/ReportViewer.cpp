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

void ReportViewer::readMore(int rows) {
    m_report->layOut(rows);
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
