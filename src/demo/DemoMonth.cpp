#include "demo/DemoMonth.h"

#include "books/Batch.h"
#include "books/Period.h"
#include "books/RevenueType.h"
#include "data/rows/SharedTables.h"
#include "play/Hand.h"

namespace orvane {

namespace {

void expectBox(QuietUi& ui, const QString& step, const QString& ending) {
    const QStringList boxes = ui.takeBoxes();
    if (boxes.size() != 1 || !boxes.first().endsWith(ending))
        throw DataError(QStringLiteral("Close of a month, %1: %2").arg(step, boxes.join(QLatin1String(" / "))));
}

void pickMonth(Hand& hand, QDate month) {
    hand.choose("cboMonth", monthName(month.month()));
    hand.choose("cboYear", QString::number(month.year()));
}

void review(Program& program, QuietUi& ui, QDate month) {
    program.open("frmBillProcess");
    Form& form = program.form("frmBillProcess");
    Hand hand(form);
    pickMonth(hand, month);
    hand.click("cmdLoad");
    hand.click("cmdRpt");
    expectBox(ui, "headings", "RptHeadings updated for this Batch");
    form.unload();
}

void process(Program& program, QuietUi& ui, QDate month) {
    program.open("frmBillProcessing");
    Form& form = program.form("frmBillProcessing");
    Hand hand(form);
    pickMonth(hand, month);
    hand.click("cmdGet");
    hand.click("cmdAll");
    hand.click("cmdProcess");
    expectBox(ui, "run", "Bills successfully Processed");
    form.unload();
}

void postReceipts(Program& program, QuietUi& ui, QDate month) {
    program.open("frmRevCashAcct");
    Form& form = program.form("frmRevCashAcct");
    Hand hand(form);
    hand.date("DTPicker1", month);
    hand.date("DTPicker2", QDate(month.year(), month.month(), month.daysInMonth()));
    hand.click("cmdList");
    hand.click("cmdView");
    expectBox(ui, "receipts", "Records Successfully Posted");
    form.unload();
}

void postInvoices(Program& program, QuietUi& ui, QDate month) {
    program.open("frmBillProcessingPost");
    Form& form = program.form("frmBillProcessingPost");
    Hand hand(form);
    pickMonth(hand, month);
    hand.click("cmdPost");
    expectBox(ui, "invoices", "Company Records Successfully Posted");
    form.unload();
}

void postSuppliers(Program& program, QuietUi& ui, QDate month) {
    program.open("frmSuppliersAcct");
    Form& form = program.form("frmSuppliersAcct");
    Hand hand(form);
    hand.date("DTPicker1", month);
    hand.date("DTPicker2", QDate(month.year(), month.month(), month.daysInMonth()));
    hand.click("cmdList");
    hand.click("cmdPost");
    expectBox(ui, "suppliers", "Records Successfully Posted");
    form.unload();
}

/// Whom the accountant knows to have rendered a service: of the month's first ones, doctors in turn.
void nameConsultants(Program& program, QDate month) {
    QStringList doctors;
    Connection connection = program.openBilling();
    for (Recordset doctor(connection, Sql("select empID from employees where deptID='MED' order by empID"));
         !doctor.eof(); doctor.moveNext())
        doctors << doctor.text("empID");
    QVector<RevenueCorrection> named;
    Recordset line(connection, Sql("select top 40 SNO,BillNO,Service,revType from vwBillingDetailsForRev where "
                                   "BillType='SERVICE' and Date between '")
                                   << month << "' and '" << month.addMonths(1).addDays(-1) << "' order by SNO");
    for (; !line.eof(); line.moveNext())
        named.append({line.text("SNO").toLongLong(), line.text("BillNO"), line.text("Service"), line.text("revType"),
                      doctors.at(named.size() % doctors.size())});
    program.desk().save<Saved>("REVENUE CORRECTION", [&](Books& books) -> Given<Saved> {
        for (const RevenueCorrection& correction : named)
            correctRevenue(books, correction);
        return Saved{};
    });
}

} // namespace

void closeMonth(Program& program, QuietUi& ui, QDate month) {
    ui.takeBoxes();
    review(program, ui, month);
    process(program, ui, month);
}

void postMonth(Program& program, QuietUi& ui, QDate month) {
    ui.takeBoxes();
    postReceipts(program, ui, month);
    postInvoices(program, ui, month);
    postSuppliers(program, ui, month);
    nameConsultants(program, month);
    Connection billing = program.openBilling();
    Connection accounting = program.openAccounting();
    const QStringList open = closePeriod(billing, accounting, month.toString("yyyy/MM"));
    if (!open.isEmpty())
        throw DataError("Close of a period: " + open.join(QLatin1String(" / ")));
    copySharedTables(billing, accounting);
}

void shiftBill(Program& program, QuietUi& ui, QDate day, const QString& client) {
    ui.takeBoxes();
    program.open("frmBillProcessingShift");
    Form& form = program.form("frmBillProcessingShift");
    Hand hand(form);
    hand.date("DTPicker1", day);
    hand.date("DTPicker2", day);
    hand.click("cmdList");
    hand.chooseContaining("cboVehNo", client);
    hand.tickEntry("LstDate", 0);
    hand.choose("cboPeriod", "1");
    hand.click("cmdProcess");
    expectBox(ui, "shift", "successfully Shifted to Another Month");
    form.unload();
}

void splitBill(Program& program, QuietUi& ui, QDate day, const QString& billNo) {
    ui.takeBoxes();
    program.open("frmBillSplitting");
    Form& form = program.form("frmBillSplitting");
    Hand hand(form);
    hand.date("DTPicker1", day);
    hand.date("DTPicker2", day);
    hand.click("cmdList");
    hand.chooseContaining("cboVehNo", '[' + billNo + ']');
    hand.tickEntry("LstDate", 0);
    hand.chooseContaining("cboPeriod", "PRIVATE");
    hand.click("cmdProcess");
    expectBox(ui, "split", "1 Patient Bill Items successfully Shifted to PRIVATE");
    form.unload();
}

} // namespace orvane
