#include "accounts/frmRevCashAcct.h"

#include "accounts/RevenueReport.h"
#include "books/CashSpread.h"

namespace orvane {

namespace {

const QString everybody = "(ALL)";

} // namespace

frmRevCashAcct::frmRevCashAcct(Program& owner) : Screen(owner, "frmRevCashAcct", "Cash Transfer to Accounts") {
    DTPicker1.setRangeEnd(&DTPicker2);
    for (TextBox* shown : {&txtItem, &txtDate, &txtType})
        shown->setLocked(true);
    grdData.setToolTip("Double Click a row to change its bank account");
    grdData.setFormat("Amount", "#,###.00");
    cboGroup.setToolTip("(ALL), or a client as NAME [CODE]");
}

Layout frmRevCashAcct::layout() const {
    using namespace orvane::layout;
    return column(
        {cell(lblHead),
         flow({field("Attendance Between", DTPicker1), field("and", DTPicker2), cell(cmdList), stretch(),
               cell(cmdView)}),
         growing(cell(grdData)),
         group("Bank Account of a Line",
               {flow({field("Account No", txtItem, 12), field("Date", txtDate, 11), field("Pay Type", txtType, 11),
                      field("Bank Acct No", cboRev, 40), stretch(), cell(OKButton)})}),
         flow({field("Company Name", cboGroup, 40), cell(cmdCash), cell(cmdDetails), cell(cmdExport), stretch(),
               cell(CancelButton)})});
}

void frmRevCashAcct::Form_Load() {
    DTPicker1.setDate(session.gServerDate);
    DTPicker2.setDate(session.gServerDate);
    fillBanks();
    cmdList_Click();
}

void frmRevCashAcct::fillBanks() {
    cboRev.addItem("");
    Connection connection = program.openBilling();
    Recordset bank(connection,
                   Sql("select SNo,AccountNo,AccountName from vwAccountsInfo where groupID='1220000'  order "
                       "by AccountName "));
    for (; !bank.eof(); bank.moveNext())
        cboRev.addItem(bank.text("AccountName") + '[' + bank.text("AccountNo") + ']', bank.text("AccountNo"));
}

void frmRevCashAcct::cboRev_Click() {
    m_account = cboRev.picked<QString>().value_or(QString());
}

/// "NAME [CODE]"; "(ALL)" stands for itself.
void frmRevCashAcct::cboGroup_Change() {
    const QString text = cboGroup.text().trimmed();
    m_client = text == everybody ? everybody : text.section('[', -1).section(']', 0, 0).trimmed();
    m_clientOf = text == everybody ? everybody : text.section('[', 0, -2).trimmed();
}

bool frmRevCashAcct::isRangeGiven() {
    return passes({{DTPicker1.isEmpty() || DTPicker2.isEmpty(), "Please specify Attendance Date Range", &DTPicker1}});
}

bool frmRevCashAcct::isGroupGiven(const QString& none) {
    cboGroup_Change();
    return isRangeGiven() && passes({{cboGroup.text().isEmpty(), none, &cboGroup}});
}

void frmRevCashAcct::cmdList_Click() {
    if (!isRangeGiven())
        return;
    ui().setBusy(true);
    rebuildUnlike(program.desk(), DTPicker1.date(), DTPicker2.date());
    Connection connection = program.openBilling();
    grdData.load(Recordset(
        connection, Sql("select ReceiptDate,AmountPaid as Amount,PayType,AccountToDebit,case isPost when 0 then "
                        "'NO' else 'YES' end as Posted from vwPaymentTypesSummGrid where ReceiptDate between '")
                        << DTPicker1.date() << "' and '" << DTPicker2.date() << "' order by ReceiptDate,PayType"));
    ui().setBusy(false);
}

void frmRevCashAcct::grdData_DblClick() {
    if (grdData.currentRow() < 0)
        return;
    m_cash = {grdData.date("ReceiptDate"), grdData.text("AccountToDebit"), grdData.text("PayType")};
    txtItem.setText(m_cash.account);
    txtDate.setText(m_cash.date.toString("dd/MM/yyyy"));
    txtType.setText(m_cash.payType);
    cboRev.setFocus();
}

void frmRevCashAcct::clearEntry() {
    m_account.clear();
    m_cash = {};
    for (TextBox* shown : {&txtItem, &txtDate, &txtType})
        shown->clear();
    cboRev.setListIndex(0);
}

void frmRevCashAcct::OKButton_Click() {
    save<Saved>({.button = OKButton,
                 .action = "CASH ACCOUNT",
                 .allowed =
                     [this] {
                         return passes(
                             {{txtItem.text().trimmed().isEmpty(), "Specify Account No for this Item", &grdData},
                              {cboRev.text().isEmpty(), "Please Specify Bank Acct No", &cboRev},
                              {txtDate.text().trimmed().isEmpty(), "Specify Date for this Item", &grdData},
                              {txtType.text().trimmed().isEmpty(), "Specify Pay Type for this Item", &grdData},
                              {m_account.isEmpty(), "Invalid Acct No", &cboRev}});
                     },
                 .step = [this](Books& books) { return changeCashAccount(books, m_cash, m_account); },
                 .follow =
                     [this](const Saved&) {
                         cmdList_Click();
                         clearEntry();
                     }});
}

void frmRevCashAcct::cmdView_Click() {
    if (ui().question("Are you sure to Post?", "Post to Accounts", Consent::Keeps,
                      DTPicker1.date().toString("dd/MM/yyyy") + " to " + DTPicker2.date().toString("dd/MM/yyyy")) &&
        session.gAcctPostOn)
        post();
}

void frmRevCashAcct::post() {
    ui().setBusy(true);
    LedgerDesk ledger = program.ledgerDesk();
    const Given<int> posted = ledger.post(cashPosting(ledger.billing().context(), DTPicker1.date(), DTPicker2.date()));
    ui().setBusy(false);
    for (const QString& settled : ledger.takeSettled())
        program.box(settled);
    program.box(posted ? QStringLiteral("Records Successfully Posted") : refusalText(posted.refusal()));
    if (posted || posted.refusal() == Refusal::NothingToPost)
        cmdList_Click();
}

/// What a report asks of its rows in front of their dates.
Sql frmRevCashAcct::ofClient() const {
    return m_client == everybody ? Sql() : Sql("RetainCode = '") << m_client << "' and    ";
}

void frmRevCashAcct::cmdCash_Click() {
    if (isGroupGiven("Specify Patient Category"))
        showRevenueReport(program, {"CASH",
                                    Sql("SELECT     ReceiptDate, ReceiptNo, AmountPaid, RevType, billNO, AmountToPay, "
                                        "AccountNo FROM vwPaymentDetails where ")
                                        << ofClient() << "ReceiptDate Between '" << DTPicker1.date() << "' And '"
                                        << DTPicker2.date() << "'",
                                    m_clientOf, DTPicker1.date(), DTPicker2.date()});
}

void frmRevCashAcct::cmdDetails_Click() {
    if (isGroupGiven("Specify Patient Category"))
        showRevenueReport(program, {"DETAIL",
                                    Sql("select * from vwBillingDetailsForRev where ")
                                        << ofClient() << "date Between '" << DTPicker1.date() << "' And '"
                                        << DTPicker2.date() << "'",
                                    m_clientOf, DTPicker1.date(), DTPicker2.date()});
}

void frmRevCashAcct::cmdExport_Click() {
    if (isGroupGiven("Specify Patient Company"))
        exportRevenue(program, DTPicker1.date(), DTPicker2.date(), m_client);
}

} // namespace orvane
