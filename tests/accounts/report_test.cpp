// The accounts on paper: what a page totals is what the books hold.
#include "data/words/Money.h"
#include "forms/ReportViewer.h"
#include "reports/StockTemplates.h"
#include "support/ScreenTest.h"

namespace orvane {
namespace {

class AccountsOnPaper : public ScreenTest {
protected:
    AccountsOnPaper() : ScreenTest("frmRptTB") {}

    void prepare() override {
        renewStockTemplates(home.folder());
        layAccounts({"'1210', 'CASH', '1220000'", "'4110', 'INCOME', '4110000'", "'4120', 'O''ILL SALES', '4110000'"});
        Connection ledger = ws.accounting();
        for (const auto& [table, legs] :
             {std::pair("TranxactionTemp", "('1', '1210', '2026-02-10', 300.3, 'A'), ('1', '4110', '2026-02-10', "
                                           "-100.1, 'A'), ('1', '4120', '2026-02-10', -200.2, 'A')"),
              std::pair("Tranxaction", "('2', '1210', '2026-03-01', 50, 'B'), ('2', '4110', '2026-03-01', -50, 'B'), "
                                       "('3', '1210', '2026-03-14', -20.05, 'C'), ('3', '9999', '2026-03-14', 20.05, "
                                       "'C'), ('4', '1210', '2026-03-15', 7, 'D'), ('4', '4110', '2026-03-15', -7, "
                                       "'D')")})
            ledger.run(QStringLiteral("insert into %1 (TranID, AccountNo, TranDate, Amount, Description) values %2")
                           .arg(QLatin1StringView(table), QLatin1StringView(legs)));
    }
    void openKind(const char* entry) {
        ws.menu(QLatin1String(entry));
        takeInHand("frmRptTB");
    }
    /// What the last page says, in order.
    QString page() {
        PageSource& report = *dynamic_cast<ReportViewer&>(*ws.program.activeForm()->find("crViewer1")).report();
        report.finish();
        QStringList words;
        for (const PageText& text : report.page(report.pagesMade() - 1).texts)
            words << text.text;
        return words.join('|');
    }
    void expectPage(const QString& words) { EXPECT_TRUE(page().contains(words)) << page().toStdString(); }
};

TEST_P(AccountsOnPaper, ATrialBalanceHasAllAccountsAndSumsAlike) {
    openKind("mnuTB");
    set("DTPicker2", "");
    EXPECT_EQ(told("cmdDisplay"), "Please specify Date");
    set("DTPicker2", "2026-03-14");
    click("cmdDisplay");
    EXPECT_EQ(ui.reports.value(0).file, "\\TrialBalance.rpt");
    expectPage("Balances at the end of 14/03/2026|");
    expectPage("1210|CASH|330.25|4110|INCOME|150.10|4120|O'ILL SALES|200.20|9999|20.05|"
               "Total|350.30|350.30|Debits less credits|0.00|"); // an account that the chart lost is not left out

    openKind("mnuTBBP");
    set("DTPicker1", "");
    EXPECT_EQ(told("cmdDisplay"), "Please specify Start Date");
    set("DTPicker1", "2026-03-01");
    set("DTPicker2", "2026-03-13");
    click("cmdDisplay");
    expectPage("Trial Balance between 01/03/2026 and 13/03/2026|");
    expectPage("1210|CASH|50.00|4110|INCOME|50.00|Total|50.00|50.00|Debits less credits|0.00|");
    set("DTPicker2", "2026-03-01");
    set("DTPicker1", "2026-02-28");
    ws.accounting().run("delete from Tranxaction");
    EXPECT_EQ(told("cmdDisplay"), "No Report for the specified Item");
}

TEST_P(AccountsOnPaper, TheLedgerRunsFromOpeningToClosing) {
    openKind("mnuGL");
    set("DTPicker1", "2026-03-01");
    click("cmdGL");
    expectPage("1210  CASH|01/03/2026|Opening balance|300.30|300.30|01/03/2026|2|B|50.00|350.30|"
               "14/03/2026|3|C|20.05|330.25|Closing balance|350.30|20.05|330.25|");
    expectPage("9999  |01/03/2026|Opening balance|0.00|14/03/2026|3|C|20.05|20.05|");
    expectPage("All accounts shown|370.35|370.35|0.00|");
    pick("cboAcct", "4110");
    set("DTPicker1", "");
    click("cmdGL");
    expectPage("4110  INCOME|10/02/2026|Opening balance|0.00|10/02/2026|1|A|100.10|-100.10|");
    for (const char* table : {"Tranxaction", "TranxactionTemp"})
        ws.accounting().run("delete from " + QString(table));
    EXPECT_EQ(told("cmdGL"), "No Report for the specified Item");
}

TEST_P(AccountsOnPaper, WhatCashiersTookAndPaidIsTotalled) {
    ws.run("insert into Payments (ReceiptNo, ReceiptDate, ReceivedBy, PayType, AmountPaid) values "
           "('R1', '2026-03-14', 'E001', 'CASH/POS', 30.1), ('R2', '2026-03-14', 'SISTER ADE', 'CASH', 20.2), "
           "('R3', '2026-03-14', 'E001', 'CASH', -5), ('R4', '2026-03-13', 'E001', 'CASH', 1000)");
    ws.run("insert into PaymentTypes (ReceiptNo, ReceiptDate, PayType, AmountPaid) values ('R1', '2026-03-14', 'CASH', "
           "10), ('R1', '2026-03-14', 'POS', 20.1), ('R2', '2026-03-14', 'CASH', 20.2), ('R3', '2026-03-14', 'CASH', "
           "-5)");
    ws.run("insert into hExpensePay (vouchNo, PayDate, Amount, Paidby) values ('V1', '2026-03-14', 70.5, 'amina.b'), "
           "('V1', '2026-03-14', 70.5, 'amina.b')");
    open("FrmRptPaymentsByCashier");
    for (const auto& [button, total] : {std::pair("cmdDisplay", "45.30"), std::pair("cmdDetails", "45.30")}) {
        click(button);
        expectPage(QLatin1String(total));
    }
    pick("cboCust", "SISTER ADE");
    click("cmdDisplay");
    expectPage("1|receipts in all|20.20|");
    set("DTPicker2", "");
    EXPECT_EQ(told("cmdDisplay"), "Please specify Start/End Date");
    set("DTPicker1", "2026-01-01");
    set("DTPicker2", "2026-01-02");
    EXPECT_EQ(told("cmdDetails"), "No Report for the specified Cashier");

    open("frmRptPaymentVoucherByCashier");
    click("cmdDisplay");
    expectPage("Payment Vouchers between 14/03/2026 and 14/03/2026|");
    expectPage("2|payments|141.00|"); // two equal payments are two
    set("DTPicker2", "2026-03-13");
    set("DTPicker1", "2026-03-13");
    EXPECT_EQ(told("cmdDisplay"), "No Report for the specified Expense Date");
}

TEST_P(AccountsOnPaper, EachKindOfRevenueHasItsTemplate) {
    ws.run("insert into BillingDetails (SNo, billNo, dtDate, drgName, SubTotal, revType, treatedBy) values "
           "(1, 'B', '2026-03-14', 'CARD', 0.1, 'DRUGS', 'D001'), (2, 'B', '2026-03-14', 'CARD', 0.2, null, null)");
    ws.run("insert into PaymentDetails (ReceiptNo, ReceiptDate, revType, AmountPaid) values "
           "('R1', '2026-03-14', 'DRUGS', 12), ('R2', '2026-03-13', 'DRUGS', 0.5)");
    ws.run("insert into Payments (ReceiptNo, ReceiptDate, AmountPaid) values ('R8', '2026-03-14', 5), ('R9', "
           "'2026-03-14', 7.25)");
    const Sql lines("select * from vwBillingDetailsForRev"), cash("select * from vwPaymentDetails"),
        receipts("select ReceiptDate ,ReceiptNo ,AmountPaid ,paymentFor,billNO   from Payments");
    const struct {
        const char* mode;
        const Sql& rows;
        const char* file;
        const char* total;
    } cases[] = {{"SUMMARY", lines, "\\rptRevenue.rpt", "2|lines in all|0.30|"},
                 {"DETAIL", lines, "\\rptRevenue2.rpt", "2|lines|0.30|"},
                 {"CONS-DETAIL", lines, "\\rptRevenueCons.rpt", "Total of No consultant named|0.20|"},
                 {"CASH", cash, "\\rptRevenueCash.rpt", "2|shares of receipts|12.50|"},
                 {"SUMMARY", receipts, "\\rptRevenueReceipts.rpt", "14/03/2026|2|12.25|"},
                 {"DETAIL", receipts, "\\rptRevenueReceipts2.rpt", "2|receipts|12.25|"}};
    Session& session = ws.program.session;
    session.sRevRptClient = "(ALL)";
    session.dRevRptFrom = session.dRevRptTo = QDate(2026, 3, 14);
    for (const auto& one : cases) {
        session.sRevRptMode = one.mode;
        session.sRevRptSQL = one.rows;
        open("frmRevPrintRpt");
        EXPECT_EQ(ui.reports.last().file, one.file);
        expectPage("All clients|from 14/03/2026 to 14/03/2026|");
        expectPage(one.total);
        close();
    }
    session.sRevRptSQL << " where 1=2";
    open("frmRevPrintRpt");
    EXPECT_BOXES(ui, {"No Report for the specified Clients"});
}

TEST_P(AccountsOnPaper, WhatIsNotDistributedIsListedAndPrinted) {
    ws.run("insert into Payments (ReceiptNo, ReceiptDate, AmountPaid) values ('R1', '2026-03-14', 100), ('R2', "
           "'2026-03-14', 50), ('R3', '2026-03-14', 10), ('R4', '2026-03-14', 0.3)");
    ws.run("insert into PaymentDetails (ReceiptNo, ReceiptDate, AmountPaid) values ('R1', '2026-03-14', 99.9), ('R3', "
           "'2026-03-14', 12), ('R4', '2026-03-14', 0.1), ('R4', '2026-03-14', 0.2)");
    const struct {
        int item;
        const char* listed;
        const char* printed;
    } cases[] = {{1, "R2", "1|receipts|50.00|"}, {2, "R1 R3", "1|receipts|0.10|"}};
    for (const auto& one : cases) {
        open("frmRevCashAdjust");
        pick("cboGroup", one.item);
        QStringList listed;
        for (const QString& line : ws.rows("frmRevCashAdjust.grdData").mid(1))
            listed << line.section('\t', 1, 1);
        EXPECT_EQ(listed.join(" "), one.listed);
        click("cmdDetails");
        expectPage(one.printed);
        ws.program.loadedForm("frmRevPrintRpt")->unload();
        close();
    }
}

ORVANE_ON_EACH_ENGINE(AccountsOnPaper);

} // namespace
} // namespace orvane
