// Invoices and claims on paper: what a page totals is what the client was invoiced, whichever form it has.
#include "data/rows/ActionParts.h"
#include "data/words/Money.h"
#include "forms/ReportViewer.h"
#include "reports/StockTemplates.h"
#include "support/ScreenTest.h"

namespace orvane {
namespace {

class Invoice : public SoundScreenTest {
protected:
    Invoice() : SoundScreenTest("FrmProcessedBill") {}

    void SetUp() override {
        SoundScreenTest::SetUp();
        renewStockTemplates(home.folder());
        Connection connection = ws.billing();
        makePatient(connection, {.pno = "P/0001", .surname = "O'NEILL & SONS"});
        makePatient(connection, {.pno = "P/0002", .surname = "ADE"});
    }
    /// Lines beside the one that a bill has: equal ones, kobo, a discount, a credit that was carried over.
    void layLines(const QString& bill) {
        const std::tuple<const char*, const char*, const char*, double> laid[] = {
            {"DRESSING", "WARD", "", 0.1},   {"DRESSING", "WARD", "", 0.1},          {"SCAN", "", "RADIOLOGY", 1250.75},
            {"DISCOUNT", "", "", -100.05},   {"CREDIT BROUGHT OVER", "", "", -0.33}, {"SCAN", "", "RADIOLOGY", 1250.75},
            {"BED", "WARD", "THEATRE", 1e6}, {"SURGERY", "THEATRE", "THEATRE", 7.07}};
        Connection connection = ws.billing();
        for (const auto& [name, head, revenue, amount] : laid)
            connection.execute(Sql("insert into BillingDetails (SNo, billNo, PNo, drgName, BillHead, revType, Price, "
                                   "Qty, SubTotal) values (")
                               << --m_sno << ", '" << bill << "', 'P/0001', '" << QString(name) << "', '"
                               << QString(head) << "', '" << QString(revenue) << "', " << amount << ", 1, " << amount
                               << ")");
    }
    void layMonth() {
        Connection connection = ws.billing();
        makeMonthBill(connection, "A", "0102", 1500.25);
        makeMonthBill(connection, "B", "0102", 0.1);
        makeMonthBill(connection, "C", "0102", 33.33);
        makeMonthBill(connection, "D", "0201", 77);
        makeMonthBill(connection, "E", "0102", 5, QDate(2026, 4, 1)); // of another month
        connection.run("update hRecords set PNo='P/0002' where consultID='C'");
        layLines("A");
        layLines("D");
        connection.run("update Billing set Amountbilled=(select sum(SubTotal) from BillingDetails d where "
                       "d.billNo=Billing.billNo)");
        noteOpening(connection);
    }
    void process() {
        open("frmBillProcessing");
        click("cmdGet");
        click("cmdAll");
        ui.answer(true);
        click("cmdProcess");
        ui.forgetBoxes();
        close();
        open("FrmProcessedBill");
        click("cmdPat");
    }
    PageSource& shown() { return *ws.control<ReportViewer>(m_form + ".crViewer1").report(); }
    QString summed(const QString& column) {
        double sum = 0;
        for (Recordset row = shown().rows().detached(); !row.eof(); row.moveNext())
            sum += row.number(column);
        return formatNumber(sum, "#,##0.00");
    }
    QStringList words(bool last = true) {
        shown().finish();
        QStringList result;
        for (const PageText& text : shown().page(last ? shown().pagesMade() - 1 : 0).texts)
            result << text.text;
        return result;
    }
    QString amount(const QString& select) { return formatNumber(ws.scalar(select).toDouble(), "#,##0.00"); }
    void takeForm(const QString& name) {
        m_form = name;
        open(name);
    }

