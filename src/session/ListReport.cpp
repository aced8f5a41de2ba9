#include "session/ListReport.h"

#include "reports/Report.h"

namespace orvane {

QHash<QString, QString> letterhead(Program& program) {
    Connection connection = program.openBilling();
    const Recordset head(connection, Sql("select * from appSettings where IDValCode='00'"));
    const auto line = [&](const char* column) {
        return head.eof() ? QString() : head.text(QString::fromLatin1(column));
    };
    return {
        {"Hospital", line("idval")}, {"Head2", line("idval2")}, {"Head3", line("idval3")}, {"Head4", line("idval4")}};
}

void viewList(Program& program, const QString& name, const QString& title, const Recordset& rows, const QString& sums) {
    program.ui().viewReport(
        name, title,
        openDataReport(
            {.folder = program.homeFolder(), .file = name, .rows = rows, .values = letterhead(program), .title = title},
            sums));
}

} // namespace orvane
