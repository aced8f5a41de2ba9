#include "support/Entries.h"

#include "data/rows/Recordset.h"

namespace orvane {

Hand openScreen(Program& program, const QString& form) {
    program.open(form);
    return Hand(program.form(form));
}

Hand findPatient(Program& program, const QString& name, const QString& pno) {
    Hand hand = openScreen(program, "frmRecordsOffline");
    hand.click("cmdAdd");
    hand.type("txtName", name);
    hand.click("cmdOK");
    hand.chooseContaining("cboVehNo", '[' + pno + ']');
    return hand;
}

void completeAttendance(Hand& hand, const QString& clinic, const QString& officerID) {
    hand.choose("cboType", clinic);
    hand.choose("cboClient", "CONSULTATION");
    hand.chooseContaining("cboAppr", '[' + officerID + ']');
}

Hand enterDeposit(Program& program, const QString& bill, const QString& amount) {
    Hand hand = openScreen(program, "frmReceiptDeposit");
    hand.click("cmdAdd");
    hand.chooseContaining("cboVehNo", bill);
    hand.type("txtHt", amount);
    return hand;
}

Hand findBill(Program& program, const QString& bill) {
    Hand hand = openScreen(program, "frmBillingVerify");
    hand.type("txtSearch", bill);
    return hand;
}

Hand loadBill(Program& program, const QString& bill) {
    Hand hand = findBill(program, bill);
    hand.click("cmdOK");
    return hand;
}

void enterCash(Hand& hand, const QString& payFor, const QString& amount) {
    hand.tick("chkRct");
    hand.choose("cboPayFor", payFor);
    hand.type("txtAmt(0)", amount);
}

Hand enterReceipt(Program& program, const QString& bill, const QString& amount) {
    Hand hand = openScreen(program, "frmReceiptTemp");
    hand.click("cmdAdd");
    hand.chooseContaining("cboVehNo", bill);
    hand.choose("cboPay", "CASH");
    hand.type("txtHt", amount);
    return hand;
}

Hand enterReversal(Program& program) {
    Hand hand = openScreen(program, "frmReceiptTemp");
    hand.click("cmdRev");
    hand.tick("chkRev");
    return hand;
}

Hand enterManualReceipt(Program& program, const QString& bill, const QString& number, const QString& billed,
                        const QString& paid) {
    Hand hand = openScreen(program, "frmReceiptManual");
    hand.click("cmdAdd");
    hand.chooseContaining("cboVehNo", bill);
    hand.chooseContaining("cboReceived", "BELLO");
    hand.type("txtRct", number);
    hand.type("txtBill", billed);
    hand.type("txtHt", paid);
    return hand;
}

Hand enterDiscount(Program& program, const QString& bill, const QString& amount) {
    Hand hand = openScreen(program, "frmBillDiscount");
    hand.click("cmdInv");
    hand.chooseContaining("cboVehNo", bill);
    hand.choose("cboClinic", "DISCOUNT");
    hand.type("txtHt", amount);
    return hand;
}

Hand openAdjustment(Program& program, const QString& form, const QString& bill, const QString& item) {
    loadBill(program, bill);
    Connection connection = program.openBilling();
    const Recordset row(connection, Sql("select SNo from BillAccum where consultID='")
                                        << bill << "' and drgName='" << item << "'");
    program.session.lWorkSNo = row.integer("SNo");
    return openScreen(program, form);
}

Hand enterAdjustment(Program& program, const QString& bill, const QString& item, const QString& qty,
                     const QString& price) {
    Hand hand = openAdjustment(program, "frmPriceAdjustVerify", bill, item);
    hand.type("txtQty", qty);
    hand.type("txtPrice", price);
    return hand;
}

QString takeReceipt(Program& program) {
    Form* receipt = program.loadedForm("frmCashReceipt");
    if (!receipt)
        throw DataError("No receipt came up.");
    const QString number = Hand(*receipt).value("txtReceiptNo");
    receipt->abandon();
    return number;
}

} // namespace orvane
