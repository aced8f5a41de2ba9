#include "printouts/ReportScreen.h"

#include "reports/Report.h"
#include "session/ListReport.h"

namespace orvane {

void ReportScreen::showReport(const ReportWanted& wanted) {
    if (wanted.rows.eof()) {
        program.box(wanted.nothing);
        return;
    }
    crViewer1.clear();
    ui().setBusy(true);
    crViewer1.show(openReport({.folder = program.homeFolder(),
                               .file = wanted.file,
                               .rows = wanted.rows,
                               .textObjects = wanted.textObjects,
                               .values = letterhead(program),
                               .title = wanted.title}),
                   wanted.file);
    ui().setBusy(false);
}

} // namespace orvane
