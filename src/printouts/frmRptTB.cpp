#include "printouts/frmRptTB.h"

namespace orvane {

namespace {

const QString noReport = "No Report for the specified Item";
const QString everyAccount = "(ALL)";

QString titleOf(const QString& kind) {
    static const QHash<QString, QString> titles = {{"TB2", "Trial Balance by Period (Actual)"},
                                                   {"GL", "General Ledger"}};
    return titles.value(kind, "Trial Balance");
}

QString shown(QDate day) {
    return day.toString("dd/MM/yyyy");
}

} // namespace

frmRptTB::frmRptTB(Program& owner)
    : ReportScreen(owner, "frmRptTB", titleOf(owner.session.sRptKind)), m_kind(session.sRptKind) {
    if (isLedger() || isOfDays())
        DTPicker1.setRangeEnd(&DTPicker2);
    DTPicker1.setVisible(isLedger() || isOfDays());
    cboAcct.setVisible(isLedger());
    cmdGL.setVisible(isLedger());
    cmdDisplay.setVisible(!isLedger());
}

Layout frmRptTB::layout() const {
    using namespace orvane::layout;
    const bool oneDay = !isLedger() && !isOfDays();
    return column({row({field("Entries Between", DTPicker1), field(oneDay ? "At the End of" : "and", DTPicker2),
                        field("Account", cboAcct, 50), stretch()}),
                   growing(cell(crViewer1)),
                   isLedger() ? buttons({&cmdDisplay}, {&CancelButton, &cmdGL})
                              : buttons({&cmdGL}, {&CancelButton, &cmdDisplay})});
}

void frmRptTB::Form_Load() {
    const QDate today = session.gServerDate;
    DTPicker1.setDate(QDate(today.year(), today.month(), 1));
    // A month's invoices are dated on its last day, whenever they are posted.
    DTPicker2.setDate(isLedger() || isOfDays() ? today : QDate(today.year(), today.month(), today.daysInMonth()));
    if (isLedger())
        fillAccounts();
}

void frmRptTB::fillAccounts() {
    cboAcct.addItem(everyAccount, QString());
    Connection ledger = program.openAccounting();
    Recordset account(ledger, Sql("select AccountNo,AccountName from ChartOfAccounts order by AccountNo"));
    for (; !account.eof(); account.moveNext())
        cboAcct.addItem(account.text("AccountNo") + "  " + account.text("AccountName"), account.text("AccountNo"));
    cboAcct.setListIndex(0);
}

bool frmRptTB::isReady() {
    return passes({{isOfDays() && DTPicker1.isEmpty(), "Please specify Start Date", &DTPicker1},
                   {DTPicker2.isEmpty(), "Please specify Date", &DTPicker2}});
}

void frmRptTB::cmdDisplay_Click() {
    if (!isReady())
        return;
    Connection ledger = program.openAccounting();
    if (isOfDays())
        showMovements(ledger);
    else
        showTrialBalance(ledger);
}

/// The statement of each account's sum until the last day, `sum`, ordered by nothing yet. Each is summed before it gets
/// its name: an index holds the entries in this order.
Sql frmRptTB::accountSums(const Sql& columns, const Sql& sum) const {
    const auto ofTable = [&](SqlLiteral table) {
        return Sql("select AccountNo,") << sum << " as Amount from " << table << " where " << ofAccount()
                                        << "TranDate<='" << DTPicker2.date() << "' group by AccountNo";
    };
    return Sql("select t.AccountNo as Accountno,a.AccountName,")
           << columns << "sum(t.Amount) as Amount from (" << ofTable("Tranxaction") << " union all "
           << ofTable("TranxactionTemp")
           << ") t left join ChartOfAccounts a on a.AccountNo=t.AccountNo group by t.AccountNo,a.AccountName";
}

void frmRptTB::showTrialBalance(Connection& ledger) {
    Recordset rows;
    if (!ledger.call("getTrialBalance", {}).eof())
        rows = Recordset(ledger, accountSums({}, Sql("sum(Amount)")) << " order by Accountno");
    showReport({.file = "\\TrialBalance.rpt",
                .rows = rows,
                .nothing = noReport,
                .title = "Trial Balance",
                .values = {{"Period", "at the end of " + shown(DTPicker2.date())}}});
}

void frmRptTB::showMovements(Connection& ledger) {
    const QDate first = DTPicker1.date(), last = DTPicker2.date();
    showReport({.file = "\\TrialBalanceByPeriod.rpt",
                .rows = Recordset(ledger, Sql("select distinct AccountName,Accountno,sum(Amount) as Amount from "
                                              "vwTrialBalanceByPeriod where TranDate between'")
                                              << first << "' and '" << last
                                              << "' group by AccountName,Accountno order by AccountNo"),
                .nothing = noReport,
                .textObjects = {{"text8", "Trial Balance between " + shown(first) + " and " + shown(last)}},
                .values = {{"Period", periodWords(first, last)}}});
}

Sql frmRptTB::ofAccount() const {
    const QString account = cboAcct.picked<QString>().value_or(QString());
    return account.isEmpty() ? Sql() : Sql("Accountno='") << account << "' and ";
}

/// An account opens with what stood on it before the first day, nothing included, and goes on with its entries.
Sql frmRptTB::entries(QDate first) const {
    const Sql opening = Sql("cast('") << first << "' as date) as TranDate,0 as Kind,0 as Place,'' as TranID,"
                                      << "'Opening balance' as Description,";
    const Sql before = Sql("sum(case when TranDate<'") << first << "' then Amount else 0 end)";
    return accountSums(opening, before)
           << " union all select Accountno,AccountName,TranDate,1 as Kind,Place,TranID,Description,Amount "
           << "from vwGeneralLedger where " << ofAccount() << "TranDate between '" << first << "' and '"
           << DTPicker2.date() << "' order by Accountno,TranDate,Kind,Place";
}

/// Without a first day, from the first entry on.
void frmRptTB::cmdGL_Click() {
    if (!isReady())
        return;
    Connection ledger = program.openAccounting();
    const Recordset days = ledger.call("getTrialBalance", {});
    const QDate first = DTPicker1.isEmpty() && !days.eof() ? days.date("FirstDay") : DTPicker1.date();
    Recordset rows;
    if (!days.eof())
        rows = Recordset::paged(std::move(ledger), entries(first));
    showReport({.file = "\\rptGL.rpt",
                .rows = rows,
                .nothing = noReport,
                .title = "General Ledger",
                .values = {{"Period", periodWords(first, DTPicker2.date())}}});
}

} // namespace orvane
