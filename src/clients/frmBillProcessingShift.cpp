#include "clients/frmBillProcessingShift.h"

#include "books/Batch.h"
#include "books/BillDate.h"

namespace orvane {

frmBillProcessingShift::frmBillProcessingShift(Program& owner)
    : MonthBillsScreen(owner, "frmBillProcessingShift", "Bill Processing", {"Attendance between", "&Update Bills"}) {
    cboPeriod.setToolTip("Months after that of the second date; before it with a minus");
    cboPeriod.onLeave = [this] { cboPeriod_Click(); };
}

Layout frmBillProcessingShift::layout() const {
    using namespace orvane::layout;
    return layoutOf("Shift UnProcessed Bills to Another Period",
                    {row({field("Shift by", cboPeriod, 6), cell(lblDisplay), stretch()})});
}

void frmBillProcessingShift::Form_Load() {
    MonthBillsScreen::Form_Load();
    cboPeriod.addItems({"", "1", "2", "3", "-1", "-2", "-3"});
}

Sql frmBillProcessingShift::companies() const {
    return Sql("select distinct CoyName,retainCode from vwBillingProcess where batchNo='") << batchNo << "'";
}

Sql frmBillProcessingShift::waitingOf(const QString& code) const {
    const QDate from = range.DTPicker1.date(), to = range.DTPicker2.date();
    if (range.cboVehNo.text() == "(ALL)")
        return Sql("select  distinct fullName,billno,BatchVal,AttdDate from vwBillingProcess where AttdDate between '")
               << from << "' AND '" << to << "' order by fullName";
    return Sql("select  distinct fullName,billno,batchVal,AttdDate from vwBillingProcess where retainCode='")
           << code << "' and  AttdDate between '" << from << "' AND '" << to << "' order by fullName";
}

std::optional<int> frmBillProcessingShift::period() const {
    bool isNumber = false;
    const int months = cboPeriod.text().trimmed().toInt(&isNumber);
    return isNumber ? std::optional(months) : std::nullopt;
}

std::optional<QDate> frmBillProcessingShift::shiftedTo() const {
    return period() && !batchNo.isEmpty() ? shiftedBillDate(batchNo, *period()) : std::nullopt;
}

void frmBillProcessingShift::cboPeriod_Click() {
    const std::optional<QDate> date = shiftedTo();
    lblDisplay.setText(date ? "Processing Now " + monthName(date->month()) + ' ' + QString::number(date->year())
                            : QString());
}

bool frmBillProcessingShift::isPeriodGiven() {
    return isTicked("No Patient is selected") &&
           passes({{cboPeriod.text().isEmpty(), "Specify Period to Shift by", &cboPeriod},
                   {!period(), "Period has to be Numeric", &cboPeriod},
                   {!shiftedTo(), "There is no Batch so far from the month of the second date", &cboPeriod}});
}

/// Where the bills would come too late for any run.
QString frmBillProcessingShift::warning() const {
    const QDate date = *shiftedTo();
    Connection connection = program.openBilling();
    return isBatchPast(connection, date.toString("yyyy/MM"))
               ? QStringLiteral("A later month is processed already: they can not be processed there")
               : QString();
}

void frmBillProcessingShift::cmdProcess_Click() {
    save<int>(
        {.button = cmdProcess,
         .action = "SHIFT BILLS",
         .allowed = [this] { return isPeriodGiven(); },
         .question = "Are you sure to Update Bills Processing?",
         .title = "About to save",
         .detail =
             [this] {
                 cboPeriod_Click();
                 return aboutLines({lblDisplay.text(), "Bills: " + QString::number(bills.ticked().size()), warning()});
             },
         .prepare = [this] { return showStart(); },
         .step =
             [this](Books& books) {
                 return shiftBills(
                     books, tickedBills(), *shiftedTo(), [this](int done) { showDone(done); });
             },
         .follow =
             [this](int count) {
                 showSaved(QString::number(count) + " Patient Bills successfully Shifted to Another Month");
             },
         .refused = [this](Refusal refusal) { showRefused(refusal); }});
}

} // namespace orvane
