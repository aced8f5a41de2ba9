#include "support/MoneyActions.h"

namespace orvane {

namespace {

const char* const bill = "001OFL0000001";

void layVisit(Workstation& ws) {
    Connection connection = ws.billing();
    makePatient(connection);
    makeVisit(connection);
}

void layItems(Workstation& ws) {
    layVisit(ws);
    Connection connection = ws.billing();
    makeItem(connection, {.qty = 10});
    makeItem(connection, {.name = "MALARIA PARASITE", .billType = "LAB", .revType = "LABORATORY", .price = 1500.5});
}

void loadBill(Workstation& ws) {
    ws.open("frmBillingVerify");
    ws.set("frmBillingVerify.txtSearch", bill);
    ws.click("frmBillingVerify.cmdOK");
}

/// Presses a save that asks first.
void press(Workstation& ws, const QString& button) {
    ws.ui.answer(true);
    ws.click(button);
}

/// A bill of 2000.50 naira, saved and owed.
void layBill(Workstation& ws) {
    layItems(ws);
    loadBill(ws);
    press(ws, "frmBillingVerify.OKButton");
    ws.close("frmBillingVerify");
}

void enterAttendance(Workstation& ws) {
    ws.open("frmRecordsOffline");
    ws.click("frmRecordsOffline.cmdAdd");
    ws.set("frmRecordsOffline.txtName", "ADEYEMI");
    ws.click("frmRecordsOffline.cmdOK");
    ws.pick("frmRecordsOffline.cboVehNo", 0);
    ws.set("frmRecordsOffline.cboType", "OPD");
    ws.set("frmRecordsOffline.cboClient", "CONSULTATION");
    ws.pick("frmRecordsOffline.cboAppr", "BELLO AMINA");
}

void enterBillItems(Workstation& ws) {
    ws.program.session.gConsultID = bill;
    ws.program.session.sBillPno = "P/0001";
    ws.program.session.sBillPatLabel = "ADEYEMI BOLA";
    ws.open("frmBillPat");
    for (const auto& [kind, item] : {std::pair("DRUG", "PARACETAMOL 500MG"), std::pair("SERVICE", "WOUND DRESSING")}) {
        ws.set("frmBillPat.cboCat", kind);
        ws.set("frmBillPat.cboDrug", item);
        ws.set("frmBillPat.txtQty", "2");
        ws.pick("frmBillPat.cboPat", 1);
        ws.click("frmBillPat.cmdAdd");
    }
}

void enterSaveWithReceipt(Workstation& ws) {
    loadBill(ws);
    ws.set("frmBillingVerify.chkRct", "yes");
    ws.set("frmBillingVerify.cboPayFor", "DRUGS");
    ws.set("frmBillingVerify.chkExact", "yes");
}

void enterReceipt(Workstation& ws) {
    ws.open("frmReceiptTemp");
    ws.click("frmReceiptTemp.cmdAdd");
    ws.pick("frmReceiptTemp.cboVehNo", bill);
    ws.set("frmReceiptTemp.cboPay", "CASH");
    ws.set("frmReceiptTemp.txtHt", "1,500.25");
}

void layReceipt(Workstation& ws) {
    layBill(ws);
    enterReceipt(ws);
    press(ws, "frmReceiptTemp.OKButton");
}

void enterReversal(Workstation& ws) {
    ws.open("frmReceiptTemp");
    ws.row("frmReceiptTemp.grdData", 0);
    ws.click("frmReceiptTemp.cmdRev");
    ws.set("frmReceiptTemp.chkRev", "yes");
}

void enterDeposit(Workstation& ws) {
    ws.open("frmReceiptDeposit");
    if (ws.state("frmReceiptDeposit.cmdAdd") == "visible enabled")
        ws.click("frmReceiptDeposit.cmdAdd");
    ws.pick("frmReceiptDeposit.cboVehNo", bill);
    ws.set("frmReceiptDeposit.txtHt", "5,000.50");
}

void enterManual(Workstation& ws) {
    ws.open("frmReceiptManual");
    if (ws.state("frmReceiptManual.cmdAdd") == "visible enabled")
        ws.click("frmReceiptManual.cmdAdd");
    ws.pick("frmReceiptManual.cboVehNo", bill);
    ws.pick("frmReceiptManual.cboReceived", "BELLO");
    ws.set("frmReceiptManual.txtRct", "0047");
    ws.set("frmReceiptManual.txtBill", "1,500.50");
    ws.set("frmReceiptManual.txtHt", "1000");
}

void enterDiscount(Workstation& ws) {
    ws.open("frmBillDiscount");
    ws.click("frmBillDiscount.cmdInv");
    ws.pick("frmBillDiscount.cboVehNo", bill);
    ws.set("frmBillDiscount.cboClinic", "DISCOUNT");
    ws.set("frmBillDiscount.txtHt", "100.25");
}

void adjust(Workstation& ws) {
    ws.row("frmBillingVerify.grdData", "PARACETAMOL 500MG");
    ws.ui.inModal("frmPriceAdjustVerify", [&ws](Form&) {
        ws.set("frmPriceAdjustVerify.txtQty", "20");
        ws.set("frmPriceAdjustVerify.txtPrice", "40.25");
        ws.click("frmPriceAdjustVerify.cmdSave");
    });
    ws.dblClick("frmBillingVerify.grdData");
}

const char* const saved = "box Record Succesfully saved";
const char* const receiptShown = "opened frmCashReceipt";

const MoneyAction actions[] = {
    {"Attendance",
     [](Workstation& ws) {
         Connection connection = ws.billing();
         makePatient(connection);
         makeItem(connection, {.consultID = "", .name = "MALARIA PARASITE"});
     },
     enterAttendance, [](Workstation& ws) { ws.click("frmRecordsOffline.OKButton"); }, saved},
    {"Collation", layItems,
     [](Workstation& ws) {
         ws.open("frmBillingVerify");
         ws.set("frmBillingVerify.txtSearch", bill);
     },
     [](Workstation& ws) { ws.click("frmBillingVerify.cmdOK"); }, "", true},
    {"BillItems",
     [](Workstation& ws) {
         layVisit(ws);
         Connection connection = ws.billing();
         makeConsultation(connection);
     },
     enterBillItems, [](Workstation& ws) { press(ws, "frmBillPat.OKButton"); }, "closed frmBillPat"},
    {"SaveWithReceipt", layItems, enterSaveWithReceipt, [](Workstation& ws) { press(ws, "frmBillingVerify.OKButton"); },
     receiptShown},
    {"SaveWithoutReceipt", layItems, loadBill, [](Workstation& ws) { press(ws, "frmBillingVerify.OKButton"); }, saved},
    {"Receipt", layBill, enterReceipt, [](Workstation& ws) { press(ws, "frmReceiptTemp.OKButton"); }, saved},
    {"Reversal", layReceipt, enterReversal, [](Workstation& ws) { press(ws, "frmReceiptTemp.OKButton"); }, saved},
    {"Deposit", layVisit, enterDeposit, [](Workstation& ws) { press(ws, "frmReceiptDeposit.OKButton"); }, receiptShown},
    {"ManualReceipt", layVisit, enterManual, [](Workstation& ws) { press(ws, "frmReceiptManual.OKButton"); }, saved},
    {"Adjustment", layBill, loadBill, adjust, "closed frmPriceAdjustVerify"},
    {"Discount", layBill, enterDiscount, [](Workstation& ws) { press(ws, "frmBillDiscount.OKButton"); }, saved},
};

} // namespace

void PrintTo(const MoneyAction& action, std::ostream* out) {
    *out << action.name;
}

std::span<const MoneyAction> moneyActions() {
    return actions;
}

QString moneyFigures(Workstation& ws) {
    QStringList found;
    for (const char* figure : {
             "count(*) from hRecords",
             "count(BillDate) from hRecords",
             "count(*) from BillAccum where consultID<>''",
             "sum(attendedto) from BillAccum",
             "sum(isBilled) from BillAccum",
             "sum(isRct) from BillAccum",
             "sum(SubTotal) from BillAccum",
             "count(*) from BillingDetails",
             "sum(SubTotal) from BillingDetails",
             "sum(isRct) from BillingDetails",
             "sum(Amountbilled) from Billing",
             "sum(AmountPaid) from Billing",
             "count(*) from Payments",
             "sum(AmountPaid) from Payments",
             "sum(AmountPaid) from PaymentTypes",
             "sum(AmountPaid) from PaymentDetails",
             "count(*) from Tranxaction",
             "sum(Amount) from Tranxaction",
             "sum(DebtBF) from hPatients",
             "count(*) from BillingDetailsAdjust",
         })
        found << figure + QLatin1String(": ") + ws.scalar(QLatin1String("select ") + QLatin1String(figure));
    found << "ledger: " + ws.accountingScalar("select count(*) as n from Tranxaction");
    return found.join('\n');
}

} // namespace orvane
