// The keyboard alone, on the real windows of the program: how many keys a receipt costs, and what stays in sight.
#include "desktop/DesktopUi.h"
#include "desktop/Keyed.h"
#include "desktop/ShellWindow.h"
#include "desktop/ViewTest.h"
#include "screens/Screens.h"
#include "session/Main.h"
#include "support/Rows.h"
#include "support/Workstation.h"

#include <QFile>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMessageBox>
#include <QTabWidget>
#include <QTimer>

namespace orvane {
namespace {

/// A user with a keyboard only, before whom two patients wait. Each press counts as one, a chord too, and Enter in a
/// box; what he must type whatever the program does, the letters of a name and the digits of an amount, does not.
class KeysTest : public ::testing::TestWithParam<std::pair<QSize, double>> {
protected:
    void SetUp() override {
        Workstation station(home.folder());
        station.layHospital();
        Connection billing = station.billing();
        const QDate today = QDate::currentDate();
        for (const QString& name : {QStringLiteral("ADEYEMI"), QStringLiteral("OGINNI")}) {
            const QString pno = name.left(5), consultID = "001OFL" + name;
            makePatient(billing, {.pno = pno, .surname = name});
            makeVisit(billing, {.consultID = consultID, .pno = pno, .date = today});
            makeConsultation(billing, {.consultID = consultID, .pno = pno, .date = today});
            makeItem(billing, {.consultID = consultID, .pno = pno, .date = today, .price = 2000});
        }
        QFile settings(home.folder() + "/orvane.ini");
        ASSERT_TRUE(settings.open(QIODevice::Append) &&
                    settings.write("\n[menu]\nmnuRct = 1\nmnuDispense = 1\nmnuStockEntry = 1\n") > 0);
        settings.close();
        QFont font = usual;
        font.setPointSizeF(usual.pointSizeF() * GetParam().second);
        QApplication::setFont(font);
        ui.windows().setMainSize(GetParam().first);
        registerScreens(program);
        ASSERT_TRUE(Main(program, "amina.b"));
        QObject::connect(&agree, &QTimer::timeout, &agree, [this] { enterBox(); });
        agree.start(20);
    }
    void TearDown() override {
        program.form("MdiTolmek").abandon();
        QApplication::setFont(usual);
    }
    void enterBox() {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box)
            return;
        boxes << box->text();
        ++keys;
        QTest::keyClick(box, Qt::Key_Return);
    }
    Binding* bindingOf(const QString& name) {
        Form& form = program.form(name.section('.', 0, 0));
        return ui.windows().viewOf(form)->bindingOf(*form.find(name.section('.', 1)));
    }
    /// Alt goes to the menu bar, even while one of its menus is open.
    static QKeySequence menuKey(const QAction& entry) {
        const QKeySequence key = QKeySequence::mnemonic(entry.text());
        return entry.menu() ? key : QKeySequence(key[0].key());
    }
    /// As the words of a menu, a button, a tab (the second) or a field show it.
    QKeySequence keyOf(const QString& name) {
        const Binding* binding = bindingOf(name);
        if (const auto* menu = qobject_cast<const MenuBinding*>(binding))
            return menuKey(*menu->action());
        if (const auto* button = qobject_cast<QAbstractButton*>(binding->widget()))
            return button->shortcut();
        if (const auto* tabs = qobject_cast<QTabWidget*>(binding->widget()))
            return QKeySequence::mnemonic(tabs->tabText(1));
        for (const KeyLabel* label : ui.windows().shell()->findChildren<KeyLabel*>())
            if (label->buddy() == binding->editor())
                return label->key().sequence();
        return {};
    }
    QWidget* target() {
        QWidget* dialog = QApplication::activeModalWidget();
        if (!QApplication::activeWindow() || dialog) // nobody does it on a screen without a window manager
            (dialog ? dialog : ui.windows().shell())->activateWindow();
        settleEvents();
        if (QWidget* popup = QApplication::activePopupWidget())
            return popup;
        return QApplication::focusWidget() ? QApplication::focusWidget() : QApplication::activeWindow();
    }
    /// Keys, names of what is gone to or pressed ("FORM.CONTROL"), and texts ("'ADE"). Gives how many keys it took.
    int work(const QStringList& steps) {
        keys = 0;
        for (const QString& step : steps) {
            const QKeySequence key = step.contains('.') ? keyOf(step) : QKeySequence(step);
            if (step.startsWith('\'')) {
                QTest::keyClicks(target(), step.mid(1));
                continue;
            }
            ++keys;
            QTest::keyClick(target(), key[0].key(), key[0].keyboardModifiers());
            QTest::qWait(150); // a button shows that it is pressed, and then acts
        }
        return keys;
    }
    void expectReceipt(const QString& screen, const QString& next) {
        EXPECT_EQ(ui.windows().shell()->area()->currentSubWindow()->windowTitle(), "Cash Receipt");
        work({"Esc"});
        EXPECT_TRUE(bindingOf(screen + '.' + next)->widget()->hasFocus()) << "where the next entry begins";
    }

