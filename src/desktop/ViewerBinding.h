#pragma once

#include "desktop/Binding.h"
#include "desktop/Printing.h"
#include "forms/ReportViewer.h"

namespace orvane {

class ReportView;

/// The pages of the report that is shown, laid out to its end.
Document documentOf(ReportViewer& viewer);

/// A viewer of reports. Its pages are made inside events of its form, at whose edge a fault of the engine is shown.
class ViewerBinding : public Binding {
    Q_OBJECT

public:
    ViewerBinding(FormView& view, ReportViewer& viewer, QWidget* parent);
    ReportView* reportView() const { return m_view; }
    QWidget* editor() const override;

protected:
    void refresh() override;
    void released() override { m_viewer = nullptr; }

private:
    void bringPages();
    void goTo(int number);
    void goToLast();
    void withWhole(const std::function<void()>& act);
    void print();
    void savePdf();
    void saveWorkbook();
    printing::Job job();
    QString name() const; ///< of the report, for files and print jobs

    ReportViewer* m_viewer;
    ReportView* m_view;
    unsigned m_seen;
    bool m_whole = false; ///< the pages that are shown say how many there are
};

} // namespace orvane
