#pragma once

#include "forms/Control.h"
#include "forms/PageSource.h"

#include <memory>

namespace orvane {

/// Shows a report page by page, with what its user does with one: zoom, search, print, PDF, workbook of the rows.
class ReportViewer : public Control {
public:
    explicit ReportViewer(Form& form, const QString& name = QStringLiteral("crViewer1"))
        : Control(form, ControlKind::Viewer, name) {}

    /// `file`: the template's name, as scripts read it.
    void show(const std::shared_ptr<PageSource>& report, const QString& file);
    void clear();                                         ///< shows nothing
    PageSource* report() const { return m_report.get(); } ///< null: nothing is shown

    // What the view asks of the report. Where the engine fails, the viewer is empty and the fault raised.
    bool has(int number); ///< false where nothing is shown
    Page page(int number);
    int finish(); ///< lays it out to its end; gives how many pages it has

    /// Laid out on while nothing else is to be done, so that the last page is known.
    bool hasMore() const override { return m_report && !m_report->isWhole(); }
    void readMore(int rows) override;
    QString valueText() const override; ///< "N pages"

private:
    /// Gives what `ask` gives, of a report that there is.
    template <typename Ask>
    auto ofReport(const Ask& ask);

    std::shared_ptr<PageSource> m_report;
};

} // namespace orvane
