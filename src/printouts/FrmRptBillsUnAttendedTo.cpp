#include "printouts/FrmRptBillsUnAttendedTo.h"

namespace orvane {

FrmRptBillsUnAttendedTo::FrmRptBillsUnAttendedTo(Program& owner)
    : ReportScreen(owner, "FrmRptBillsUnAttendedTo", "Attendance Yet to be AttendedTo By Bills Officer") {
    DTPicker1.setRangeEnd(&DTPicker2);
    // The patients of another category are none of this one.
    for (OptionButton* category : {&radPvt, &radHMO, &radCorp, &radAll})
        category->onClick = [this] { cboCust.clear(); };
}

Layout FrmRptBillsUnAttendedTo::layout() const {
    using namespace orvane::layout;
    return column({row({field("Attendance Between", DTPicker1), field("and", DTPicker2), cell(radPvt), cell(radHMO),
                        cell(radCorp), cell(radAll), stretch()}),
                   row({cell(cmdList), field("Patient", cboCust, 70), cell(cmdPresc), stretch()}),
                   growing(cell(crViewer1)), buttons({}, {&CancelButton, &cmdCap, &cmdDisplay})});
}

void FrmRptBillsUnAttendedTo::Form_Load() {
    DTPicker1.setDate(session.gServerDate);
    DTPicker2.setDate(session.gServerDate);
    radAll.setChecked(true);
}

bool FrmRptBillsUnAttendedTo::isReady() {
    return passes({{DTPicker1.isEmpty() || DTPicker2.isEmpty(), "Please specify Start/End Date", &DTPicker1}});
}

Sql FrmRptBillsUnAttendedTo::chosenVisits() const {
    Sql sql = Sql("SELECT distinct * FROM vwBillAccumUnAttndTo where isbilled=0 and date between '")
              << DTPicker1.date() << "' and '" << DTPicker2.date() << "'";
    if (radPvt.isChecked())
        sql << " and clientcatID='PRIVATE'";
    if (radHMO.isChecked())
        sql << " and clientcatID='HMO'";
    if (radCorp.isChecked())
        sql << " and clientcatID='MTHLY'";
    return sql << " order by date desc, fullname";
}

void FrmRptBillsUnAttendedTo::cmdList_Click() {
    if (!isReady())
        return;
    cboCust.clear();
    cboCust.fill(Recordset::paged(program.openBilling(), chosenVisits()), [](const Recordset& row) {
        return ComboBox::Entry{row.text("fullname") + " @" + row.date("Date").toString("dd/MM/yyyy") + " [" +
                                   row.text("billno") + ']',
                               row.text("billno")};
    });
    cboCust.setFocus();
}

void FrmRptBillsUnAttendedTo::cmdDisplay_Click() {
    if (!isReady())
        return;
    showReport({.file = "\\vwBillAccumUnAttndTo.rpt",
                .rows = Recordset::paged(program.openBilling(), chosenVisits()),
                .nothing = "No Report Available",
                .textObjects = {{"Text7", "Attendance Yet to be AttendedTo By Bills Officer (UnCollated Bills)"},
                                {"Text8", "Between " + bothDays(DTPicker1.date(), DTPicker2.date())}}});
}

std::optional<QString> FrmRptBillsUnAttendedTo::pickedVisit() {
    const auto visit = cboCust.picked<QString>();
    passes({{!visit, "Please select Patient's Name", &cboCust}});
    return visit;
}

void FrmRptBillsUnAttendedTo::cmdCap_Click() {
    if (const auto visit = pickedVisit())
        showReport({.file = "\\rptHmoClaims.rpt",
                    .rows = Recordset::paged(program.openBilling(),
                                             Sql("select distinct * from vwBillingForCapByPat where billno ='")
                                                 << *visit << "'"),
                    .nothing = "No Report Available"});
}

void FrmRptBillsUnAttendedTo::cmdPresc_Click() {
    if (const auto visit = pickedVisit()) {
        session.gConsultID = *visit;
        program.openModal("frmTreatment");
    }
}

} // namespace orvane
