#include "clients/MonthBillsScreen.h"

#include "books/Batch.h"

namespace orvane {

MonthBillsScreen::MonthBillsScreen(Program& owner, const QString& name, const QString& caption, const Words& words)
    : Screen(owner, name, caption), range(*this, {words.range, "cmdList", "&Get Company", "Select Company"},
                                          &Me::cmdList_Click, ComboBox::ListOnly, &Me::cboVehNo_Click),
      cmdProcess(*this, "cmdProcess", words.process, &Me::cmdProcess_Click) {}

Layout MonthBillsScreen::layoutOf(const QString& heading, std::initializer_list<Layout> below) const {
    using namespace orvane::layout;
    Layout whole = column({growing(group(heading, {range.layout(), cell(Label1), growing(cell(bills.LstDate)),
                                                   row({cell(bills.cmdAll), cell(bills.cmdDeSelect), stretch()})}))});
    for (const Layout& item : below)
        whole.children.append(item);
    whole.children.append(cell(bar.ProgressBar1));
    whole.children.append(buttons({&cmdRefresh}, {&CancelButton, &cmdProcess}));
    return whole;
}

void MonthBillsScreen::Form_Load() {
    range.setDates(ui().now().date());
}

void MonthBillsScreen::cmdList_Click() {
    if (!passes({{!range.isComplete(), "Specify Begin and End Dates", &range.DTPicker1}}))
        return;
    const QDate end = range.DTPicker2.date();
    session.sBatchNo = batchNo = batchNumber(QString::number(end.year()), monthCode(monthName(end.month())));
    range.cboVehNo.clear();
    range.cboVehNo.addItem("");
    listAll();
    Connection connection = program.openBilling();
    for (Recordset rows(connection, companies()); !rows.eof(); rows.moveNext())
        range.cboVehNo.addItem(rows.text("CoyName"), rows.integer("retainCode"));
    bills.LstDate.clear();
    Label1.setText("Bill List");
}

void MonthBillsScreen::cboVehNo_Click() {
    bills.LstDate.clear();
    Label1.setText("Bill List");
    if (range.cboVehNo.text().isEmpty() ||
        !passes({{!range.isComplete(), "Specify Begin and End Dates", &range.DTPicker1}}))
        return;
    fillBills(waitingOf(paddedClientCode(range.cboVehNo.picked<qlonglong>().value_or(0))));
}

void MonthBillsScreen::fillBills(const Sql& sql) {
    Connection connection = program.openBilling();
    Recordset rows(connection, sql);
    for (; !rows.eof(); rows.moveNext()) {
        const QString name = rows.text("fullName");
        const QString bill = rows.text("billno");
        bills.LstDate.addItem(name + " @" + rows.date("AttdDate").toString("dd/MM/yyyy") + " [" + bill + "]",
                              QStringList{bill, name});
    }
    Label1.setText("Bill List : " + QString::number(rows.count()));
}

void MonthBillsScreen::cmdAll_Click() {
    if (passes({{bills.LstDate.count() == 0, "No Item to select"}}))
        bills.setAll(true);
}

void MonthBillsScreen::cmdDeSelect_Click() {
    if (passes({{bills.LstDate.count() == 0, "No Item to Deselect"}}))
        bills.setAll(false);
}

bool MonthBillsScreen::isTicked(const QString& none) {
    return passes({{bills.ticked().isEmpty(), none}, {batchNo.isEmpty(), "Batch No needed for this Processing"}});
}

QVector<ListedBill> MonthBillsScreen::tickedBills() const {
    QVector<ListedBill> ticked;
    for (const int row : bills.ticked()) {
        const QStringList bill = bills.LstDate.itemData(row).toStringList();
        ticked.append({bill.at(0), bill.at(1)});
    }
    return ticked;
}

bool MonthBillsScreen::showStart() {
    bar.show(0);
    return true;
}

void MonthBillsScreen::showRefused(Refusal refusal) {
    bar.hide();
    program.box(refusalText(refusal));
}

void MonthBillsScreen::showDone(int done) {
    bar.show(100 * done / int(bills.ticked().size()));
}

void MonthBillsScreen::showSaved(const QString& words) {
    bar.finish();
    program.box(words);
    cmdRefresh_Click();
}

} // namespace orvane
