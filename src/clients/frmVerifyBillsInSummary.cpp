#include "clients/frmVerifyBillsInSummary.h"

#include "books/BillDate.h"

namespace orvane {

frmVerifyBillsInSummary::frmVerifyBillsInSummary(Program& owner)
    : Screen(owner, "frmVerifyBillsInSummary", "Bills Not In Summary") {
    DTPicker1.setRangeEnd(&DTPicker2);
    OKButton.setToolTip("Bills these visits in the month of their attendance; a processed bill keeps its month");
}

Layout frmVerifyBillsInSummary::layout() const {
    using namespace orvane::layout;
    return column({row({field("Attendance between", DTPicker1), field("and", DTPicker2), stretch()}),
                   growing(cell(grdData)), cell(Label1), buttons({&OKButton}, {&CancelButton, &cmdList})});
}

void frmVerifyBillsInSummary::Form_Load() {
    DTPicker1.setDate(ui().now().date());
    DTPicker2.setDate(ui().now().date());
}

bool frmVerifyBillsInSummary::isRangeGiven() {
    return passes({{DTPicker1.isEmpty(), "Please specify Attendance Date Range", &DTPicker1},
                   {DTPicker2.isEmpty(), "Please specify Attendance Date Range", &DTPicker2}});
}

void frmVerifyBillsInSummary::showVisits() {
    Connection connection = program.openBilling();
    grdData.load(Recordset(
        connection, Sql("select Distinct RecID as Sno, RecDate as Date,RetainName as Company,FullName,ConsultID "
                        "as BillNo,BillDate  from vwhRecords where month(recDate)   <>  month(BillDate) and "
                        "recdate Between '")
                        << DTPicker1.date() << "' And '" << DTPicker2.date() << "' order by retainName,Fullname"));
    Label1.setText(QString::number(grdData.rowCount()) + " records found");
}

void frmVerifyBillsInSummary::cmdList_Click() {
    if (isRangeGiven())
        showVisits();
}

void frmVerifyBillsInSummary::OKButton_Click() {
    save<Saved>({.button = OKButton,
                 .action = "BILL DATES",
                 .allowed = [this] { return isRangeGiven(); },
                 .step = [this](Books& books) -> Given<Saved> {
                     billOnDayOfVisit(books, DTPicker1.date(), DTPicker2.date());
                     return Saved{};
                 },
                 .follow =
                     [this](const Saved&) {
                         program.box("Records successfully Updated");
                         showVisits();
                     }});
}

} // namespace orvane
