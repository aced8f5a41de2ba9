#include "support/MoneyActions.h"

#include "data/rows/ActionParts.h"
#include "demo/DemoOutlets.h"
#include "support/Entries.h"
#include "support/PostingActions.h"

namespace orvane {

namespace {

const char* const bill = "001OFL0000001";
const char* const item = "PARACETAMOL 500MG";

/// Sets controls of a screen in this order.
void fill(Workstation& ws, const QString& form, std::initializer_list<std::pair<const char*, const char*>> values) {
    for (const auto& [control, value] : values)
        ws.set(form + '.' + control, value);
}

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

void enterAtOutlet(Workstation& ws) {
    enterOutletRequest(ws.program, "OKORO", "ADA", {{"INVESTIGATION", "MALARIA PARASITE", "1"}, {"DRUG", item, "10"}});
}

/// A request of 2000 naira.
void layOutlet(Workstation& ws) {
    enterAtOutlet(ws);
    ws.ui.answer(true);
    ws.click("frmInvestigatePublic.OKButton");
    ws.close("frmInvestigatePublic");
}

/// A patient whose bill his insurer pays, seen by a doctor, with a capitated item.
void layInsured(Workstation& ws) {
    Connection connection = ws.billing();
    makePatient(connection, {.category = "HMO", .client = "0201"});
    makeVisit(connection, {.category = "HMO", .client = "0201"});
    makeConsultation(connection);
    makeItem(connection, {.client = "0201", .capitated = "YES"});
}

/// Opens a screen on the visit in hand, as a bill does.
void openOnBill(Workstation& ws, const QString& form) {
    ws.program.session.gConsultID = bill;
    ws.program.session.sBillPno = "P/0001";
    ws.program.session.sBillPatLabel = "ADEYEMI BOLA";
    ws.open(form);
}

void enterBillItems(Workstation& ws) {
    openOnBill(ws, "frmBillPat");
    for (const auto& [kind, name] : {std::pair("DRUG", item), std::pair("SERVICE", "WOUND DRESSING")}) {
        fill(ws, "frmBillPat", {{"cboCat", kind}, {"cboDrug", name}, {"txtQty", "2"}});
        ws.pick("frmBillPat.cboPat", 1);
        ws.click("frmBillPat.cmdAdd");
    }
}

void enterClientMove(Workstation& ws) {
    openOnBill(ws, "frmCoyUpdate");
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
    fill(ws, "frmUsers",
         {{"txtUserName", "kemi"},
          {"txtPassword", "secret"},
          {"txtConfirmPWD", "secret"},
          {"cboAcctStatus", "Enabled"},
          {"cboBranchCode", "HQ"}});
}

void layMonth(Workstation& ws) {
    Connection connection = ws.billing();
    makePatient(connection);
    makeMonthBill(connection, bill, "0102", 1500.25);
    makeMonthBill(connection, "001OFL0000002", "0102", 700.5);
    makeMonthBill(connection, "001OFL0000003", "0201", 40);
}

void enterMonth(Workstation& ws) {
    ws.open("frmBillProcessing");
    ws.click("frmBillProcessing.cmdGet");
    ws.click("frmBillProcessing.cmdAll");
}

void layProcessed(Workstation& ws) {
    layMonth(ws);
    enterMonth(ws);
    ws.ui.answer(true);
    ws.click("frmBillProcessing.cmdProcess");
}

void enterMonthReversal(Workstation& ws) {
    ws.open("frmBillReverseProcessing");
    ws.set("frmBillReverseProcessing.cboYear", "2026");
    ws.pick("frmBillReverseProcessing.cboCust", "HARMONY MILLS");
    ws.tick("frmBillReverseProcessing.LstDate", {"2026/03"});
}

void tickMonthBills(Workstation& ws, const QString& form, const QString& client) {
    ws.open(form);
    ws.set(form + ".DTPicker1", "2026-03-01");
    ws.click(form + ".cmdList");
    ws.pick(form + ".cboVehNo", client);
    ws.click(form + ".cmdAll");
}

void enterShift(Workstation& ws) {
    tickMonthBills(ws, "frmBillProcessingShift", "(ALL)");
    ws.set("frmBillProcessingShift.cboPeriod", "1");
}

const char* const splittable = "001OFL000777";

void laySplittable(Workstation& ws) {
    Connection connection = ws.billing();
    makePatient(connection);
    makeMonthBill(connection, splittable, "0102", 700.5);
    makeMonthLine(connection, splittable, "0102", 800.25);
}

void enterSplit(Workstation& ws) {
    ws.program.session.gConsultID = splittable;
    ws.open("frmBillSplitting");
    ws.tick("frmBillSplitting.LstDate", ws.items("frmBillSplitting.LstDate").mid(0, 1));
    ws.pick("frmBillSplitting.cboPeriod", 1);
}

/// A voucher of two items.
void layVoucher(Workstation& ws) {
    ws.run("insert into ChartOfAccounts (AccountNo, AccountName, groupID) values "
           "('1210', 'CASH', '1210000'), ('5310', 'FUEL', '5310000')");
    ws.run("insert into hExpenseApprvFinal (vouchNo, ApprvDate, ReceivedBy, Amount) values "
           "('V1', '2026-03-14', 'MUSA', 700.5)");
    ws.run("insert into hExpenseDetailsApprvFinal (vouchNo, ItemName, ItemCode, Qty, Price, SubTotal) values "
           "('V1', 'DIESEL', '001', 2, 250.25, 500.5), ('V1', 'PAPER', '002', 1, 200, 200)");
}

void enterVoucher(Workstation& ws) {
    ws.open("frmExpensePay");
    ws.click("frmExpensePay.cmdAdd");
    ws.pick("frmExpensePay.cboCat", 0);
    for (int row = 0; row < 2; ++row) {
        ws.pick("frmExpensePay.cboDrug", row);
        fill(ws, "frmExpensePay", {{"cboPay", "CASH"}, {"cboExpense", "FUEL[5310]"}, {"cboBank", "CASH[1210]"}});
        ws.click("frmExpensePay.cmdGrid");
    }
}

/// The first line of the bill, before the accountant.
void enterRevenueCorrection(Workstation& ws) {
    ws.open("frmRevCatEdit");
    fill(ws, "frmRevCatEdit", {{"cboGroup", "(ALL)"}, {"DTPicker1", "2026-03-01"}, {"DTPicker2", "2026-03-31"}});
    ws.click("frmRevCatEdit.cmdList");
    ws.row("frmRevCatEdit.grdData", item);
    fill(ws, "frmRevCatEdit", {{"cboRev", "OTHERS"}, {"chkIgnore", "yes"}});
}

void enterRevenueRename(Workstation& ws) {
    ws.open("frmRevCat");
    ws.row("frmRevCat.grdData", "DRUGS");
    ws.click("frmRevCat.cmdEdit");
    fill(ws, "frmRevCat", {{"txtNAme", "PHARMACY"}, {"cboVehNo", "CLINIC"}});
}

/// A prescription that waits for the pharmacist.
void layPrescription(Workstation& ws) {
    layVisit(ws);
    ws.run("insert into hconsulting (consultID, PNo, injprescription) values ('001OFL0000001', 'P/0001', 'STAT')");
}

void enterDispensing(Workstation& ws) {
    ws.open("frmDispensing");
    ws.pick("frmDispensing.cboVehNo", bill);
    fill(ws, "frmDispensing", {{"cboDrug", "ARTEMETHER INJECTION"}, {"txtQty", "3"}, {"txtUsage", "STAT"}});
    ws.click("frmDispensing.cmdAdd");
}

void layStore(Workstation& ws) {
    ws.run("update employees set deptID='PHARM' where empID='E001'");
    ws.run("update StockItemsRetail set QuantityPerUnit='10'");
    ws.run("insert into StockItems (ItemID, UnitPrice) values ('PARACETAMOL 500MG', 705)");
}

void enterStockEntry(Workstation& ws) {
    ws.open("frmStockEntry");
    ws.pick("frmStockEntry.cboVehNo", item);
    ws.set("frmStockEntry.txtFields(0)", "7");
    ws.pick("frmStockEntry.cboDriver", 0);
}

void enterStockEdit(Workstation& ws) {
    ws.open("frmStockEntry");
    ws.pick("frmStockEntry.cboVehNo", item);
    ws.row("frmStockEntry.grdData", 0);
    ws.click("frmStockEntry.cmdEdit");
    ws.set("frmStockEntry.txtFields(0)", "0");
}

const char* const saved = "box Record Succesfully saved";
const char* const receiptShown = "opened frmCashReceipt";

} // namespace

const QList<MoneyAction>& moneyActions() {
    static const QList<MoneyAction> actions =
        QList<MoneyAction>{
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
            {"Collation", layItems, [](Workstation& ws) { findBill(ws.program, bill); }, "frmBillingVerify.cmdOK", "",
             "", false, collate},
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
                 fill(ws, "frmBillingVerify", {{"chkRct", "yes"}, {"cboPayFor", "DRUGS"}, {"chkExact", "yes"}});
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
            {"Removal", layBill,
             [](Workstation& ws) { openAdjustment(ws.program, "frmPriceAdjustVerify", bill, item); },
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
            {"DrugPrice", layVisit, enterDrugPrice, "frmDrugPrice.OKButton", "yes", "box Record Succesfully updated",
             true},
            {"Dispensing", layPrescription, enterDispensing, "frmDispensing.OKButton", "yes", saved},
            {"StockEntry", layStore, enterStockEntry, "frmStockEntry.OKButton", "", saved},
            {"StockEntryEdit",
             [](Workstation& ws) {
                 layStore(ws);
                 enterStockEntry(ws);
                 ws.click("frmStockEntry.OKButton");
             },
             enterStockEdit, "frmStockEntry.OKButton", "", "box Record Succesfully updated", true},
            {"FeeForService", layInsured,
             [](Workstation& ws) {
                 openOnBill(ws, "frmBillPat");
                 ws.set("frmBillPat.cboFFS", "YES");
             },
             "frmBillPat.cmdUpd", "", "", true},
            {"AttendanceEdit", layVisit, enterAttendanceEdit, "frmRecordsOffline.OKButton", "",
             "box Record Succesfully Edited and Updated", true},
            {"AttendanceDelete", layVisit, pickAttendance, "frmRecordsOffline.cmdDel", "yes",
             "box  Record successfully deleted ", true},
            {"MonthRun", layMonth, enterMonth, "frmBillProcessing.cmdProcess", "yes",
             "box 2 Comapny Bills successfully Processed"},
            {"MonthReversal", layProcessed, enterMonthReversal, "frmBillReverseProcessing.cmdProcess", "yes",
             "box 1 Comapny Bills successfully Reversed", true},
            {"Shift", layMonth, enterShift, "frmBillProcessingShift.cmdProcess", "yes",
             "box 3 Patient Bills successfully Shifted to Another Month", true},
            {"Capitate", layMonth, [](Workstation& ws) { tickMonthBills(ws, "frmBillToCapitated", "HARMONY MILLS"); },
             "frmBillToCapitated.cmdProcess", "yes", "box 2 Patient Bills successfully Capitated", true},
            {"BillSplit", laySplittable, enterSplit, "frmBillSplitting.cmdProcess", "yes",
             "box 1 Patient Bill Items successfully Shifted to PRIVATE PATIENTS"},
            {"VerifySummary",
             [](Workstation& ws) {
                 layMonth(ws);
                 ws.run("update hRecords set BillDate='2026-04-01' where recDate='2026-03-14'");
             },
             [](Workstation& ws) {
                 ws.open("frmVerifyBillsInSummary");
                 ws.set("frmVerifyBillsInSummary.DTPicker1", "2026-03-01");
             },
             "frmVerifyBillsInSummary.OKButton", "", "box Records successfully Updated", true},
            {"RevenueRename", layReceipt, enterRevenueRename, "frmRevCat.OKButton", "yes",
             "box Record Succesfully Update", true},
            {"RevenueCorrection", layReceipt, enterRevenueCorrection, "frmRevCatEdit.OKButton", "", "", true},
            {"VoucherPayment", layVoucher, enterVoucher, "frmExpensePay.OKButton", "yes", saved, false, postLeftOver,
             false, "", true},
            {"OutletRequest", layVisit, enterAtOutlet, "frmInvestigatePublic.OKButton", "yes",
             "box Record Succesfully saved !!! Please collate bill"},
            {"OutletPrice", layVisit,
             [](Workstation& ws) {
                 enterOutletRequest(ws.program, "OKORO", "ADA", {});
                 fill(ws, "frmInvestigatePublic", {{"cboCat", "DRUG"}, {"cboDrug", item}, {"txtPrice", "60.50"}});
             },
             "frmInvestigatePublic.cmdAdd", "", "", true},
            {"OutletBill", layOutlet,
             [](Workstation& ws) { enterOutletBill(ws.program, "001/26/000001", "1500.25", "LABORATORY"); },
             "frmBillingPublic.OKButton", "yes", "opened frmCashReceiptLab"},
            {"OutletCredit", layOutlet,
             [](Workstation& ws) {
                 ws.open("frmBillGen");
                 ws.row("frmBillGen.grdData", 0);
                 ws.open("frmBillingPublic");
                 ws.click("frmBillingPublic.cmdList");
                 ws.pick("frmBillingPublic.cboVehNo", "001/26/000001");
                 enterOutletBill(ws.program, {}, {}, {});
             },
             "frmBillingPublic.OKButton", "yes", saved, true},
            {"User", layVisit, enterUser, "frmUsers.cmdApply", "", "box Account creation succeeded.", true},
            {"Role", layVisit,
             [](Workstation& ws) {
                 ws.open("frmRole");
                 fill(ws, "frmRole", {{"txtRID", "103"}, {"txtRName", "AUDIT"}});
             },
             "frmRole.cmdSubmit", "", "", true},
            {"RoleOfUser",
             [](Workstation& ws) {
                 ws.run("insert into ApplicationUsers (Username, AccountStatus) values ('musa', 'X')");
             },
             [](Workstation& ws) {
                 ws.open("frmUserRole");
                 fill(ws, "frmUserRole", {{"cboRoleID", "102"}, {"cboUsername", "musa"}});
             },
             "frmUserRole.cmdSubmit", "", "box Submission Successful.", true},
        } +
        postingActions(layReceipt, layProcessed);
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

QStringList besideTheTrail(QStringList findings) {
    findings.removeIf([](const QString& finding) { return finding.startsWith("save without its trail: "); });
    return findings;
}

QStringList MoneyAction::faultsAmong(QStringList findings) const {
    findings = besideTheTrail(findings);
    if (*leaves)
        findings.removeIf([this](const QString& finding) { return finding.startsWith(QLatin1String(leaves)); });
    return findings;
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
    const struct {
        const char* table;
        const char* counted; ///< conditions whose rows are counted, apart by "; "
        const char* summed = "";
    } figures[] = {
        {"hRecords", "1=1; BillDate is not null; BillDate<>recDate; AttndStatus='SPLIT'; clinicType='ANTENATAL'; "
                     "coyName='0102'; referal='YES'"},
        {"hPatients", "coyName='0102'; ref='YES'", "DebtBF"},
        {"BillAccum", "consultID<>''; billTo='0102'; Capitated='YES'; revType='DRUGS'",
         "attendedto; isBilled; isRct; SubTotal"},
        {"BillingDetails", "1=1; billTo='0102'; BillHead='TABLETS'; revType='DRUGS'", "SubTotal; isRct; isPost"},
        {"Billing", "clientID='0102'; isProcess=1; InvNo='0'", "Amountbilled; AmountPaid"},
        {"BillsForClients", "1=1; isOLD=0", "AmountInvoiced; isPost"},
        {"hDebtors", "1=1", "Amount"},
        {"hRecordsPublic", "1=1"},
        {"hPatientsPublic", "1=1"},
        {"hInvestigate", "1=1"},
        {"hInvestigateFindings", "1=1"},
        {"DrugNHIS", "", "Price"},
        {"hRetainership", "", "Debt"},
        {"Payments", "1=1", "AmountPaid; isPost"},
        {"PaymentTypes", "AccountNo='1220'", "AmountPaid; isPost"},
        {"PaymentDetails", "revType='DRUGS'", "AmountPaid; isPost"},
        {"hRevenueType", "1=1; revType='DRUGS'"},
        {"drugMaster", "revType='DRUGS'"},
        {"hExpenseApprvFinal", "", "AmountPaid; isPaid"},
        {"hExpenseDetailsApprvFinal", "", "AttendedTo; isApprv"},
        {"hExpensePay", "1=1", "Amount"},
        {"hExpensePayDetails", "1=1", "Amount; isPost"},
        {"StockEntryAcct", "TranID is not null", "isPost"},
        {"Tranxaction", "1=1", "Amount"},
        {"BillingDetailsAdjust", "1=1"},
        {"billDiscounts", "", "Amount"},
        {"hApprvCode", "1=1"},
        {"Drugs", "", "Cost"},
        {"StockItemsRetail", "", "UnitsInStock; Reorderlevel"},
        {"StockEntryRetail", "1=1", "Qty"},
        {"hConsultingDetails", "1=1"},
        {"hInjAndDressing", "1=1"},
        {"hMedChartMonitor", "1=1"},
        {"hconsulting", "attendedto=1"},
        {"ApplicationUsers", "1=1"},
        {"Roles", "1=1"},
        {"UserRoles", "1=1"},
    };
    QStringList found;
    const auto find = [&](const QString& query) { found << query + ": " + ws.scalar("select " + query); };
    for (const auto& [table, counted, summed] : figures) {
        for (const QString& condition : QString(counted).split("; ", Qt::SkipEmptyParts))
            find(QStringLiteral("count(*) from %1 where %2").arg(table, condition));
        for (const QString& column : QString(summed).split("; ", Qt::SkipEmptyParts))
            find(QStringLiteral("sum(%2) from %1").arg(table, column));
    }
    for (const char* query :
         {"count(*) as n from Tranxaction", "count(*) as n from TranxactionTemp",
          "sum(Amount) as n from Tranxaction where Amount > 0",
          "sum(Amount) as n from TranxactionTemp where Amount > 0", "count(*) as n from TranFromAppsTrail"})
        found << "ledger: " + ws.accountingScalar(QString("select ") + query);
    return found.join('\n');
}

void layAction(const QString& homeFolder, const MoneyAction& action) {
    Workstation ws(homeFolder);
    ws.layHospital();
    if (!ws.start())
        throw std::runtime_error("the program does not start");
    action.lay(ws);
    Connection billing = ws.billing();
    noteOpening(billing); // rows that were laid by hand
    ws.ui.forgetBoxes();
    ws.ui.takeQuestions();
}

} // namespace orvane
