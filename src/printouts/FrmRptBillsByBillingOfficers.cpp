#include "printouts/FrmRptBillsByBillingOfficers.h"

namespace orvane {

FrmRptBillsByBillingOfficers::FrmRptBillsByBillingOfficers(Program& owner)
    : ReportScreen(owner, "FrmRptBillsByBillingOfficers", "Bills Collated by Billing Officers") {
    DTPicker1.setRangeEnd(&DTPicker2);
}

Layout FrmRptBillsByBillingOfficers::layout() const {
    using namespace orvane::layout;
    return column({row({field("Attendance Between", DTPicker1), field("and", DTPicker2), cell(cmdList),
                        field("Officer", cboCust, 40), stretch()}),
                   growing(cell(crViewer1)), buttons({}, {&CancelButton, &cmdDisplay})});
}

void FrmRptBillsByBillingOfficers::Form_Load() {
    DTPicker1.setDate(session.gServerDate);
    DTPicker2.setDate(session.gServerDate);
    cmdList_Click();
}

bool FrmRptBillsByBillingOfficers::isReady() {
    return passes({{DTPicker1.isEmpty() || DTPicker2.isEmpty(), "Please specify Start/End Date", &DTPicker1}});
}

/// Who collated a bill of these days.
void FrmRptBillsByBillingOfficers::cmdList_Click() {
    if (!isReady())
        return;
    cboCust.clear();
    cboCust.addItem("(ALL)", QString());
    Connection connection = program.openBilling();
    Recordset officer(connection,
                      Sql("select distinct empID,empName from vwBillsByBillingOfficers where recDate between'")
                          << DTPicker1.date() << "' and '" << DTPicker2.date()
                          << "' and isnull(empID, '') <> '' order by empName");
    for (; !officer.eof(); officer.moveNext())
        cboCust.addItem(officer.text("empName"), officer.text("empID"));
    cboCust.setListIndex(0);
}

void FrmRptBillsByBillingOfficers::cmdDisplay_Click() {
    if (!isReady())
        return;
    const QString officer = cboCust.picked<QString>().value_or(QString());
    const QDate first = DTPicker1.date(), last = DTPicker2.date();
    Sql sql("select * from vwBillsByBillingOfficers where ");
    if (!officer.isEmpty())
        sql << "empID='" << officer << "' and ";
    sql << "recDate between'" << first << "' and '" << last << "' order by BillDate,Fullname";
    showReport({.file = "\\rptBillsByBillingOfficers.rpt",
                .rows = Recordset::paged(program.openBilling(), sql),
                .nothing = "No Report for the specified Bill Officer",
                .textObjects = {{"Text9", "Bills Collated Betweeen " + bothDays(first, last)}},
                .values = {{"Officer", officer.isEmpty() ? "All billing officers" : cboCust.text()}}});
}

} // namespace orvane
