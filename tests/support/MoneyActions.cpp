#include "support/MoneyActions.h"

#include "support/Entries.h"

namespace orvane {

namespace {

const char* const bill = "001OFL0000001";
const char* const item = "PARACETAMOL 500MG";

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

void collate(Workstation& ws) {
    loadBill(ws.program, bill);
}

/// A bill of 2000.50 naira, saved and owed.
void layBill(Workstation& ws) {
    layItems(ws);
    collate(ws);
    ws.ui.answer(true);
    ws.click("frmBillingVerify.OKButton");
    ws.close("frmBillingVerify");
}

void layReceipt(Workstation& ws) {
    layBill(ws);
    enterReceipt(ws.program, bill, "1,500.25");
    ws.ui.answer(true);
    ws.click("frmReceiptTemp.OKButton");
}

/// A patient whose bill his insurer pays, seen by a doctor, with a capitated item.
void layInsured(Workstation& ws) {
    Connection connection = ws.billing();
    makePatient(connection, {.category = "HMO", .client = "0201"});
    makeVisit(connection, {.category = "HMO", .client = "0201"});
    makeConsultation(connection);
    makeItem(connection, {.client = "0201", .capitated = "YES"});
}

/// Screens that a bill opens work on the visit in hand.
void takeInHand(Workstation& ws) {
    ws.program.session.gConsultID = bill;
    ws.program.session.sBillPno = "P/0001";
    ws.program.session.sBillPatLabel = "ADEYEMI BOLA";
}

void enterBillItems(Workstation& ws) {
    takeInHand(ws);
    ws.open("frmBillPat");
    for (const auto& [kind, name] : {std::pair("DRUG", item), std::pair("SERVICE", "WOUND DRESSING")}) {
        ws.set("frmBillPat.cboCat", kind);
        ws.set("frmBillPat.cboDrug", name);
        ws.set("frmBillPat.txtQty", "2");
        ws.pick("frmBillPat.cboPat", 1);
        ws.click("frmBillPat.cmdAdd");
    }
}

void enterClientMove(Workstation& ws) {
    takeInHand(ws);
    ws.open("frmCoyUpdate");
    ws.pick("frmCoyUpdate.cboPat", "HARMONY MILLS");
    ws.set("frmCoyUpdate.cboClient", "MTHLY");
}

void enterApproval(Workstation& ws) {
    ws.open("frmApprvCode");
    ws.click("frmApprvCode.cmdInv");
    ws.pick("frmApprvCode.cboVehNo", bill);
    ws.set("frmApprvCode.txtApprv", "CH/88");
    ws.set("frmApprvCode.cboBill", "CLAIMS");
}

void enterDrugPrice(Workstation& ws) {
    ws.open("frmDrugPrice");
    ws.row("frmDrugPrice.grdData", item);
    ws.click("frmDrugPrice.cmdEdit");
    ws.set("frmDrugPrice.txtCost", "60.50");
    ws.leave("frmDrugPrice.txtCost");
}

void pickAttendance(Workstation& ws) {
    ws.open("frmRecordsOffline");
    ws.row("frmRecordsOffline.grdData", 0);
}

void enterAttendanceEdit(Workstation& ws) {
    pickAttendance(ws);
    ws.click("frmRecordsOffline.cmdEdit");
    Hand hand(ws.form("frmRecordsOffline"));
    completeAttendance(hand, "ANTENATAL");
}

void enterUser(Workstation& ws) {
    ws.open("frmUsers");
    ws.set("frmUsers.txtUserName", "kemi");
    ws.set("frmUsers.txtPassword", "secret");
    ws.set("frmUsers.txtConfirmPWD", "secret");
    ws.set("frmUsers.cboAcctStatus", "Enabled");
    ws.set("frmUsers.cboBranchCode", "HQ");
}

void enterRole(Workstation& ws) {
    ws.open("frmRole");
    ws.set("frmRole.txtRID", "103");
    ws.set("frmRole.txtRName", "AUDIT");
}

void enterRoleOfUser(Workstation& ws) {
    ws.open("frmUserRole");
    ws.set("frmUserRole.cboRoleID", "102");
    ws.set("frmUserRole.cboUsername", "musa");
}

const char* const saved = "box Record Succesfully saved";
const char* const receiptShown = "opened frmCashReceipt";

} // namespace

const QList<MoneyAction>& moneyActions() {
    static const QList<MoneyAction> actions = {
        {"Attendance",
         [](Workstation& ws) {
             Connection connection = ws.billing();
             makePatient(connection);
             makeItem(connection, {.consultID = "", .name = "MALARIA PARASITE"});
         },
         [](Workstation& ws) {
             Hand hand = findPatient(ws.program, "ADEYEMI", "P/0001");
             completeAttendance(hand);
         },
         "frmRecordsOffline.OKButton", "", saved},
        {"Collation", layItems, [](Workstation& ws) { findBill(ws.program, bill); }, "frmBillingVerify.cmdOK", "", "",
         false, collate},
        {"BillItems",
         [](Workstation& ws) {
             layVisit(ws);
             Connection connection = ws.billing();
             makeConsultation(connection);
         },
         enterBillItems, "frmBillPat.OKButton", "yes", "closed frmBillPat"},
        {"SaveWithReceipt", layItems,
         [](Workstation& ws) {
             loadBill(ws.program, bill);
             ws.set("frmBillingVerify.chkRct", "yes");
             ws.set("frmBillingVerify.cboPayFor", "DRUGS");
             ws.set("frmBillingVerify.chkExact", "yes");
         },
         "frmBillingVerify.OKButton", "yes", receiptShown},
        {"SaveWithoutReceipt", layItems, collate, "frmBillingVerify.OKButton", "yes", saved},
        {"Receipt", layBill, [](Workstation& ws) { enterReceipt(ws.program, bill, "1,500.25"); },
         "frmReceiptTemp.OKButton", "yes", saved},
        {"Reversal", layReceipt,
         [](Workstation& ws) {
             ws.open("frmReceiptTemp");
             ws.row("frmReceiptTemp.grdData", 0);
             enterReversal(ws.program);
         },
         "frmReceiptTemp.OKButton", "yes", saved},
        {"Deposit", layVisit, [](Workstation& ws) { enterDeposit(ws.program, bill, "5,000.50"); },
         "frmReceiptDeposit.OKButton", "yes", receiptShown},
        {"ManualReceipt", layVisit,
         [](Workstation& ws) { enterManualReceipt(ws.program, bill, "0047", "1,500.50", "1000"); },
         "frmReceiptManual.OKButton", "yes", saved},
        {"Adjustment", layBill, [](Workstation& ws) { enterAdjustment(ws.program, bill, item, "20", "40.25"); },
         "frmPriceAdjustVerify.cmdSave", "", "closed frmPriceAdjustVerify"},
        {"Discount", layBill, [](Workstation& ws) { enterDiscount(ws.program, bill, "100.25"); },
         "frmBillDiscount.OKButton", "yes", saved},
        {"ProfFee", layBill,
         [](Workstation& ws) {
             loadBill(ws.program, bill);
             ws.set("frmBillingVerify.txtProf", "10");
         },
         "frmBillingVerify.cmdBill", "",
         "box 10% Prof fee of 2,000.50 Added\nProf Fee is based on Current Bill\nProf Fee Charged is 200.05", true,
         collate},
        {"NHISFee", layBill,
         [](Workstation& ws) {
             loadBill(ws.program, bill);
             ws.set("frmBillingVerify.txtNHIS", "5");
         },
         "frmBillingVerify.cmdNHIS", "SCHEME FEE", "", true},
        {"CapitateAll", layBill, collate, "frmBillingVerify.cmdCap", "yes", "box  Bill Item successfully Capitated",
         true},
        {"Removal", layBill, [](Workstation& ws) { openAdjustment(ws.program, "frmPriceAdjustVerify", bill, item); },
         "frmPriceAdjustVerify.cmdCancel", "yes", "box  Bill Item successfully Removed", true},
        {"ClientMove", layBill, enterClientMove, "frmCoyUpdate.OkButton", "", "closed frmCoyUpdate", true},
        {"CustomAdjustment", layBill,
         [](Workstation& ws) {
             Hand hand = openAdjustment(ws.program, "frmPriceAdjustCustom", bill, item);
             hand.type("txtPrice", "40.25");
             ws.set("frmPriceAdjustCustom.cboHead", "TABLETS");
         },
         "frmPriceAdjustCustom.cmdSave", "", "closed frmPriceAdjustCustom", true},
        {"Split", layBill,
         [](Workstation& ws) {
             openAdjustment(ws.program, "frmPriceAdjustSplit", bill, item);
             ws.pick("frmPriceAdjustSplit.cboPat", "HARMONY MILLS");
         },
         "frmPriceAdjustSplit.cmdSave", "", "closed frmPriceAdjustSplit", true},
        {"Approval", layInsured, enterApproval, "frmApprvCode.OKButton", "", saved, true},
        {"DrugPrice", layVisit, enterDrugPrice, "frmDrugPrice.OKButton", "yes", "box Record Succesfully updated", true},
        {"FeeForService", layInsured,
         [](Workstation& ws) {
             takeInHand(ws);
             ws.open("frmBillPat");
             ws.set("frmBillPat.cboFFS", "YES");
         },
         "frmBillPat.cmdUpd", "", "", true},
        {"AttendanceEdit", layVisit, enterAttendanceEdit, "frmRecordsOffline.OKButton", "",
         "box Record Succesfully Edited and Updated", true},
        {"AttendanceDelete", layVisit, pickAttendance, "frmRecordsOffline.cmdDel", "yes",
         "box  Record successfully deleted ", true},
        {"User", layVisit, enterUser, "frmUsers.cmdApply", "", "box Account creation succeeded.", true},
        {"Role", layVisit, enterRole, "frmRole.cmdSubmit", "", "", true},
        {"RoleOfUser",
         [](Workstation& ws) { ws.run("insert into ApplicationUsers (Username, AccountStatus) values ('musa', 'X')"); },
         enterRoleOfUser, "frmUserRole.cmdSubmit", "", "box Submission Successful.", true},
    };
    return actions;
}

void PrintTo(const MoneyAction& action, std::ostream* out) {
    *out << action.name;
}

void MoneyAction::press(Workstation& ws) const {
    const QString answer = QLatin1String(asks);
    if (answer == "yes")
        ws.ui.answer(true);
    else if (!answer.isEmpty())
        ws.ui.answer(answer);
    ws.click(button);
    ws.ui.forgetAnswers(); // what stops a save may come before its question
    ws.ui.takeQuestions();
}

bool MoneyAction::isReportedBy(const QStringList& shown) const {
    return *report ? shown.contains(QLatin1String(report)) : shown.filter("box ").isEmpty();
}

QStringList takeShown(TestUi& ui) {
    QStringList shown;
    for (const QString& text : ui.takeBoxes())
        shown << "box " + text;
    for (const QString& form : std::exchange(ui.opened, {}))
        shown << "opened " + form;
    for (const QString& form : std::exchange(ui.closedForms, {}))
        shown << "closed " + form;
    return shown;
}

QString moneyFigures(Workstation& ws) {
    QStringList found;
    for (const char* figure : {
             "count(*) from hRecords",
             "count(BillDate) from hRecords",
             "count(*) from hRecords where clinicType='ANTENATAL'",
             "count(*) from hRecords where coyName='0102'",
             "count(*) from hRecords where referal='YES'",
             "count(*) from hPatients where coyName='0102'",
             "count(*) from hPatients where ref='YES'",
             "sum(DebtBF) from hPatients",
             "count(*) from BillAccum where consultID<>''",
             "count(*) from BillAccum where billTo='0102'",
             "count(*) from BillAccum where Capitated='YES'",
             "sum(attendedto) from BillAccum",
             "sum(isBilled) from BillAccum",
             "sum(isRct) from BillAccum",
             "sum(SubTotal) from BillAccum",
             "count(*) from BillingDetails",
             "count(*) from BillingDetails where billTo='0102'",
             "count(*) from BillingDetails where BillHead='TABLETS'",
             "sum(SubTotal) from BillingDetails",
             "sum(isRct) from BillingDetails",
             "count(*) from Billing where clientID='0102'",
             "sum(Amountbilled) from Billing",
             "sum(AmountPaid) from Billing",
             "count(*) from Payments",
             "sum(AmountPaid) from Payments",
             "sum(AmountPaid) from PaymentTypes",
             "sum(AmountPaid) from PaymentDetails",
             "count(*) from Tranxaction",
             "sum(Amount) from Tranxaction",
             "count(*) from BillingDetailsAdjust",
             "sum(Amount) from billDiscounts",
             "count(*) from hApprvCode",
             "sum(Cost) from Drugs",
             "count(*) from ApplicationUsers",
             "count(*) from Roles",
             "count(*) from UserRoles",
         })
        found << figure + QLatin1String(": ") + ws.scalar(QLatin1String("select ") + QLatin1String(figure));
    found << "ledger: " + ws.accountingScalar("select count(*) as n from Tranxaction");
    return found.join('\n');
}

void layAction(const QString& homeFolder, const MoneyAction& action) {
    Workstation ws(homeFolder);
    ws.layHospital();
    if (!ws.start())
        throw std::runtime_error("the program does not start");
    action.lay(ws);
    ws.ui.forgetBoxes();
    ws.ui.takeQuestions();
}

} // namespace orvane
