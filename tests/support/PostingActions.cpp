#include "support/PostingActions.h"

#include "books/InvoicePosting.h"
#include "books/Period.h"
#include "books/VoucherPosting.h"
#include "data/rows/SharedTables.h"

namespace orvane {

namespace {

void (*layAnyReceipt)(Workstation&);
void (*layAnyMonth)(Workstation&);

void enterDays(Workstation& ws, const QString& form) {
    ws.open(form);
    ws.set(form + ".DTPicker1", "2026-03-01");
    ws.set(form + ".DTPicker2", "2026-03-31");
}

void layCash(Workstation& ws) {
    layAnyReceipt(ws);
    layLedger(ws);
}

void enterCash(Workstation& ws) {
    enterDays(ws, "frmRevCashAcct");
    ws.click("frmRevCashAcct.cmdList");
}

void enterCashAccount(Workstation& ws) {
    enterCash(ws);
    ws.row("frmRevCashAcct.grdData", 0);
    ws.dblClick("frmRevCashAcct.grdData");
    ws.pick("frmRevCashAcct.cboRev", "BANK[1220]");
}

void enterHandShare(Workstation& ws) {
    enterDays(ws, "frmRevCashAdjust");
    ws.set("frmRevCashAdjust.cboGroup", "UnDistributed Cash");
    ws.click("frmRevCashAdjust.cmdList");
    ws.row("frmRevCashAdjust.grdData", 0);
    ws.dblClick("frmRevCashAdjust.grdData");
    ws.set("frmRevCashAdjust.cboRev", "DRUGS");
}

void enterInvoices(Workstation& ws) {
    ws.open("frmBillProcessingPost");
    ws.set("frmBillProcessingPost.cboMonth", "March");
    ws.set("frmBillProcessingPost.cboYear", "2026");
}

/// Invoices that were flagged are posted as left over; the others wait for their screen.
void completeInvoices(Workstation& ws) {
    postLeftOver(ws);
    enterInvoices(ws);
    ws.click("frmBillProcessingPost.cmdPost");
    ws.ui.forgetBoxes();
}

void laySuppliers(Workstation& ws) {
    layLedger(ws);
    ws.run("insert into suppliers (supplierID, SupplierName, AccountNo) values ('0001', 'MEDICO', '2100')");
    ws.run("insert into StockEntryAcct (EntryDate, InvoiceDate, InvoiceNo, supplierID, InvAcctNo, Amount) values "
           "('2026-03-12','2026-03-10','I1','0001','1260',100.1), ('2026-03-12','2026-03-10','I1','0001','1260',50)");
}

void enterSuppliers(Workstation& ws) {
    enterDays(ws, "frmSuppliersAcct");
    ws.click("frmSuppliersAcct.cmdList");
}

/// What was noted and not posted waits for its screen.
void completeSuppliers(Workstation& ws) {
    postLeftOver(ws);
    enterSuppliers(ws);
    ws.click("frmSuppliersAcct.cmdPost");
    ws.ui.forgetBoxes();
}

} // namespace

void layLedger(Workstation& ws) {
    Connection billing = ws.billing(), accounting = ws.accounting();
    accounting.run("update AccountMonth set Period='2026/03'");
    accounting.run("insert into ChartOfAccounts (AccountNo, AccountName, groupID) values ('1220','BANK','1220000'), "
                   "('1260','DRUG STOCK','1260000'), ('2100','MEDICO','2100000'), ('9999','SUSPENSE','2000000')");
    keepPeriodsOpen(accounting, QDate(2026, 3, 14));
    copySharedTables(billing, accounting);
}

void postLeftOver(Workstation& ws) {
    LedgerDesk desk = ws.program.ledgerDesk();
    desk.settle();
    postInvoicesLeftOver(desk);
    postVouchersLeftOver(desk);
}

QList<MoneyAction> postingActions(void (*layReceipt)(Workstation&), void (*layProcessed)(Workstation&)) {
    layAnyReceipt = layReceipt;
    layAnyMonth = layProcessed;
    const char* const posted = "box Records Successfully Posted";
    return {
        {.name = "CashPosting",
         .lay = layCash,
         .enter = enterCash,
         .button = "frmRevCashAcct.cmdView",
         .asks = "yes",
         .report = posted,
         .complete = postLeftOver,
         .posts = true},
        {.name = "CashAccount",
         .lay = layCash,
         .enter = enterCashAccount,
         .button = "frmRevCashAcct.OKButton",
         .asks = "",
         .report = "",
         .brief = true},
        {.name = "HandShare",
         .lay =
             [](Workstation& ws) {
                 layCash(ws);
                 ws.run("delete from PaymentDetails where SNo > 0");
             },
         .enter = enterHandShare,
         .button = "frmRevCashAdjust.OKButton",
         .asks = "",
         .report = "",
         .brief = true},
        {.name = "InvoicePosting",
         .lay =
             [](Workstation& ws) {
                 layAnyMonth(ws);
                 layLedger(ws);
             },
         .enter = enterInvoices,
         .button = "frmBillProcessingPost.cmdPost",
         .asks = "",
         .report = "box 2 Company Records Successfully Posted",
         .complete = completeInvoices,
         .posts = true,
         .leaves = "invoice flagged without its entry: "},
        {.name = "SupplierPosting",
         .lay = laySuppliers,
         .enter = enterSuppliers,
         .button = "frmSuppliersAcct.cmdPost",
         .asks = "",
         .report = posted,
         .complete = completeSuppliers,
         .posts = true},
    };
}

} // namespace orvane
