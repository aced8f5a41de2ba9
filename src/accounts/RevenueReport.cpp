#include "accounts/RevenueReport.h"

#include "data/rows/Recordset.h"
#include "reports/Workbook.h"

namespace orvane {

namespace {

Sheet sheetOf(const Recordset& rows) {
    Sheet sheet;
    const QStringList columns = rows.columns();
    for (int column = 0; column < columns.size(); ++column)
        sheet.columns.append({column, columns.at(column), columns.at(column) == "Amount" ? "#,##0.00" : QString()});
    sheet.rows = rows.count();
    const auto walk = std::make_shared<Recordset>(rows.detached());
    sheet.value = [walk](int row, int column) {
        walk->moveTo(row);
        return walk->value(column);
    };
    sheet.shown = [walk](int row, int column) {
        walk->moveTo(row);
        return walk->text(column);
    };
    return sheet;
}

} // namespace

void showRevenueReport(Program& program, const RevenueReport& report) {
    Session& session = program.session;
    session.sRevRptMode = report.mode;
    session.sRevRptSQL = report.rows;
    session.sRevRptClient = report.client;
    session.dRevRptFrom = report.from;
    session.dRevRptTo = report.to;
    // It takes its report when it loads.
    if (Form* open = program.loadedForm("frmRevPrintRpt"))
        open->unload();
    program.open("frmRevPrintRpt");
}

void exportRows(Program& program, const Recordset& rows, const QString& name) {
    const QString file = exportFileName(program.ui().exportFolder(), name, program.ui().now());
    exportWorkbook(sheetOf(rows), file);
    program.ui().exported(file);
}

void exportRevenue(Program& program, QDate from, QDate to, const QString& whose) {
    Ui& ui = program.ui();
    ui.setBusy(true);
    Connection connection = program.openBilling();
    const Recordset rows =
        connection.call("BillingDetailsForRevRpt", {{"@Date1", from}, {"@Date2", to}, {"@ClientCat", whose}});
    ui.setBusy(false);
    if (rows.eof()) {
        program.box("No Revenue OR \r\n");
        return;
    }
    exportRows(program, rows, "Revenue " + whose);
}

} // namespace orvane
