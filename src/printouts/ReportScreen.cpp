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
    QHash<QString, QString> values = letterhead(program);
    values.insert(wanted.values);
    crViewer1.show(openReport({.folder = program.homeFolder(),
                               .file = wanted.file,
                               .rows = wanted.rows,
                               .textObjects = wanted.textObjects,
                               .values = values,
                               .title = wanted.title}),
                   wanted.file);
    ui().setBusy(false);
}

QString ReportScreen::periodWords(QDate from, QDate to) {
    return "from " + from.toString("dd/MM/yyyy") + " to " + to.toString("dd/MM/yyyy");
}

QString ReportScreen::bothDays(QDate from, QDate to) {
    return from.toString("dd/MM/yyyy") + " and " + to.toString("dd/MM/yyyy");
}

void ReportScreen::showList(const QString& name, const QString& title, const Recordset& rows) {
    crViewer1.show(openDataReport({.file = name, .rows = rows, .values = letterhead(program), .title = title}), name);
}

} // namespace orvane
