// A workstation that dies at any moment of an action loses nothing that it reported saved, leaves no half of it, and
// the action can be done again.
#include "demo/Check.h"
#include "support/TestHome.h"
#include "support/Workstation.h"

#include <QDir>
#include <QFile>
#include <csignal>
#include <iostream>
#include <sys/wait.h>
#include <unistd.h>

namespace orvane {

namespace {

const char* const bill = "001OFL0000001";

/// What a user does, up to the step that is killed, and that step.
struct Action {
    const char* name;
    void (*lay)(Workstation&);   ///< rows and earlier work, once
    void (*enter)(Workstation&); ///< in a fresh program, up to the last press
    void (*act)(Workstation&);
    /// By which the user knows that it is saved: "box TEXT", "opened FORM" or "closed FORM".
    const char* report;
    bool byItem = false; ///< saves item by item and reports nothing: what is missing follows the next time
};

void PrintTo(const Action& action, std::ostream* out) {
    *out << action.name;
}

void layVisit(Workstation& ws) {
    Connection connection = ws.billing();
    makePatient(connection);
    makeVisit(connection);
}

void layItems(Workstation& ws) {
    layVisit(ws);
    Connection connection = ws.billing();
    makeItem(connection, {.qty = 10});
    makeItem(connection, {.name = "MALARIA PARASITE", .billType = "LAB", .revType = "LABORATORY", .price = 1500.5});
}

void loadBill(Workstation& ws) {
    ws.open("frmBillingVerify");
    ws.set("frmBillingVerify.txtSearch", bill);
    ws.click("frmBillingVerify.cmdOK");
}

/// Presses a save that asks first.
void press(Workstation& ws, const QString& button) {
    ws.ui.answer(true);
    ws.click(button);
}

/// A bill of 2000.50 naira, saved and owed.
void layBill(Workstation& ws) {
    layItems(ws);
    loadBill(ws);
    press(ws, "frmBillingVerify.OKButton");
    ws.close("frmBillingVerify");
}

void enterAttendance(Workstation& ws) {
    ws.open("frmRecordsOffline");
    ws.click("frmRecordsOffline.cmdAdd");
    ws.set("frmRecordsOffline.txtName", "ADEYEMI");
    ws.click("frmRecordsOffline.cmdOK");
    ws.pick("frmRecordsOffline.cboVehNo", 0);
    ws.set("frmRecordsOffline.cboType", "OPD");
    ws.set("frmRecordsOffline.cboClient", "CONSULTATION");
    ws.pick("frmRecordsOffline.cboAppr", "BELLO AMINA");
}

void enterBillItems(Workstation& ws) {
    ws.program.session.gConsultID = bill;
    ws.program.session.sBillPno = "P/0001";
    ws.program.session.sBillPatLabel = "ADEYEMI BOLA";
    ws.open("frmBillPat");
    for (const auto& [kind, item] : {std::pair("DRUG", "PARACETAMOL 500MG"), std::pair("SERVICE", "WOUND DRESSING")}) {
        ws.set("frmBillPat.cboCat", kind);
        ws.set("frmBillPat.cboDrug", item);
        ws.set("frmBillPat.txtQty", "2");
        ws.pick("frmBillPat.cboPat", 1);
        ws.click("frmBillPat.cmdAdd");
    }
}

void enterSaveWithReceipt(Workstation& ws) {
    loadBill(ws);
    ws.set("frmBillingVerify.chkRct", "yes");
    ws.set("frmBillingVerify.cboPayFor", "DRUGS");
    ws.set("frmBillingVerify.chkExact", "yes");
}

void enterReceipt(Workstation& ws) {
    ws.open("frmReceiptTemp");
    ws.click("frmReceiptTemp.cmdAdd");
    ws.pick("frmReceiptTemp.cboVehNo", bill);
    ws.set("frmReceiptTemp.cboPay", "CASH");
    ws.set("frmReceiptTemp.txtHt", "1,500.25");
}

void layReceipt(Workstation& ws) {
    layBill(ws);
    enterReceipt(ws);
    press(ws, "frmReceiptTemp.OKButton");
}

void enterReversal(Workstation& ws) {
    ws.open("frmReceiptTemp");
    ws.row("frmReceiptTemp.grdData", 0);
    ws.click("frmReceiptTemp.cmdRev");
    ws.set("frmReceiptTemp.chkRev", "yes");
}

void enterDeposit(Workstation& ws) {
    ws.open("frmReceiptDeposit");
    if (ws.state("frmReceiptDeposit.cmdAdd") == "visible enabled")
        ws.click("frmReceiptDeposit.cmdAdd");
    ws.pick("frmReceiptDeposit.cboVehNo", bill);
    ws.set("frmReceiptDeposit.txtHt", "5,000.50");
}

void enterManual(Workstation& ws) {
    ws.open("frmReceiptManual");
    if (ws.state("frmReceiptManual.cmdAdd") == "visible enabled")
        ws.click("frmReceiptManual.cmdAdd");
    ws.pick("frmReceiptManual.cboVehNo", bill);
    ws.pick("frmReceiptManual.cboReceived", "BELLO");
    ws.set("frmReceiptManual.txtRct", "0047");
    ws.set("frmReceiptManual.txtBill", "1,500.50");
    ws.set("frmReceiptManual.txtHt", "1000");
}

void adjust(Workstation& ws) {
    ws.row("frmBillingVerify.grdData", "PARACETAMOL 500MG");
    ws.ui.inModal("frmPriceAdjustVerify", [&ws](Form&) {
        ws.set("frmPriceAdjustVerify.txtQty", "20");
        ws.set("frmPriceAdjustVerify.txtPrice", "40.25");
        ws.click("frmPriceAdjustVerify.cmdSave");
    });
    ws.dblClick("frmBillingVerify.grdData");
}

const char* const saved = "box Record Succesfully saved";
const char* const receiptShown = "opened frmCashReceipt";

const Action actions[] = {
    {"Attendance",
     [](Workstation& ws) {
         Connection connection = ws.billing();
         makePatient(connection);
         makeItem(connection, {.consultID = "", .name = "MALARIA PARASITE"});
     },
     enterAttendance, [](Workstation& ws) { ws.click("frmRecordsOffline.OKButton"); }, saved},
    {"Collation", layItems,
     [](Workstation& ws) {
         ws.open("frmBillingVerify");
         ws.set("frmBillingVerify.txtSearch", bill);
     },
     [](Workstation& ws) { ws.click("frmBillingVerify.cmdOK"); }, "", true},
    {"BillItems",
     [](Workstation& ws) {
         layVisit(ws);
         Connection connection = ws.billing();
         makeConsultation(connection);
     },
     enterBillItems, [](Workstation& ws) { press(ws, "frmBillPat.OKButton"); }, "closed frmBillPat"},
    {"SaveWithReceipt", layItems, enterSaveWithReceipt, [](Workstation& ws) { press(ws, "frmBillingVerify.OKButton"); },
     receiptShown},
    {"Receipt", layBill, enterReceipt, [](Workstation& ws) { press(ws, "frmReceiptTemp.OKButton"); }, saved},
    {"Reversal", layReceipt, enterReversal, [](Workstation& ws) { press(ws, "frmReceiptTemp.OKButton"); }, saved},
    {"Deposit", layVisit, enterDeposit, [](Workstation& ws) { press(ws, "frmReceiptDeposit.OKButton"); }, receiptShown},
    {"ManualReceipt", layVisit, enterManual, [](Workstation& ws) { press(ws, "frmReceiptManual.OKButton"); }, saved},
    {"Adjustment", layBill, loadBill, adjust, "closed frmPriceAdjustVerify"},
};

/// What an action may change, in numbers: rows and sums of every table of money.
QString figures(Workstation& ws) {
    QStringList found;
    for (const char* figure : {
             "count(*) from hRecords",
             "count(BillDate) from hRecords",
             "count(*) from BillAccum where consultID<>''",
             "sum(attendedto) from BillAccum",
             "sum(isBilled) from BillAccum",
             "sum(isRct) from BillAccum",
             "sum(SubTotal) from BillAccum",
             "count(*) from BillingDetails",
             "sum(SubTotal) from BillingDetails",
             "sum(isRct) from BillingDetails",
             "sum(Amountbilled) from Billing",
             "sum(AmountPaid) from Billing",
             "count(*) from Payments",
             "sum(AmountPaid) from Payments",
             "sum(AmountPaid) from PaymentTypes",
             "sum(AmountPaid) from PaymentDetails",
             "count(*) from Tranxaction",
             "sum(Amount) from Tranxaction",
             "sum(DebtBF) from hPatients",
             "count(*) from BillingDetailsAdjust",
         })
        found << figure + QLatin1String(": ") + ws.scalar(QLatin1String("select ") + QLatin1String(figure));
    found << "ledger: " + ws.accountingScalar("select count(*) as n from Tranxaction");
    return found.join('\n');
}

/// How an action went in its own process.
struct ActionRun {
    bool killed = false;
    bool reported = false; ///< the user had been told that it is saved
    int moments = 0;       ///< so many it could have been killed at before it ended
};

/// The child's part: plays the action and dies at the moment `killAt`; tells the parent what it reported before that.
void playAndDie(const QString& folder, const Action& action, int killAt, int pipe) {
    Workstation ws(folder);
    if (!ws.start())
        throw std::runtime_error("the program does not start");
    action.enter(ws);
    ws.ui.forgetBoxes();
    ws.ui.takeQuestions();
    ws.ui.opened.clear();
    ws.ui.closedForms.clear();

    QStringList shown;
    int moments = 0;
    const auto tell = [&] {
        for (const QString& text : ws.ui.takeBoxes())
            shown << "box " + text;
        for (const QString& form : ws.ui.opened)
            shown << "opened " + form;
        for (const QString& form : ws.ui.closedForms)
            shown << "closed " + form;
        const QByteArray told =
            (shown.contains(QLatin1String(action.report)) ? "1" : "0") + QByteArray::number(moments);
        if (write(pipe, told.constData(), static_cast<size_t>(told.size())) != told.size())
            _exit(3);
    };
    ws.program.data().setStatementHook([&](const QString&) {
        if (moments == killAt) {
            tell();
            raise(SIGKILL);
        }
        ++moments;
    });
    action.act(ws);
    tell();
    if (!action.byItem && !shown.contains(QLatin1String(action.report)))
        throw std::runtime_error("nothing was reported saved, but: " + shown.join(" / ").toStdString());
    _exit(::testing::Test::HasFailure() ? 1 : 0);
}

/// Plays the action in a process of its own, which is killed at this moment (-1: never).
ActionRun play(const TestHome& home, const Action& action, int killAt) {
    int ends[2];
    if (pipe(ends) != 0)
        throw std::runtime_error("no pipe");
    std::cout.flush();
    const pid_t child = fork();
    if (child == 0) {
        close(ends[0]);
        try {
            playAndDie(home.folder(), action, killAt, ends[1]);
        } catch (const std::exception& fault) {
            std::cerr << action.name << ": " << fault.what() << std::endl;
        }
        _exit(2);
    }
    close(ends[1]);
    QByteArray told;
    char buffer[4096];
    for (ssize_t size = 0; (size = read(ends[0], buffer, sizeof buffer)) > 0;)
        told.append(buffer, size);
    close(ends[0]);
    int status = 0;
    waitpid(child, &status, 0);
    ActionRun run;
    run.killed = WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
    EXPECT_TRUE(run.killed || (WIFEXITED(status) && WEXITSTATUS(status) == 0)) << "the child ended with " << status;
    run.reported = told.startsWith('1');
    run.moments = told.mid(1).toInt();
    return run;
}

class Kill : public ::testing::TestWithParam<std::tuple<Engine, Action>> {
protected:
    const Engine engine = std::get<0>(GetParam());
    const Action& action = std::get<1>(GetParam());

