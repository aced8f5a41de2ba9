#include "support/Print.h"
#include "support/ScreenTest.h"

#include <QDir>
#include <QFile>

namespace orvane {

class Vouchers : public ScreenTest {
protected:
    Vouchers() : ScreenTest("frmExpensePay") {}

    void prepare() override {
        layAccounts({"'1210', 'CASH', '1210000'", "'1220', 'BANK A', '1220000'", "'5310', 'FUEL', '5310000'"});
        ws.run("insert into hExpenseApprvFinal (vouchNo, ApprvDate, ReceivedBy, Amount, isPaid, Suppres) values "
               "('V1', '2026-03-10', 'MUSA', 701, 0, 0), ('V2', '2026-03-11', 'ADA', 10, 1, 0), "
               "('V3', '2026-03-12', 'OBI', 10, 0, 1)");
        ws.run("insert into hExpenseDetailsApprvFinal (vouchNo, ItemName, ItemCode, Description, Qty, Price, SubTotal) "
               "values ('V1', 'DIESEL', '001', 'FOR GENERATORS', 2, 250.25, 500.5), ('V1', 'PAPER', '002', '', 1, 200, "
               "200), ('V2', 'X', '', '', 1, 10, 10)");
    }
    /// The first item of the first voucher, in cash, ready to be saved.
    void enterOne() {
        open();
        click("cmdAdd");
        pick("cboCat", 0);
        pick("cboDrug", 0);
        set("cboPay", "CASH");
        pick("cboExpense", 0);
        pick("cboBank", 0);
        click("cmdGrid");
        ui.answer(true);
    }
    void write(const QString& name, const char* text) {
        QDir().mkpath(home.folder() + "/journal");
        QFile file(home.folder() + "/journal/" + name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(text) > 0);
    }
    QString voucher() {
        return rows("select AmountPaid,Paidby,isPaid,isDone from hExpenseApprvFinal where vouchNo='V1'");
    }
};

TEST_P(Vouchers, AnApprovedVoucherIsPaidItemByItemAndOnce) {
    open();
    click("cmdAdd");
    EXPECT_EQ(items("cboCat").join('/'), "MUSA @10/03/2026 [V1]");
    EXPECT_EQ(told("OKButton"), "Invalid  Recipient Name! Voucher No Required ");
    pick("cboCat", 0);
    EXPECT_EQ(shown("txtVouch lblAmount lblPaid lblItem grdData"), "V1|701.00|0.00|2 Approved Items|2 rows");
    expectChecks({{nullptr, nullptr, "Please enter Pay Type "},
                  {"cboPay", "CHEQUE", "Please enter Value Date"},
                  {"dtValue", "2026-03-20", " Cheque No Required "},
                  {"txtCheque", "0012", "Please enter Expense Acct Name (Acct to Debit) "},
                  {"cboExpense", "FUEL[5310]", "Please enter paying Acct Name (Acct to Credit)"},
                  {"cboBank", "BANK A[1220]", "Please specify Quantity Needed in Figures "},
                  {"txtQty", "1", "Please specify Unit Price  in Figures "},
                  {"txtPrice", "0", "Please specify Unit Price  above zero"},
                  {"txtPrice", "5", "Please specify Drug/Service used "}},
                 "cmdGrid");
    row("grdData", "DIESEL");
    dblClick("grdData");
    EXPECT_EQ(shown("cboDrug txtQty txtPrice lblSub txtDesc"), "DIESEL|2|250.25|500.50|FOR GENERATORS");
    click("cmdGrid");
    pick("cboDrug", "DIESEL");
    EXPECT_EQ(told("cmdGrid"), "Duplicate Item Entry not allowed");
    for (int time = 0; time < 2; ++time) {
        pick("cboDrug", "PAPER");
        set("cboPay", "CASH");
        EXPECT_EQ(items("cboBank").join('/') + ' ' + state("txtCheque"), "CASH[1210] visible disabled");
        pick("cboExpense", 0);
        pick("cboBank", 0);
        click("cmdGrid");
        EXPECT_EQ(value("lblTotal"), "700.50");
        if (time > 0)
            break;
        ui.answer(true);
        row("OrderGrid", 1);
        EXPECT_BOXES(ui, {"Item Removed"});
        EXPECT_EQ(value("lblTotal"), "500.50");
        row("OrderGrid", 1);
        EXPECT_BOXES(ui, {" Blank Row cannot be deleted"});
    }
    set("txtRem", "WEEK 11");
    breakAt("insert into [hExpensePayDetails]", true);
    const QString before = voucher();
    ui.answer(true);
    EXPECT_NE(told("OKButton"), "");
    EXPECT_EQ(voucher() + rows("select * from hExpensePay"), before) << "half a payment";
    mend();
    ui.answer(true);
    EXPECT_EQ(told("OKButton"), "Record Succesfully saved");
    EXPECT_EQ(voucher(), "700.5|amina.b|1|1");
    EXPECT_EQ(rows("select vouchNo,Amount,Paidby,Description,REcipient,Remarks from hExpensePay"),
              "V1|700.5|amina.b|WEEK 11|MUSA|Paid Cash:( Vouch No: V1) for: ");
    EXPECT_EQ(rows("select Amount,AcctNoDebit,AcctNoCreit,ChequeNo,ValueDate,PayType,ItemCode,isPost,Remarks from "
                   "hExpensePayDetails order by SNo"),
              "500.5|5310|1220|0012|2026-03-20|CHEQUE|001|1|Paid via Cheque ( Cheq No: 0012 And Vouch No: V1) for: FOR "
              "GENERATORS\n200|5310|1210|||CASH|002|1|Paid Cash:( Vouch No: V1) for: ");
    EXPECT_EQ(rows("select vouchNo,AttendedTo,isApprv from hExpenseDetailsApprvFinal order by ExpID"),
              "V1|1|1\nV1|1|1\nV2|0|0");
    EXPECT_EQ(audit("Voucher Payment%", "userAction, TranCode, Remarks"), "Voucher Payment to: MUSA|V1|700.50");
    EXPECT_EQ(value("grdDataPay"), "1 rows");
    click("cmdAdd");
    EXPECT_EQ(items("cboCat").join('/'), "");
}

TEST_P(Vouchers, ApprovedAgainItsNextItemIsPaidAndPostedToo) {
    enterOne();
    EXPECT_EQ(told("OKButton"), "Record Succesfully saved");
    ws.run("update hExpenseApprvFinal set isPaid=0 where vouchNo='V1'");
    // A price of less than a kobo a piece: what was shown is paid, not what its rounded price makes.
    ws.run("update hExpenseDetailsApprvFinal set Qty=1000, Price=12.345 where ItemName='PAPER'");
    click("cmdAdd");
    pick("cboCat", 0);
    pick("cboDrug", "PAPER");
    set("cboPay", "CASH");
    pick("cboExpense", 0);
    pick("cboBank", 0);
    EXPECT_EQ(value("lblSub"), "12,345.00");
    click("cmdGrid");
    EXPECT_EQ(value("lblTotal"), "12,345.00");
    ui.answer(true);
    EXPECT_EQ(told("OKButton"), "Record Succesfully saved");
    EXPECT_EQ(rows("select Qty,Amount,isPost from hExpensePayDetails order by SNo"), "2|500.5|1\n1000|12345|1");
    EXPECT_EQ(ws.accountingScalar("select sum(Amount) as n from (select Amount from Tranxaction union all "
                                  "select Amount from TranxactionTemp) t where Amount>0"),
              "12845.5");
    EXPECT_EQ(ws.accountingScalar("select count(*) as n from TranFromAppsTrail"), "2");
}

TEST_P(Vouchers, OfTwoCashiersOnePaysTheVoucher) {
    enterOne();
    runBeforeTransaction("update hExpenseApprvFinal set isPaid=1 where vouchNo='V1'");
    EXPECT_EQ(told("OKButton"), "This Voucher was paid by another user.");
    EXPECT_EQ(rows("select * from hExpensePay"), "");
}

TEST_P(Vouchers, ThePaymentStaysWhenItsPostingFails) {
    enterOne();
    breakAt("insert into TranFromAppsTrail");
    EXPECT_TRUE(told("OKButton").startsWith("Record Succesfully saved\nCould not Save to Account Module!!! \r\n\r\n"));
    mend();
    EXPECT_EQ(rows("select isPaid from hExpenseApprvFinal where vouchNo='V1'") +
                  rows("select isPost from hExpensePayDetails") +
                  ws.accountingScalar("select count(*) as n from Tranxaction"),
              "100");
    EXPECT_EQ(value("cboCat") + value("grdDataPay"), "1 rows") << "the entry is cleared";
}

TEST_P(Vouchers, ApprovedItemsGoIntoTheJournalOneByOne) {
    ws.run(
        "update hExpenseDetailsApprvFinal set ExpDate='2026-03-10', AcctID='5310', RefNo='R' where ItemName<>'PAPER'");
    open();
    EXPECT_TRUE(
        told("cmdPost").startsWith("Called from FillChartIndices: Could not open CHART.DAT.\n\nVoucher V1: FOR "));
    write("CHART.DAT", "AccountNo\tAccountName\n5310\tFUEL\n1001\tCASH\n");
    write("COMPANY.DAT", "Key\tValue\n");
    write("General.dat", "Period\tFirstDay\tLastDay\tClosed\n2026/03\t2026-03-01\t2026-03-31\tNO\n");
    breakAt("update hExpenseDetailsApprvFinal  set ispost=1", true);
    EXPECT_NE(told("cmdPost"), "") << "the first one is in, and not flagged";
    mend();
    const QString failed = told("cmdPost");
    EXPECT_TRUE(failed.startsWith("Called from mwSave_GeneralJournal: Could not find Account.\n\nVoucher V1: "));
    EXPECT_TRUE(failed.endsWith("\nPosting Completed Successfully"));
    EXPECT_EQ(rows("select ispost from hExpenseDetailsApprvFinal order by ExpID"), "1\n0\n1");
    QFile journal(home.folder() + "/journal/JrnlRow.dat");
    ASSERT_TRUE(journal.open(QIODevice::ReadOnly));
    EXPECT_EQ(journal.readAll(), "EntryNo\tLine\tAccountNo\tAmount\n1\t1\t5310\t500.50\n1\t2\t1001\t-500.50\n"
                                 "2\t1\t5310\t10.00\n2\t2\t1001\t-10.00\n");
    ws.run("update hExpenseDetailsApprvFinal set ispost=1");
    EXPECT_EQ(told("cmdPost"), "No Data to Post");
    ws.program.session.gAcctPostOn = false;
    EXPECT_EQ(told("cmdPost"), "Sorry Posting to your Account Package is not enabled");
}

ORVANE_ON_EACH_ENGINE(Vouchers);

} // namespace orvane
