#include "support/TestHome.h"
#include "support/Workstation.h"

#include "receipts/frmCashReceipt.h"

namespace orvane {

namespace {

class CashReceipt : public WorkstationTest {
protected:
    void layReceipt(const QString& number, double billed, double paid) {
        ws.run(QStringLiteral(
                   "insert into Payments (ReceiptDate, ReceiptNo, billNo, PNo, PaymentFor, Amountbilled, AmountPaid, "
                   "AmountInWord, ReceivedBy, PayType) values ('2026-03-14','%1','001OFL0000001','P/0001','DRUGS',"
                   "%2,%3,'THE WORDS','E001','CASH')")
                   .arg(number)
                   .arg(billed)
                   .arg(paid));
    }
    QString value(const QString& control) { return ws.value("frmCashReceipt." + control); }
};

ORVANE_ON_EACH_ENGINE(CashReceipt);

TEST_P(CashReceipt, ShowsBothCopiesAndPrintsWithoutItsButton) {
    Connection connection = ws.billing();
    makePatient(connection);
    layReceipt("12", 4000.5, 1500);
    QFile picture(home.folder() + "/RctPix.JPG");
    ASSERT_TRUE(picture.open(QIODevice::WriteOnly));
    showCashReceipt(ws.program, "12");
    const QMap<QString, QString> expected{{"txtReceiptNo", "12"},         {"txtDate", "14/03/2026"},
                                          {"txtRecFrom", "ADEYEMI BOLA"}, {"txtSumOf", "THE WORDS"},
                                          {"txtBeingPayFor", "DRUGS"},    {"txtAmount", "1,500.00"},
                                          {"txtChequeNo", "CASH"},        {"txtBill", "4,000.50"},
                                          {"txtBal", "2,500.50"},         {"lblName", "E001"}};
    for (auto field = expected.begin(); field != expected.end(); ++field)
        for (const char* copy : {"", "2"})
            EXPECT_EQ(value(field.key() + copy), field.value()) << field.key().toStdString() << copy;
    for (const char* copy : {"", "Copy"}) {
        EXPECT_EQ(value(QString("lblHead") + copy), "HALDEN HOSPITAL");
        EXPECT_EQ(value(QString("lblHead4") + copy), "TEL 01-0000000");
        EXPECT_EQ(value(QString("Image1") + copy), home.folder() + "/RctPix.JPG");
    }
    EXPECT_EQ(ws.program.session.sPrintBillNo, "");

    const Page page = ws.form("frmCashReceipt").page().value();
    for (const QString& text : {QString("12"), QString("1,500.00"), QString("THE WORDS")})
        EXPECT_EQ(std::count_if(page.texts.begin(), page.texts.end(),
                                [&](const PageText& item) { return item.text == text; }),
                  2)
            << text.toStdString();
    for (const PageText& item : page.texts)
        EXPECT_TRUE(item.x >= 0 && item.x + item.width <= page.widthMm && item.y >= 0 && item.y < page.heightMm)
            << item.text.toStdString();

    bool hiddenInPrint = false;
    QObject::connect(&ws.control("frmCashReceipt.cmdPrint"), &Control::changed,
                     [&] { hiddenInPrint = hiddenInPrint || !ws.control("frmCashReceipt.cmdPrint").isVisible(); });
    ws.click("frmCashReceipt.cmdPrint");
    EXPECT_EQ(ui.printed, QStringList{"frmCashReceipt"});
    EXPECT_TRUE(hiddenInPrint);
    EXPECT_EQ(ws.state("frmCashReceipt.cmdPrint"), "visible enabled");
}

TEST_P(CashReceipt, UnknownReceiptClosesAndANewOneTakesTheOldOnesPlace) {
    showCashReceipt(ws.program, "NONE");
    EXPECT_BOXES(ui, {"No Receipt to Generate!"});
    EXPECT_FALSE(ws.program.loadedForm("frmCashReceipt"));
    layReceipt("1", 100, 100);
    layReceipt("2", -100, -100);
    showCashReceipt(ws.program, "1");
    ws.run("delete from appSettings where IDValCode='00'");
    showCashReceipt(ws.program, "2");
    EXPECT_EQ(value("txtReceiptNo"), "2");
    EXPECT_EQ(value("txtAmount"), "-100.00");
    EXPECT_EQ(value("lblHead"), "");
    EXPECT_EQ(value("txtRecFrom"), "");
}

} // namespace

} // namespace orvane
