#include "clients/frmBillSplitting.h"

#include "data/words/Money.h"

namespace orvane {

namespace {

QString dayText(QDate day) {
    return day.toString("dd/MM/yyyy");
}

} // namespace

frmBillSplitting::frmBillSplitting(Program& owner)
    : Screen(owner, "frmBillSplitting", "Split Bill"),
      range(*this, {"Attendance between", "cmdList", "&Get Patients", "Select Patient"}, &Me::cmdList_Click,
            ComboBox::ListOnly, &Me::cboVehNo_Click) {
    items.LstDate.onClick = [this] { showTicked(); };
}

Layout frmBillSplitting::layout() const {
    using namespace orvane::layout;
    return column({range.layout(), cell(Label1), growing(cell(items.LstDate)),
                   row({cell(items.cmdAll), cell(items.cmdDeSelect), cell(lblDisplay), stretch()}),
                   field("Company to Shift to", cboPeriod, 40), cell(bar.ProgressBar1),
                   buttons({&cmdRefresh}, {&CancelButton, &cmdProcess})});
}

void frmBillSplitting::Form_Load() {
    range.setDates(ui().now().date());
    fillPayers();
    takeBillInHand();
}

void frmBillSplitting::fillPayers() {
    Connection connection = program.openBilling();
    cboPeriod.addItem("");
    for (Recordset rows(connection, Sql("select distinct retainName,retainID,retainCode from hretainerShip where "
                                        "retainCode ='0001'"));
         !rows.eof(); rows.moveNext())
        cboPeriod.addItem(rows.text("retainName"), QStringList{rows.text("retainID"), rows.text("retainCode")});
}

void frmBillSplitting::addBill(const Recordset& row, const QString& name, const QString& bill, const QString& date) {
    const QString billNo = row.text(bill);
    range.cboVehNo.addItem(row.text(name) + " @" + dayText(row.date(date)) + " [" + billNo + "]", billNo);
}

/// A bill that is not saved yet waits for no run, but can be split.
void frmBillSplitting::takeBillInHand() {
    if (session.gConsultID.isEmpty())
        return;
    Connection connection = program.openBilling();
    const Recordset visit(connection, Sql("select FullName,ConsultID,RecDate from vwhRecords where consultID='")
                                          << session.gConsultID << "'");
    if (visit.eof())
        return;
    range.cboVehNo.addItem("");
    addBill(visit, "FullName", "ConsultID", "RecDate");
    range.cboVehNo.setListIndex(1);
}

void frmBillSplitting::cmdList_Click() {
    if (!passes({{!range.isComplete(), "Specify Begin and End Dates", &range.DTPicker1}}))
        return;
    range.cboVehNo.clear();
    range.cboVehNo.addItem("");
    Connection connection = program.openBilling();
    for (Recordset rows(connection, Sql("select  distinct fullName,billno,BatchVal,AttdDate from vwBillingProcess "
                                        "where AttdDate between '")
                                        << range.DTPicker1.date() << "' AND '" << range.DTPicker2.date()
                                        << "' order by fullName");
         !rows.eof(); rows.moveNext())
        addBill(rows, "fullName", "billno", "AttdDate");
    cboVehNo_Click();
}

void frmBillSplitting::cboVehNo_Click() {
    items.LstDate.clear();
    if (const std::optional<QString> bill = range.cboVehNo.picked<QString>()) {
        Connection connection = program.openBilling();
        for (Recordset rows(connection,
                            Sql("select  distinct DrgName,SNo,dtDate,Subtotal from billingDetails where billNo='")
                                << *bill << "' order by drgName");
             !rows.eof(); rows.moveNext()) {
            const QString sno = rows.text("SNo");
            const double amount = rows.number("Subtotal");
            items.LstDate.addItem(rows.text("DrgName") + " @" + dayText(rows.date("dtDate")) + " [" + sno + "]  " +
                                      nairaText(amount),
                                  QVariantList{rows.integer("SNo"), amount});
        }
    }
    showTicked();
}

void frmBillSplitting::cmdAll_Click() {
    if (passes({{items.LstDate.count() == 0, "No Item to select"}}))
        items.setAll(true);
}

void frmBillSplitting::cmdDeSelect_Click() {
    if (passes({{items.LstDate.count() == 0, "No Item to Deselect"}}))
        items.setAll(false);
}

BillSplit frmBillSplitting::split() const {
    const QStringList payer = cboPeriod.picked<QStringList>().value_or(QStringList{{}, {}});
    BillSplit split{
        range.cboVehNo.picked<QString>().value_or(QString()), {}, cboPeriod.text(), payer.at(0), payer.at(1)};
    for (const int row : items.ticked()) {
        const QVariantList line = items.LstDate.itemData(row).toList();
        split.items.append({line.at(0).toLongLong(), line.at(1).toDouble()});
    }
    return split;
}

/// What goes and what stays.
void frmBillSplitting::showTicked() {
    double whole = 0, ticked = 0;
    for (int row = 0; row < items.LstDate.count(); ++row) {
        const double amount = items.LstDate.itemData(row).toList().at(1).toDouble();
        whole += amount;
        ticked += items.LstDate.isSelected(row) ? amount : 0;
    }
    lblDisplay.setText(items.LstDate.count() == 0
                           ? QString()
                           : "To shift " + nairaText(ticked) + ", to stay " + nairaText(round2(whole - ticked)));
}

QString frmBillSplitting::aboutSplit() const {
    return aboutLines({range.cboVehNo.text(), "To " + cboPeriod.text(), lblDisplay.text()});
}

bool frmBillSplitting::isTicked() {
    return passes({{items.ticked().isEmpty(), "No Patient is selected"},
                   {!cboPeriod.picked<QStringList>(), "Specify Company to Shift Bill to", &cboPeriod}});
}

void frmBillSplitting::cmdProcess_Click() {
    save<QString>({.button = cmdProcess,
                   .action = "SPLIT OFF",
                   .allowed = [this] { return isTicked(); },
                   .question = "Are you sure to Shift/Split Bill?",
                   .title = "About to Split Bill",
                   .detail = [this] { return aboutSplit(); },
                   .prepare =
                       [this] {
                           bar.show(0);
                           return true;
                       },
                   .step = [this](Books& books) { return splitBill(books, split()); },
                   .follow = [this](const QString&) { showSplit(); },
                   .refused =
                       [this](Refusal refusal) {
                           bar.hide();
                           program.box(refusalText(refusal));
                       }});
}

void frmBillSplitting::showSplit() {
    bar.finish();
    program.box(QString::number(items.ticked().size()) + " Patient Bill Items successfully Shifted to " +
                cboPeriod.text());
    cmdRefresh_Click();
}

} // namespace orvane
