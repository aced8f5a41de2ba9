#include "receipts/frmCashReceipt.h"
#include "receipts/frmCashReceiptLab.h"
#include "support/ScreenTest.h"

namespace orvane {
namespace {

class CashReceipt : public ScreenTest {
protected:
    CashReceipt() : ScreenTest("frmCashReceipt") {}
    void layReceipt(const QString& number, double billed, double paid, const QString& date = "2026-03-14") {
        ws.run(QString("insert into Payments (ReceiptDate, ReceiptNo, billNo, PNo, PaymentFor, Amountbilled, "
                       "AmountPaid, AmountInWord, ReceivedBy, PayType) values ('%4','%1','001OFL0000001','P/0001',"
                       "'DRUGS',%2,%3,'THE WORDS','E001','CASH')")
                   .arg(number, QString::number(billed), QString::number(paid), date));
    }
};
ORVANE_ON_EACH_ENGINE(CashReceipt);

TEST_P(CashReceipt, ShowsBothCopiesAndPrintsWithoutItsButton) {
    layVisit();
    layReceipt("12", 4000.5, 1500);
    QFile picture(home.folder() + "/RctPix.JPG");
    ASSERT_TRUE(picture.open(QIODevice::WriteOnly));
    showCashReceipt(ws.program, "12");
    const QString fields =
        "txtReceiptNo%1 txtDate%1 txtRecFrom%1 txtSumOf%1 txtBeingPayFor%1 txtAmount%1 txtChequeNo%1 "
        "txtBill%1 txtBal%1 lblName%1";
    for (const QString copy : {"", "2"})
        EXPECT_EQ(shown(fields.arg(copy)),
                  "12|14/03/2026|ADEYEMI BOLA|THE WORDS|DRUGS|1,500.00|CASH|4,000.50|2,500.50|E001");
    for (const QString copy : {"", "Copy"})
        EXPECT_EQ(shown(QString("lblHead%1 lblHead4%1 Image1%1").arg(copy)),
                  "HALDEN HOSPITAL|TEL 01-0000000|" + home.folder() + "/RctPix.JPG");
    EXPECT_EQ(ws.program.session.sPrintBillNo, "");
    const Page page = ws.form("frmCashReceipt").page().value();
    QStringList texts;
    for (const PageText& item : page.texts)
        texts << item.text;
    EXPECT_EQ(texts.count("12") + texts.count("1,500.00") + texts.count("THE WORDS"), 6);
    for (const PageText& item : page.texts)
        EXPECT_TRUE(item.x >= 0 && item.x + item.width <= page.widthMm && item.y >= 0 && item.y < page.heightMm)
            << item.text.toStdString();
    bool hiddenInPrint = false;
    Control& button = ws.control("frmCashReceipt.cmdPrint");
    QObject::connect(&button, &Control::changed, [&] { hiddenInPrint = hiddenInPrint || !button.isVisible(); });
    click("cmdPrint");
    EXPECT_EQ(ui.printed, QStringList{"frmCashReceipt"});
    EXPECT_TRUE(hiddenInPrint);
    EXPECT_EQ(state("cmdPrint"), "visible enabled");
}

TEST_P(CashReceipt, ARollBearsTheLinesThatWerePaidAndTheCredit) {
    layVisit();
    for (const char* line :
         {"1,'SCAN',1000", "2,'LONG NAMED DRUG OF MANY WORDS 500MG TABLETS',500", "3,'DISCOUNT',-50", "4,'GAUZE',250"})
        ws.run(
            QString("insert into BillingDetails (billNo, SNo, drgName, SubTotal) values ('%1',%2)").arg(billNo, line));
    layReceipt("21", 1700, 1200);
    layReceipt("22", 500, 700);
    layReceipt("23", -500, -700);
    layReceipt("24", 900, 900);
    ws.run("insert into PaymentDetails (snoID, ReceiptNo, billNo, BillItem, AmountPaid) values "
           "(4,'24','001OFL0000001','GAUZE',250), (0,'24','001OFL0000001','BALANCE_PAYMENT',650)");
    const struct {
        const char* number;
        const char* words; ///< of the lines and the amounts below them
    } receipts[] = {
        {"21", "1,000.00|SCAN|200.00|LONG NAMED DRUG OF MANY|WORDS 500MG TABLETS|1,700.00|Bill|1,200.00|Amount "
               "paid|500.00|Balance"},
        {"22",
         "300.00|LONG NAMED DRUG OF MANY|WORDS 500MG TABLETS|-50.00|DISCOUNT|250.00|GAUZE|500.00|Bill|700.00|Amount "
         "paid|200.00|Credit"},
        {"23", "-500.00|Bill|-700.00|Amount paid|200.00|Balance"},
        {"24", "250.00|GAUZE|650.00|On account|900.00|Bill|900.00|Amount paid|0.00|Balance"},
    };
    QHash<QString, double> heights;
    for (const auto& receipt : receipts) {
        showCashReceipt(ws.program, receipt.number);
        set("optRoll", "yes"); // the first time; it stays chosen
        const Page page = ws.form("frmCashReceipt").page().value();
        QStringList words;
        for (const PageText& item : page.texts) {
            words << item.text;
            EXPECT_TRUE(item.x >= 4 && item.x + item.width <= 76 && item.y < page.heightMm) << item.text.toStdString();
        }
        EXPECT_EQ(page.widthMm, 80);
        heights[receipt.number] = page.heightMm;
        for (const QString& fact : {QString("P/0001"), QString(billNo), QString("ADEYEMI BOLA")})
            EXPECT_TRUE(words.contains(fact)) << fact.toStdString();
        const auto from = words.indexOf("CASH") + 1;
        EXPECT_EQ(words.mid(from, words.indexOf("THE WORDS") - from).join('|'), receipt.words);
    }
    EXPECT_GT(heights["21"], heights["23"]) << "as long as what it says";
    set("optA4", "yes");
    EXPECT_EQ(ws.form("frmCashReceipt").page()->heightMm, 297);
}

TEST_P(CashReceipt, UnknownReceiptClosesAndANewOneTakesTheOldOnesPlace) {
    showCashReceipt(ws.program, "NONE");
    EXPECT_BOXES(ui, {"No Receipt to Generate!"});
    EXPECT_FALSE(isOpen());
    layReceipt("1", 100, 100);
    layReceipt("2", -100, -100);
    showCashReceipt(ws.program, "1");
    ws.run("delete from appSettings where IDValCode='00'");
    showCashReceipt(ws.program, "2");
    EXPECT_EQ(value("txtReceiptNo") + '|' + value("txtAmount"), "2|-100.00");
    EXPECT_EQ(value("lblHead") + value("txtRecFrom"), "");
}

TEST_P(CashReceipt, AnOutletsReceiptBearsTheHeadingOfItsCode) {
    ws.run("insert into hPatientsPublic (PNo, pSurname, pfirstname) values ('W/1', 'WALK', 'IN')");
    ws.run("insert into hRecordsPublic (consultID, PNo, clinicType) values ('001OFL0000001', 'W/1', 'LABORATORY')");
    layReceipt("001LB0000001", 4000, 1500);
    layReceipt("77", 10, 10);
    showOutletReceipt(ws.program, "001LB0000001");
    for (const QString copy : {"", "2"}) {
        EXPECT_EQ(ws.value("frmCashReceiptLab.txtRecFrom" + copy), "WALK IN");
        EXPECT_EQ(ws.value("frmCashReceiptLab.txtBal" + copy), "2,500.00");
    }
    for (const QString copy : {"", "Copy"})
        EXPECT_EQ(ws.value("frmCashReceiptLab.lblHead" + copy), "HALDEN LABORATORY");
    showOutletReceipt(ws.program, "77");
    EXPECT_BOXES(ui, {"This Receipt has no ReceiptCode! See the DB Administrator to assign a Code"});
    EXPECT_FALSE(ws.program.loadedForm("frmCashReceiptLab"));
    ws.run("delete from hRecordsPublic");
    showOutletReceipt(ws.program, "001LB0000001");
    EXPECT_BOXES(ui, {"No Receipt to Display"});
    // Found again as an old receipt, it bears the hospital's heading.
    showCashReceipt(ws.program, "001LB0000001");
    EXPECT_EQ(value("lblHead"), "HALDEN HOSPITAL");
}

TEST_P(CashReceipt, AnOldReceiptIsFoundByItsDate) {
    layVisit({.surname = "O'NEILL [JR]"});
    layReceipt("12", 4000.5, 1500);
    // Two paper receipts of one number.
    layReceipt("SN13", 100, 100, "2026-03-10");
    layReceipt("SN13", 50, 50, "2026-03-10");
    ws.menu("mnuRPtES");
    EXPECT_EQ(ws.value("rptPanelSummary.lblPanel"), "select a receipt No");
    ws.click("rptPanelSummary.OKButton");
    EXPECT_BOXES(ui, {"Please select a receipt No"});
    ws.click("rptPanelSummary.cmdInv");
    EXPECT_EQ(ws.items("rptPanelSummary.cboVehNo"), QStringList{"O'NEILL [JR] BOLA PRIVATE PATIENTS @14/03/2026 [12]"});
    ws.set("rptPanelSummary.DTPicker1", "2026-03-10");
    ws.set("rptPanelSummary.DTPicker2", "2026-03-10");
    ws.click("rptPanelSummary.cmdInv");
    QSet<QString> amounts;
    for (int entry = 0; entry < 2; ++entry) {
        ws.pick("rptPanelSummary.cboVehNo", entry);
        EXPECT_EQ(ws.program.session.sWorkPno, "SN13");
        ws.program.session.sWorkPno = "12"; // another screen works on another number
        ws.click("rptPanelSummary.OKButton");
        EXPECT_EQ(value("txtReceiptNo"), "SN13");
        amounts << value("txtAmount");
    }
    EXPECT_EQ(amounts, (QSet<QString>{"100.00", "50.00"}));
    showCashReceipt(ws.program, "SN13");
    EXPECT_EQ(value("txtAmount"), "50.00") << "the newest where none was picked";

    // The same panel finds clients; it takes the other mode when it is opened again.
    ws.program.session.sRptPanelMode.clear();
    ws.control("MdiTolmek.mnuPCB").setVisible(true);
    ws.menu("mnuPCB");
    EXPECT_EQ(ws.value("rptPanelSummary.lblPanel"), "select a Company Name");
    ws.click("rptPanelSummary.cmdInv");
    ws.pick("rptPanelSummary.cboVehNo", "CLEARWATER HMO [0201]");
    EXPECT_EQ(ws.program.session.sWorkPno, "0201");
}

} // namespace
} // namespace orvane
