#include "printouts/ReportScreen.h"

#include "reports/Report.h"

namespace orvane {

namespace {

/// The lines at the head of the hospital's papers, those of its receipts, as any template may ask for them: {Hospital}
/// is the first, {Head2} to {Head4} follow. A line that is missing is empty.
QHash<QString, QString> letterhead(Program& program) {
    Connection connection = program.openBilling();
    const Recordset head(connection, Sql("select * from appSettings where IDValCode='00'"));
    const auto line = [&](const char* column) {
        return head.eof() ? QString() : head.text(QString::fromLatin1(column));
    };
    return {
        {"Hospital", line("idval")}, {"Head2", line("idval2")}, {"Head3", line("idval3")}, {"Head4", line("idval4")}};
}

} // namespace

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