    const QFont usual = QApplication::font();
    TestHome home;
    DesktopUi ui;
    Program program{home.folder(), ui};
    QTimer agree;
    int keys = 0;
    QStringList boxes;
};
/// A usual screen, a small one, and large letters.
INSTANTIATE_TEST_SUITE_P(Sizes, KeysTest,
                         ::testing::Values(std::pair(QSize(1366, 768), 1.0), std::pair(QSize(1024, 600), 1.0),
                                           std::pair(QSize(1366, 768), 1.3)));

TEST_P(KeysTest, AReceiptTakesFewAndWhatIsPayableAndSavedStaysInSight) {
    const QString collate = "frmBillingVerify.", receipt = "frmReceiptTemp.";
    int counted = work({"MdiTolmek.cmdView"});
    EXPECT_TRUE(bindingOf("frmFlash.dGexp")->widget()->hasFocus());
    counted += work({"Return"});
    for (const char* name : {"lblAmtDue", "OKButton", "cmdCancel", "txtSearch", "cboVehNo"}) {
        const QWidget* shown = bindingOf(collate + name)->widget();
        EXPECT_EQ(shown->visibleRegion().boundingRect(), shown->rect()) << name;
    }
    EXPECT_LE(work({collate + "SSTab1"}), 3);
    counted += 1 + work({collate + "chkRct", collate + "cboPayFor", "Down", "Down", collate + "chkExact", "Ctrl+S"});
    EXPECT_LE(counted, 20) << "from the worklist to a full receipt";
    RecordProperty("worklist", counted);
    expectReceipt("frmBillingVerify", "cboVehNo");

    // The other patient's bill, saved without a receipt.
    work({"MdiTolmek.cmdView", "Return", "Ctrl+S", "Esc"});
    const QStringList pay{"Return", "'OGINNI", "Down", "Return", receipt + "txtHt", "'500"};
    const QStringList again = pay + QStringList{receipt + "cboPay", "Down", "Ctrl+S"};
    for (const QStringList& road :
         {QStringList{"MdiTolmek.mnuActivities", "MdiTolmek.mnuRct"} + pay + QStringList{"Ctrl+S"}, again}) {
        boxes.clear();
        counted = work(road);
        EXPECT_LE(counted, 12) << "a receipt against a bill";
        RecordProperty(road == again ? "again" : "bill", counted);
        EXPECT_EQ(boxes, (QStringList{"Are you sure to save?", "Record Succesfully saved"}));
        expectReceipt("frmReceiptTemp", "cmdAdd");
    }
}

TEST_P(KeysTest, AnOutletServesACustomerFromHisRequestToHisReceipt) {
    const QString request = "frmInvestigatePublic.", bill = "frmBillingPublic.";
    work({"MdiTolmek.mnuOutlets", "MdiTolmek.mnuReqEntrt", "Return", "'OKORO", request + "txtFirst", "'ADA"});
    work({request + "cboMat", "Down", request + "txtSex", "Down", request + "txtLabNo", "'L1"});
    work({request + "cboCat", "Down", "Down", request + "cboDrug", "'PARACETAMOL", "Tab", "Return", "Ctrl+S"});
    EXPECT_EQ(boxes.value(1), "Record Succesfully saved !!! Please collate bill");
    work({"Return", bill + "cboCat", "Down", bill + "cboPay", "Down", bill + "txtHt", "'50", "Ctrl+S"});
    expectReceipt("frmBillingPublic", "cboVehNo");
    Connection billing = program.openBilling();
    EXPECT_EQ(rowsOf(billing, "select ReceiptNo, AmountPaid from Payments"), "001LB0000001|50");
}

TEST_P(KeysTest, BillsAreMovedBeforeTheMonthsRun) {
    Connection billing = program.openBilling();
    makePatient(billing);
    makeMonthBill(billing, "001OFL000777", "0102", 700.5, QDate::currentDate());
    const QString shift = "frmBillProcessingShift.", split = "frmBillSplitting.", collate = "frmBillingVerify.";
    work({"MdiTolmek.mnuActivities", "MdiTolmek.mnuSBTAPP", shift + "cmdList", shift + "cboVehNo", "Down", "Down",
          shift + "cmdAll", shift + "cboPeriod", "'0", shift + "cmdProcess", "Esc"});
    work({"MdiTolmek.mnuReport", "MdiTolmek.mnuBNIPSL", "Return", "frmVerifyBillsInSummary.OKButton", "Esc"});
    QTimer inDialog; // the press that opens it returns when it is closed
    QObject::connect(&inDialog, &QTimer::timeout, &inDialog, [&] {
        if (!program.loadedForm("frmBillSplitting"))
            return;
        inDialog.stop();
        work({"F6", "Down", "Up", "Space", split + "cboPeriod", "Down", "Down", split + "cmdProcess", "Esc"});
    });
    inDialog.start(50);
    work({"MdiTolmek.mnuActivities", "MdiTolmek.mnuVerify", collate + "txtSearch", "'001OFL000777", collate + "cmdOK",
          collate + "cmdSplit"});
    EXPECT_EQ(boxes.join('|'),
              "Are you sure to Update Bills Processing?|1 Patient Bills successfully Shifted to Another Month|"
              "Records successfully Updated|Are you sure to Shift/Split Bill?|"
              "1 Patient Bill Items successfully Shifted to PRIVATE PATIENTS");
}

TEST_P(KeysTest, AVoucherIsPaidAndARevenueTypeAdded) {
    const QString pay = "frmExpensePay.", type = "frmRevCat.";
    Connection billing = program.openBilling();
    billing.run("insert into ChartOfAccounts (AccountNo, AccountName, groupID) values ('1210', 'CASH', '1210000'), "
                "('5310', 'FUEL', '5310000')");
    billing.run("insert into hExpenseApprvFinal (vouchNo, ApprvDate, ReceivedBy, Amount) values "
                "('V1', '2026-03-14', 'MUSA', 501)");
    billing.run("insert into hExpenseDetailsApprvFinal (vouchNo, ItemName, Qty, Price, SubTotal) values "
                "('V1', 'DIESEL', 2, 250.5, 501)");
    const int counted =
        work({"MdiTolmek.mnuActivities", "P", pay + "cmdAdd", "Down", pay + "cboDrug", "Down", pay + "cboPay", "Down",
              pay + "cboExpense", "Down", pay + "cboBank", "Down", pay + "cmdGrid", "Ctrl+S"});
    RecordProperty("voucher", counted);
    EXPECT_EQ(boxes, (QStringList{"Are you sure to save?", "Record Succesfully saved"}));
    EXPECT_EQ(target(), bindingOf(pay + "cmdAdd")->widget()) << "where the next entry begins";
    EXPECT_EQ(rowsOf(billing, "select AmountPaid,isPaid from hExpenseApprvFinal"), "501|1");
    boxes.clear();
    work({"Esc", "MdiTolmek.mnuFile", "R", type + "cmdAdd", "'scans", "Tab", "'CLINIC", type + "txtAcctNo", "'1210",
          type + "cboYes", "Down", "Ctrl+S"});
    EXPECT_EQ(boxes, (QStringList{"Are you sure to Save Record", "Record Succesfully Saved"}));
    EXPECT_EQ(rowsOf(billing, "select CatRemarks,Active,AccountNo from hRevenueType where revType='SCANS'"),
              "CLINIC|YES|1210");
}

TEST_P(KeysTest, APrescriptionIsDispensedAndGoodsAreTakenIn) {
    const QString give = "frmDispensing.", stock = "frmStockEntry.", outlets = "MdiTolmek.mnuOutlets";
    Connection billing = program.openBilling();
    billing.run("update hconsulting set attendedto=0, injprescription='STAT' where PNo='OGINN'");
    billing.run("update employees set deptID='PHARM' where empID='E001'");
    work({outlets, "MdiTolmek.mnuDispense", "Down", give + "cboDrug", "'arte", "Down", "Return", give + "txtQty", "'2",
          give + "txtUsage", "'STAT", "Return", "Ctrl+S"});
    EXPECT_EQ(boxes, (QStringList{"Are you sure to save?", "Record Succesfully saved"}));
    EXPECT_EQ(rowsOf(billing, "select injname,numOfTimes from hInjAndDressing"), "ARTEMETHER INJECTION|2");
    boxes.clear();
    work({"Esc", outlets, "MdiTolmek.mnuStockEntry", "'parac", "Down", "Return", stock + "txtFields(0)", "'7",
          stock + "cboDriver", "Down", "Return"});
    EXPECT_EQ(boxes, QStringList{"Record Succesfully saved"});
    EXPECT_EQ(rowsOf(billing, "select UnitsInStock from StockItemsRetail where ItemID='PARACETAMOL 500MG'"), "507");
    EXPECT_EQ(target(), bindingOf(stock + "cboVehNo")->widget()) << "where the next entry begins";
}

} // namespace
} // namespace orvane
