#include "printouts/FrmRptAttendByCoy.h"

namespace orvane {

FrmRptAttendByCoy::FrmRptAttendByCoy(Program& owner)
    : ReportScreen(owner, "FrmRptAttendByCoy", "Attendance by Company") {
    DTPicker1.setRangeEnd(&DTPicker2);
}

Layout FrmRptAttendByCoy::layout() const {
    using namespace orvane::layout;
    return column({row({field("Attendance Between", DTPicker1), field("and", DTPicker2),
                        field("Company Name", cboCust, 60), stretch()}),
                   growing(cell(crViewer1)), buttons({}, {&CancelButton, &cmdDisplay})});
}

void FrmRptAttendByCoy::Form_Load() {
    const QDate today = session.gServerDate;
    DTPicker1.setDate(QDate(today.year(), today.month(), 1));
    DTPicker2.setDate(today);
    Connection connection = program.openBilling();
    Recordset client(connection, Sql("select retainName,retainID from hRetainership  order by retainName"));
    for (; !client.eof(); client.moveNext())
        cboCust.addItem(client.text("retainName"), client.text("retainID"));
}

void FrmRptAttendByCoy::cmdDisplay_Click() {
    const auto client = cboCust.picked<QString>();
    if (!passes({{DTPicker1.isEmpty() || DTPicker2.isEmpty(), "Please specify Start/End Date", &DTPicker1},
                 {!client, "Please select Company Name", &cboCust}}))
        return;
    const QDate first = DTPicker1.date(), last = DTPicker2.date();
    showReport({.file = "\\rptAttendbyCoy.rpt",
                .rows = Recordset::paged(program.openBilling(), Sql("select * from qryhvisits where recdate between '")
                                                                    << first << "' and '" << last << "' and retainID='"
                                                                    << *client << "' order by recdate,recid"),
                .nothing = "No Report for the specified Company",
                .textObjects = {{"Text7", "Attendance Analysis for " + cboCust.text()},
                                {"Text8", "Between " + bothDays(first, last)}}});
}

} // namespace orvane
