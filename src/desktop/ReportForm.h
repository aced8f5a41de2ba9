#pragma once

#include "forms/Form.h"
#include "forms/ReportViewer.h"

namespace orvane {

/// A report in a window of its own.
class ReportForm : public Form {
public:
    ReportForm(Ui& ui, const QString& file, const QString& title, const std::shared_ptr<PageSource>& report)
        : Form(ui, file, title) {
        cmdClose.onClick = [this] { unload(); };
        crViewer1.show(report, file);
    }
    Layout layout() const override {
        using namespace orvane::layout;
        return column({cell(crViewer1), buttons({}, {&cmdClose})});
    }
    Button* cancelButton() override { return &cmdClose; }

private:
    ReportViewer crViewer1{*this};
    Button cmdClose{*this, "cmdClose", "&Close"};
};

} // namespace orvane