    QString m_form = "FrmProcessedBill";
    int m_sno = 0;
};
ORVANE_ON_EACH_ENGINE(Invoice);

TEST_P(Invoice, EachFormTotalsWhatTheClientWasInvoiced) {
    layMonth();
    process();
    const struct {
        const char *button, *column;
        int rows; ///< of the client 0102: three bills, eleven lines
    } forms[] = {{"cmdPatInv", "SubTotal", 11},
                 {"cmdSumm", "SubTotal", 11},
                 {"cmdCoy", "SubTotal", 11},
                 {"cmdDetail", "Amountbilled", 3}};
    for (const auto& [client, code] : {std::pair{"HARMONY MILLS", "0102"}, std::pair{"CLEARWATER HMO", "0201"}}) {
        pick("cboCust", QString(client));
        const QString invoiced =
            amount(QString("select Amountbilled from BillsForClients where CoyCode='%1'").arg(code));
        EXPECT_EQ(invoiced, amount(QString("select sum(d.SubTotal) from BillingDetails d inner join Billing b on "
                                           "b.billNo=d.billNo where b.InvNo='%1/2026/03'")
                                       .arg(code)));
        for (const auto& [button, column, rows] : forms) {
            SCOPED_TRACE(std::string(client) + ' ' + button);
            EXPECT_EQ(told(button), "");
            EXPECT_EQ(summed(column), invoiced);
            if (QString(code) == "0102")
                EXPECT_EQ(shown().rows().count(), rows) << "equal lines stay apart";
            if (QString(code) == "0201" || QString(button) != "cmdSumm")
                EXPECT_TRUE(words().contains(invoiced)) << words().join('|').toStdString();
        }
    }
    // A claims form is of one patient.
    pick("cboCust", "HARMONY MILLS");
    click("cmdSumm");
    EXPECT_TRUE(words(false).contains("33.33") && words(false).contains("ADE BOLA"));
    EXPECT_TRUE(words().contains(amount("select sum(SubTotal) from BillingDetails where billNo in ('A','B')")));
    EXPECT_TRUE(words().contains("O'NEILL & SONS BOLA"));
    click("cmdBatch");
    EXPECT_EQ(summed("AmountBilled"), amount("select sum(Amountbilled) from BillsForClients"));
    EXPECT_TRUE(words(false).contains("Invoice Summary for March 2026"));
}

TEST_P(Invoice, TheTableHasAPatientARowAndAHeadingAColumn) {
    layMonth();
    process();
    pick("cboCust", "HARMONY MILLS");
    click("cmdCoy");
    const QString texts = words().join('|');
    EXPECT_TRUE(texts.contains("|OTHERS|RADIOLOGY|THEATRE|WARD|Total|")) << texts.toStdString();
    EXPECT_TRUE(texts.contains("|P/0002|ADE BOLA|33.33|33.33|P/0001|O'NEILL & SONS BOLA|1,399.97|2,501.50|7.07|"
                               "1,000,000.20|1,003,908.74|"))
        << texts.toStdString();
}

TEST_P(Invoice, AsksForWhatIsMissing) {
    open();
    for (const char* button : {"cmdCoy", "cmdDetail"})
        EXPECT_EQ(told(button), "Please select a Client Name");
    for (const char* button : {"cmdPatInv", "cmdSumm"})
        EXPECT_EQ(told(button), "Please select a Company");
    EXPECT_EQ(told("cmdBatch"), "No Report for the specified Clients");
    EXPECT_EQ(told("cmdCoy2"), "No Unprocessed Company in the specified Period");
    layMonth();
    click("cmdCoy2");
    EXPECT_EQ(summed("Amount"), "2,006,427.46");
    process();
    pick("cboCust", 0);
    set("cboMonth", "April");
    EXPECT_EQ(told("cmdDetail"), "Please select a Client Name") << "a client of another month is none of this one";
    set("cboMonth", "");
    for (const char* button : {"cmdPat", "cmdBatch"})
        EXPECT_EQ(told(button), " Please, Specify Transaction Period .");
    EXPECT_EQ(told("cmdCoy2"), "Select Billing Period");
}

TEST_P(Invoice, EachFormOfOneBillTotalsItsLinesUnderItsHeading) {
    layMonth();
    ws.run("update hRecords set clientCat='NHIS' where consultID='A'");
    ws.run("insert into BillAccum (consultID, PNo, drgName, Capitated, Price, Qty, SubTotal, attendedto, isBilled) "
           "values ('A', 'P/0001', 'COVERED', 'YES', 40, 2, 80, 1, 1)");
    takeForm("FrmRptBillsByPat");
    EXPECT_EQ(told("cmdDisplay"), "Please select Patient's Name");
    EXPECT_EQ(told("cmdPresc"), "Please select Patient's Name");
    click("cmdList");
    EXPECT_EQ(items("cboCust").size(), 4);
    const QString total = amount("select sum(SubTotal) from BillingDetails where billNo='A'");
    const struct {
        const char *category, *referal, *heading;
    } visits[] = {{"NHIS", "NO", "HMo Claims  Invoice"},
                  {"HMO", "YES", "Fee for Service Invoice"},
                  {"MTHLY", "NO", "Client Invoice"},
                  {"PRIVATE", "YES", "Client Invoice"}};
    for (const auto& visit : visits) {
        SCOPED_TRACE(visit.category);
        ws.run(QString("update hRecords set clientCat='%1', referal='%2' where consultID='A'")
                   .arg(visit.category, visit.referal));
        pick("cboCust", "[A]");
        for (const char* button : {"cmdDisplay", "cmdInv2", "cmdAdmInv", "cmdCap", "chkRpt"}) {
            set("chkRpt", QString(button) == "chkRpt" ? "yes" : "no");
            click(QString(button) == "chkRpt" ? QString("cmdDisplay") : QString(button));
            const QString due = QString(button) == "cmdCap" ? "80.00" : total;
            EXPECT_EQ(summed("SubTotal"), due) << button;
            EXPECT_TRUE(words().contains(due) && words().contains("14/03/2026") && words().contains(visit.heading))
                << button << words().join('|').toStdString();
        }
    }
    pick("cboCust", "[C]");
    EXPECT_EQ(told("cmdCap"), "No Report for the specified Clients");
    set("DTPicker2", "");
    EXPECT_EQ(told("cmdList"), " Please, Specify Period .");
    EXPECT_EQ(told("cmdInv2"), "Please specify Date");
}

} // namespace
} // namespace orvane
