#include "accounts/frmSuppliersAcct.h"

#include "accounts/RevenueReport.h"
#include "books/SupplierPosting.h"
#include "data/words/Money.h"
#include "session/ListReport.h"

namespace orvane {

namespace {

const QString listTitle = "Suppliers Entries";

} // namespace

frmSuppliersAcct::frmSuppliersAcct(Program& owner)
    : Screen(owner, "frmSuppliersAcct", "Post Suppliers Entries (Payables)") {
    DTPicker1.setRangeEnd(&DTPicker2);
    for (TextBox* shown : {&txtItem, &txtAmt})
        shown->setLocked(true);
    grdData.setToolTip("Double Click a row to change its inventory account");
    grdData.setFormat("Amount", "#,###.00");
    grdData.hide({"SNO"});
}

Layout frmSuppliersAcct::layout() const {
    using namespace orvane::layout;
    return column({flow({field("Invoice Date Between", DTPicker1), field("and", DTPicker2), cell(chkAll), cell(cmdList),
                         stretch(), cell(cmdPost)}),
                   growing(cell(grdData)),
                   group("Inventory Account of an Entry",
                         {flow({field("Supplier's Name", txtItem, 34), field("Amount", txtAmt, 14),
                                field("Inventory Account Type", cboRev, 40), stretch(), cell(OKButton)})}),
                   buttons({&cmdView, &cmdExport}, {&CancelButton})});
}

void frmSuppliersAcct::Form_Load() {
    DTPicker1.setDate(session.gServerDate);
    DTPicker2.setDate(session.gServerDate);
    if (session.gAcctPostOn)
        fillAccounts();
}

void frmSuppliersAcct::fillAccounts() {
    cboRev.addItem("");
    Connection connection = program.openBilling();
    Recordset account(connection, Sql("select distinct AccountName,AccountNo from vwAccountsInfo where "
                                      "groupID='1260000'  order by AccountName"));
    for (; !account.eof(); account.moveNext())
        cboRev.addItem(account.text("AccountName") + '[' + account.text("AccountNo") + ']', account.text("AccountNo"));
}

void frmSuppliersAcct::cboRev_Click() {
    m_account = cboRev.picked<QString>().value_or(QString());
}

Sql frmSuppliersAcct::chosen() const {
    const auto ofDays = [this](Sql&& sql) {
        return std::move(sql << DTPicker1.date() << "' and '" << DTPicker2.date() << "'");
    };
    if (chkAll.isChecked())
        return ofDays(Sql("select SNO, InvoiceDate,InvoiceNo, SupplierName, AccountNo,Amount,AccountName as "
                          "InvAcctName,InvAcctNo, POID,isPost FROM  vwStockEntryAcct where Invoicedate between '"));
    return ofDays(
        Sql("select SNO, InvoiceDate,InvoiceNo, SupplierName, AccountNo,Amount,AccountName as "
            "InvAcctName,InvAcctNo, POID,isPost FROM  vwStockEntryAcct where isPost=0 and Invoicedate between '"));
}

void frmSuppliersAcct::cmdList_Click() {
    if (!passes({{DTPicker1.isEmpty() || DTPicker2.isEmpty(), "Please specify Invoice Date Range", &DTPicker1}}))
        return;
    Connection connection = program.openBilling();
    grdData.load(Recordset(connection, chosen()));
}

void frmSuppliersAcct::grdData_DblClick() {
    if (grdData.currentRow() < 0)
        return;
    m_SNo = grdData.text("SNO").toLongLong();
    txtItem.setText(grdData.text("SupplierName"));
    txtAmt.setText(formatTwoDecimals(parseAmount(grdData.text("Amount")).value_or(0)));
    cboRev.setFocus();
}

void frmSuppliersAcct::clearEntry() {
    m_SNo = 0;
    txtItem.clear();
    txtAmt.clear();
    cboRev.setListIndex(-1);
    m_account.clear();
}

void frmSuppliersAcct::OKButton_Click() {
    save<Saved>({.button = OKButton,
                 .action = "INVENTORY ACCOUNT",
                 .allowed =
                     [this] {
                         return passes(
                             {{txtItem.text().trimmed().isEmpty(), "Specify Supplier's Name for this Item", &grdData},
                              {txtAmt.text().trimmed().isEmpty(), "Specify Amount for this Item", &grdData},
                              {session.gAcctPostOn && m_account.isEmpty(), "Specify Inventory Account No", &cboRev}});
                     },
                 .step = [this](Books& books) -> Given<Saved> {
                     changeInventoryAccount(books, m_SNo, m_account);
                     return Saved{};
                 },
                 .follow =
                     [this](const Saved&) {
                         cmdList_Click();
                         clearEntry();
                     }});
}

bool frmSuppliersAcct::isListShown() {
    return passes({{grdData.rowCount() == 0, "Display records to post! Click on the 'GetList' button", &cmdList}});
}

void frmSuppliersAcct::cmdPost_Click() {
    if (chkAll.isChecked()) {
        program.box("Display UnPosted records only! the checkbox will be unticked");
        chkAll.setChecked(false);
        cmdList_Click();
    }
    if (!isListShown() || !session.gAcctPostOn)
        return;
    try {
        post();
    } catch (const DataError& fault) {
        ui().setBusy(false);
        program.box("Could not Save to Account Module!!! \r\n\r\n" + fault.description());
    }
}

void frmSuppliersAcct::post() {
    ui().setBusy(true);
    LedgerDesk ledger = program.ledgerDesk();
    const Given<int> posted = ledger.post(supplierPosting(DTPicker1.date(), DTPicker2.date()));
    ui().setBusy(false);
    for (const QString& settled : ledger.takeSettled())
        program.box(settled);
    program.box(posted ? QStringLiteral("Records Successfully Posted") : QString()); // a refusal has no words here
    cmdList_Click();
}

void frmSuppliersAcct::cmdView_Click() {
    if (!isListShown())
        return;
    Connection connection = program.openBilling();
    viewList(program, "rptStockEntryAcct", listTitle, Recordset(connection, chosen()));
}

void frmSuppliersAcct::cmdExport_Click() {
    if (!isListShown())
        return;
    Connection connection = program.openBilling();
    exportRows(program, Recordset(connection, chosen()), listTitle);
}

} // namespace orvane
