#pragma once

#include "forms/Ui.h"

namespace orvane {

/// What the script's user interface asks of a desktop that shows the real windows of a script run. Boxes, questions and
/// input boxes are answered by the script and never shown. As it stands it shows nothing: a run without windows.
class Shower {
public:
    virtual ~Shower() = default;

    virtual void show(Form&) {}      ///< shows the window, or brings it forward
    virtual void showModal(Form&) {} ///< shows the dialog and returns at once; the script runs on inside it
    virtual void closed(Form&) {}    ///< takes the window away
    virtual void abandoned(Form&) {} ///< as Ui::abandoned
    virtual void setBusy(bool) {}
    virtual void processEvents() {}
    virtual void printForm(Form&) {} ///< writes the document where scripted prints go
    virtual void viewReport(const QString& /*file*/, const QString& /*title*/,
                            const std::shared_ptr<PageSource>& /*report*/) {}
};

} // namespace orvane