    /// Databases on which the action can be done: copied where databases are files, else laid anew.
    std::unique_ptr<TestHome> freshHome() {
        if (engine != Engine::Sqlite)
            return layHome();
        if (!m_laid)
            m_laid = layHome();
        auto home = std::make_unique<TestHome>(engine);
        for (const QString& file : QDir(m_laid->folder() + "/data").entryList(QDir::Files)) {
            const QString target = home->folder() + "/data/" + file;
            QFile::remove(target);
            if (!QFile::copy(m_laid->folder() + "/data/" + file, target))
                throw std::runtime_error("cannot copy to " + target.toStdString());
        }
        return home;
    }
    static QString soundFigures(const TestHome& home) {
        Workstation ws(home.folder());
        EXPECT_EQ(checkDatabases(ws.program).findings, QStringList());
        return figures(ws);
    }

private:
    std::unique_ptr<TestHome> layHome() const {
        auto home = std::make_unique<TestHome>(engine);
        Workstation ws(home->folder());
        ws.layHospital();
        if (!ws.start())
            throw std::runtime_error("the program does not start");
        action.lay(ws);
        ws.ui.forgetBoxes();
        ws.ui.takeQuestions();
        return home;
    }

    std::unique_ptr<TestHome> m_laid;
};

INSTANTIATE_TEST_SUITE_P(On, Kill, ::testing::Combine(::testing::ValuesIn(testEngines()), ::testing::ValuesIn(actions)),
                         [](const auto& instance) {
                             return engineName(std::get<0>(instance.param)) + std::get<1>(instance.param).name;
                         });

TEST_P(Kill, LosesNothingThatWasReportedSaved) {
    const auto whole = freshHome();
    const ActionRun unkilled = play(*whole, action, -1);
    const QString after = soundFigures(*whole);

    // Laying the databases anew for each moment is slow on a server; ORVANE_PROOF_ALL=1 takes the time.
    const int step = engine == Engine::Sqlite || qEnvironmentVariableIsSet("ORVANE_PROOF_ALL") ? 1 : 7;
    QString before;
    for (int moment = 0; moment < unkilled.moments; moment += step) {
        SCOPED_TRACE("killed at " + std::to_string(moment));
        const auto home = freshHome();
        const ActionRun run = play(*home, action, moment);
        ASSERT_TRUE(run.killed);
        const QString left = soundFigures(*home);
        if (moment == 0) {
            before = left;
            ASSERT_NE(before, after);
        }
        EXPECT_TRUE(!run.reported || left == after) << "reported saved, but left:\n" << left.toStdString();
        EXPECT_TRUE(action.byItem || left == before || left == after) << "a half:\n" << left.toStdString();
        if (left != after) {
            play(*home, action, -1);
            EXPECT_EQ(soundFigures(*home), after) << "done again";
        }
    }
    std::cout << engineName(engine) << ' ' << action.name << ": killed at " << (unkilled.moments + step - 1) / step
              << " of " << unkilled.moments << " moments" << std::endl;
}

} // namespace

} // namespace orvane
