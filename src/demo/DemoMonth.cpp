#include "demo/DemoMonth.h"

#include "books/Batch.h"
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

} // namespace

void closeMonth(Program& program, QuietUi& ui, QDate month) {
    ui.takeBoxes();
    review(program, ui, month);
    process(program, ui, month);
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
