#include "reports/StockTemplates.h"
#include "support/ScreenTest.h"

#include <QFile>
#include <QProcess>

namespace orvane {
namespace {

class DebtInfo : public ScreenTest {
protected:
    DebtInfo() : ScreenTest("frmDebtInfo") {}

    /// The rows of the grid without their head.
    QStringList statement() { return ws.rows("frmDebtInfo.grdData").mid(1); }
    QStringList names() {
        QStringList names;
        const auto& grid = ws.control<Grid>("frmDebtInfo.grdData");
        for (int row = 0; row < grid.rowCount(); ++row)
            names << grid.cellText(row, grid.columnIndex("fullName"));
        return names;
    }
    void search(const QString& kind, const QString& text) {
        set("cboGroup", kind);
        set("txtName", text);
        click("OKButton");
    }

    /// A visit on the 10th and one today, with a charge each and a part payment.
    void layAccount() {
        layVisit({.pno = "00012/001", .surname = "O'NEILL", .firstname = "ADA", .debt = -2500.5},
                 {.pno = "00012/001", .date = QDate(2026, 3, 10)});
        Connection connection = ws.billing();
        makeVisit(connection, {.consultID = "001OFL0000002", .pno = "00012/001"});
        ws.run("update hPatients set OldPNo='H77'");
        layEvent("00012/001", billNo, -3000, -3000, "=cmd|'' /C calc''!A0");
        layEvent("00012/001", billNo, 1000, -2000, "10/03/2026");
        layEvent("00012/001", "001OFL0000002", -500.5, -2500.5, "MALARIA \U0001F600");
    }
    void layEvent(const QString& pno, const QString& bill, double amount, double total, const QString& remarks) {
        ws.run(QString("insert into Tranxaction (entryDate, PNo, billNo, Amount, RunningTotal, Remarks) values "
                       "('2026-03-14','%1','%2',%4,%5,'%3')")
                   .arg(pno, bill, remarks, QString::number(amount), QString::number(total)));
    }
    const QStringList account = {
        "1\t10/03/2026\t\tO'NEILL ADA\t00012/001\t=cmd|' /C calc'!A0\t3,000.00\t.00\t(3,000)\t001OFL0000001\tPRIVATE "
        "PATIENTS",
        "2\t10/03/2026\t\tO'NEILL ADA\t00012/001\t10/03/2026\t.00\t1,000.00\t(2,000)\t001OFL0000001\tPRIVATE PATIENTS",
        "3\t14/03/2026\t\tO'NEILL ADA\t00012/001\tMALARIA \U0001F600\t500.50\t.00\t(2,501)\t001OFL0000002\tPRIVATE "
        "PATIENTS"};
};
ORVANE_ON_EACH_ENGINE(DebtInfo);

TEST_P(DebtInfo, FindsPatientsAndShowsTheWholeAccount) {
    layAccount();
    layVisit({.pno = "00013/001", .surname = "ONEX"}, {.consultID = "001OFL0000003", .pno = "00013/001"});
    open();
    EXPECT_EQ(value("Label5"), "Debt Information");
    EXPECT_EQ(told("cmdList"), "Double Click a row to Get the Debt Info of a Patient");
    const struct {
        const char *kind, *text;
        QStringList found;
    } searches[] = {{"Name", "O", {"O'NEILL ADA", "ONEX BOLA"}},
                    {"Name", "o'neill", {"O'NEILL ADA"}},
                    {"Name", "O\"NEILL", {"O'NEILL ADA"}},
                    {"Name", "' or 1=1 --", {}},
                    {"SysNo", "12", {"O'NEILL ADA"}},
                    {"SysNo", "00013/001", {"ONEX BOLA"}},
                    {"CardNo", "H77", {"O'NEILL ADA"}},
                    {"CardNo", "12", {}}};
    for (const auto& c : searches) {
        search(c.kind, c.text);
        EXPECT_EQ(names(), c.found) << c.kind << ' ' << c.text;
    }
    search("Name", "O");
    EXPECT_TRUE(statement().value(0).contains("\t(2,501)\t")) << statement().value(0).toStdString();
    row("grdData", 0);
    dblClick("grdData");
    EXPECT_EQ(value("Label5"), "Search for: O'NEILL ADA");
    EXPECT_EQ(statement(), account);
    dblClick("grdData");
    EXPECT_EQ(statement(), account) << "a row of the statement is no patient";
    set("DTPicker1", "2026-03-15");
    EXPECT_EQ(told("cmdList"), "Please specify Attendance Date Range");
}

TEST_P(DebtInfo, ThePatientInHandIsShownSinceTheFirstVisit) {
    layAccount();
    ws.program.session.sBillPno = "00012/001";
    ws.program.session.sBillPatName = "O'NEILL ADA";
    ws.program.session.sDebtMode = "AUTO";
    open();
    EXPECT_EQ(value("DTPicker1"), "2026-03-10");
    EXPECT_EQ(statement().size(), 3);
    set("DTPicker1", "2026-03-11");
    click("cmdList");
    EXPECT_EQ(statement(), QStringList{"3\t14/03/2026\t\tO'NEILL ADA\tMALARIA \U0001F600\t500.50\t.00\t(2,501)\t"
                                       "001OFL0000002\tPRIVATE PATIENTS\t00012/001"});
    set("chkAll", "yes");
    click("cmdList");
    EXPECT_EQ(statement(), account);
}

/// The collation screen asks for the account of one patient after the other; the menu for nobody's.
TEST_P(DebtInfo, OpensForThePatientInHandOnlyWhenHisAccountIsAskedFor) {
    layVisit();
    layVisit({.pno = "P/0002", .surname = "OTHER"}, {.consultID = "001OFL0000002", .pno = "P/0002"});
    layEvent("P/0001", billNo, -5, -5, "ITEM");
    layEvent("P/0002", "GONE", -5, -5, "OF A DELETED VISIT");
    ws.open("frmBillingVerify");
    for (const auto& [bill, name, pno] :
         {std::tuple(billNo, "ADEYEMI BOLA", "P/0001"), std::tuple("001OFL0000002", "OTHER BOLA", "P/0002")}) {
        ws.set("frmBillingVerify.txtSearch", bill);
        ws.click("frmBillingVerify.cmdOK");
        ws.click("frmBillingVerify.cmdAcct");
        EXPECT_EQ(value("Label5"), name);
        EXPECT_TRUE(statement().value(0).endsWith(pno)) << statement().value(0).toStdString();
    }
    for (const char* how : {"still open", "opened anew"}) {
        SCOPED_TRACE(how);
        ws.menu("mnuPDI");
        EXPECT_EQ(value("Label5"), "Debt Information");
        EXPECT_EQ(statement(), QStringList());
        ws.close("frmDebtInfo");
    }
    EXPECT_BOXES(ui, {});
}

TEST_P(DebtInfo, SummariesGiveWhatIsOwedAsPlus) {
    Connection connection = ws.billing();
    for (const auto& [pno, debt] : {std::pair("P/1", -100.0), {"P/2", 50.0}, {"P/3", 0.0}, {"P/4", -700.0}})
        makePatient(connection, {.pno = pno, .debt = debt});
    renewStockTemplates(home.folder());
    open();
    click("cmdRpt");
    click("cmdDebtOnly");
    set("chkDebt", "yes");
    click("cmdRpt");
    QList<int> counts;
    for (const auto& report : ui.reports)
        counts << report.rows;
    EXPECT_EQ(counts, (QList<int>{3, 2, 3}));
    EXPECT_EQ(ws.value("frmPrintRpt.crViewer1"), "1 page");

    // With a template that is no good the screen stays, and shows nothing; mended, it shows again.
    const QString file = home.folder() + "/rptDebtInfo.rpt";
    const struct {
        QByteArray layout;
        const char* said;
    } faults[] = {
        {{}, "The report template rptDebtInfo.rpt is not in the program's folder."},
        {"\n", "rptDebtInfo.rpt:1: the template is empty: its first line is report \"Title\"."},
        {QByteArray("\0\xff\n", 3), "The file rptDebtInfo.rpt is not a text file: see line 1."},
        {"report \"R\"\ngroup Client\n", "rptDebtInfo.rpt:2: the data has no field Client."},
    };
    for (const auto& [layout, said] : faults) {
        ASSERT_TRUE(QFile::remove(file));
        QFile written(file);
        ASSERT_TRUE(layout.isEmpty() || (written.open(QIODevice::WriteOnly) && written.write(layout) > 0));
        written.close();
        EXPECT_EQ(told("cmdRpt"), said);
        EXPECT_EQ(ws.value("frmPrintRpt.crViewer1"), "");
        QFile::remove(file);
        renewStockTemplates(home.folder());
        EXPECT_EQ(told("cmdRpt"), "");
        EXPECT_EQ(ws.value("frmPrintRpt.crViewer1"), "1 page");
    }
    // Nobody owes anything: it says so.
    ws.run("update hPatients set DebtBF = 0");
    EXPECT_EQ(told("cmdDebtOnly"), "No Report for the specified Item");
    EXPECT_TRUE(ws.program.loadedForm("frmPrintRpt"));
}

/// The workbook as its reader sees it: one part of the file, or a failure.
QString workbookPart(const QString& file, const QString& part) {
    QProcess unzip;
    unzip.start("unzip", {"-p", file, part});
    EXPECT_TRUE(unzip.waitForFinished() && unzip.exitCode() == 0) << part.toStdString();
    return QString::fromUtf8(unzip.readAllStandardOutput());
}

TEST_P(DebtInfo, ExportsWhatTheGridShows) {
    layAccount();
    open();
    EXPECT_EQ(told("cmdExport"), "No record is displayed for printing");
    search("Name", "O");
    click("cmdList");
    click("cmdExport");
    ASSERT_EQ(ui.exports.size(), 1);
    const QString file = ui.exports.first();
    EXPECT_EQ(file, ui.exportFolder() + "/Debt Info Search for O NEILL ADA 2026-03-14 09.30.00.xlsx");
    const QString sheet = workbookPart(file, "xl/worksheets/sheet1.xml");
    EXPECT_TRUE(workbookPart(file, "xl/workbook.xml").contains("name=\"Sheet1\""));
    EXPECT_FALSE(sheet.contains("<f>")) << "no text may become a formula";
    EXPECT_TRUE(sheet.contains("<v>3000</v>"));
    EXPECT_TRUE(sheet.contains("<v>-2500.5</v>"));
    EXPECT_TRUE(sheet.contains("<v>46091</v>")) << "the 10th of March 2026 as a date";
    EXPECT_TRUE(sheet.contains("<col min=\"4\" max=\"4\" width=\"13")) << "as wide as O'NEILL ADA";
    const QString rest = workbookPart(file, "xl/sharedStrings.xml") + workbookPart(file, "xl/styles.xml");
    for (const char* text : {">SNO<", ">10/03/2026<", ">Comapany<", ">=cmd|' /C calc'!A0<", ">MALARIA \U0001F600<",
                             ">00012/001<", "\"#,###.00\"", "\"#,##;(#,##0)\"", "\"dd/mm/yyyy\""})
        EXPECT_TRUE(rest.contains(text)) << text;

    // A folder that takes no file: said once, and the screen stands.
    ASSERT_TRUE(QDir(ui.exportFolder()).removeRecursively());
    QFile blocker(ui.exportFolder());
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    click("cmdExport");
    EXPECT_EQ(ui.takeBoxes().value(0).left(file.size()), file);
    EXPECT_EQ(ui.exports.size(), 1);
}

} // namespace
} // namespace orvane
