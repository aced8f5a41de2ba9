#include "Worker.h"

#include "data/engine/Physical.h"
#include "demo/DemoOutlets.h"
#include "play/QuietUi.h"
#include "screens/Screens.h"
#include "session/Main.h"
#include "support/Entries.h"
#include "support/Hospital.h"
#include "support/Workstation.h"

#include <QCoreApplication>
#include <QTextStream>
#include <QThread>
#include <cstdio>

namespace orvane {

namespace {

const QString saved = "Record Succesfully saved";
const QString attendedAlready = "Patient Attendance already entered!!! Duplicate not allowed";

QString naira(double amount) {
    return QString::number(amount, 'f', 2);
}

/// Sees each box while the screen still holds what it has saved.
class WorkerUi : public QuietUi {
public:
    std::function<void(const QString&)> onBox;
    void box(const QString& text, Icon icon, const QString& title) override {
        if (onBox)
            onBox(text);
        QuietUi::box(text, icon, title);
    }
};

class Worker {
public:
    Worker(const QString& home, const QStringList& options) : m_options(options), m_program(home, m_ui) {
        const QDateTime today(QDate(2026, 3, 14), QTime(9, 30));
        m_ui.setClock(today);
        m_program.data().setServerClock(today);
        registerScreens(m_program);
        if (!Main(m_program, "amina.b"))
            throw DataError(m_ui.takeBoxes().join(QLatin1Char('\n')));
        m_ui.takeBoxes();
        // A balance that was read is out of date for a while, and a transaction lasts long enough for the others.
        if (m_options.contains("linger"))
            m_program.data().setStatementHook([](const QString& tsql) {
                if (tsql == "commit transaction" || tsql.startsWith("insert into [Tranxaction]") ||
                    tsql.startsWith("update StockItemsRetail") || tsql.startsWith("insert into [BillAccum]") ||
                    tsql.startsWith("update Billing set isprocess=1") ||
                    tsql.startsWith("insert into TranFromAppsTrail"))
                    QThread::msleep(3);
            });
    }

    /// Waits until everybody is there, so that the work overlaps, and does it.
    void work(const QStringList& numbers, int rounds, const AroundWork& around) {
        if (m_options.contains("officer"))
            listBatch();
        if (const QString form = postingForm(); !form.isEmpty())
            m_program.open(form);
        if (m_options.contains("storekeeper"))
            enterDispensing();
        tell({"ready"});
        QTextStream(stdin).readLine();
        around(m_program, [&] { workRounds(numbers, rounds); });
    }

    void workRounds(const QStringList& numbers, int rounds) {
        for (const QString& number : numbers) {
            m_number = number.toInt();
            if (m_options.contains("officer"))
                processBatch();
            if (m_options.contains("storekeeper"))
                press("frmDispensing", "dispensed");
            for (int round = 0; round < rounds; ++round)
                workRound(round);
        }
    }

private:
    bool ownsItsRows() const { return m_options.contains("own"); }

    void listBatch() {
        Hand hand = openScreen(m_program, "frmBillProcessing");
        hand.click("cmdGet");
        hand.click("cmdAll");
        expectBoxes("list of the batch", {});
    }

    void processBatch() {
        Hand(m_program.form("frmBillProcessing")).click("cmdProcess");
        tell({"run", m_ui.takeBoxes().join(" / ")});
    }

    /// Where this worker posts to the ledger; empty: nowhere.
    QString postingForm() const {
        return m_options.contains("cash")       ? "frmRevCashAcct"
               : m_options.contains("invoices") ? "frmBillProcessingPost"
                                                : "";
    }

    void post() {
        const bool cash = m_options.contains("cash");
        Hand hand(m_program.form(postingForm()));
        if (cash) {
            hand.click("cmdList");
        } else {
            hand.choose("cboMonth", "March");
            hand.choose("cboYear", "2026");
        }
        hand.click(cash ? "cmdView" : "cmdPost");
        tell({"posted", m_ui.takeBoxes().join(" / ")});
    }

    /// Bills of clients get one more item each; those that a run has taken meanwhile are refused.
    void workOnBatch(int round) {
        for (int bill = 0; bill < billsOfBatch; bill += 3) {
            const QString number = visitOfWorkers(bill);
            order(number, "P/0001", 40 + m_number + round);
            attempt([&] {
                Hand hand = loadBill(m_program, number);
                hand.click("OKButton");
                tell({m_ui.takeBoxes() == QStringList{saved} ? "bill" : "refused", number});
            });
        }
    }

    void enterDispensing() {
        Hand hand = openScreen(m_program, "frmDispensing");
        hand.chooseContaining("cboVehNo", visitOfWorkers(0));
        hand.choose("cboDrug", "ARTEMETHER INJECTION");
        hand.type("txtQty", "1");
        hand.type("txtUsage", "STAT");
        hand.click("cmdAdd");
    }

    void press(const QString& form, const char* kind) {
        Hand(m_program.form(form)).click("OKButton");
        tell({kind, m_ui.takeBoxes().join(" / ")});
    }

    void workInStore(int round) {
        const QString qty = QString::number(m_number + 1 + round);
        Hand hand = openScreen(m_program, "frmStockEntry");
        hand.choose("cboVehNo", "PARACETAMOL 500MG");
        hand.type("txtFields(0)", qty);
        hand.chooseContaining("cboDriver", "BELLO");
        hand.click("OKButton");
        expectBoxes("goods", {saved});
        tell({"goods", qty});
        hand.click("cmdEdit");
        hand.type("txtFields(0)", QString::number(50 + m_number));
        press("frmStockEntry", "changed");
    }

    void workRound(int round) {
        if (m_options.contains("storekeeper"))
            return attempt([&] { workInStore(round); });
        if (m_options.contains("cashier"))
            return workOnBatch(round);
        if (!postingForm().isEmpty())
            return post();
        if (m_options.contains("outlet"))
            return attempt([&] { serveOutlet(); });
        const int turn = ownsItsRows() ? m_number : (m_number + round) % sharedVisits;
        const QString shared = visitOfWorkers(turn);
        QString visit;
        attempt([&] { visit = attend(); });
        if (!visit.isEmpty()) {
            attempt([&] { deposit(visit, 500.5); });
            attempt([&] { collate(visit, 700.25); });
        }
        order(shared, patientOfWorkers(turn), 40 + m_number);
        attempt([&] { collate(shared, 0); });
        attempt([&] { receiveAndReverse(shared, 300.1 + m_number); });
    }

    void serveOutlet() {
        Hand request = enterOutletRequest(m_program, "PROOF", QString::number(m_number),
                                          {{"INVESTIGATION", "MALARIA PARASITE", "1"}});
        request.click("OKButton");
        expectBoxes("request", {"Record Succesfully saved !!! Please collate bill"});
        request.click("cmdBill");
        Hand bill = enterOutletBill(m_program, {}, "1500", "LABORATORY");
        const QString number = bill.value("lblBill");
        bill.click("OKButton");
        expectBoxes("outlet bill", {});
        tell({"outlet", number, Hand(m_program.form("frmCashReceiptLab")).value("txtReceiptNo")});
    }

    template <typename Step>
    void attempt(Step step) {
        try {
            step();
        } catch (const DataError& fault) {
            tell({"trouble", fault.description()});
        }
        for (const char* name : {"frmInvestigatePublic", "frmBillingPublic", "frmCashReceiptLab", "frmRecordsOffline",
                                 "frmReceiptDeposit", "frmBillingVerify", "frmReceiptTemp", "frmStockEntry"})
            if (Form* form = m_program.loadedForm(QLatin1String(name)))
                form->abandon();
        m_program.deleteClosedForms();
        m_ui.takeBoxes();
    }

    void tell(const QStringList& words) {
        if (m_options.contains("silent"))
            return;
        QString line = words.join(QLatin1Char('\t'));
        m_out << line.replace(QLatin1Char('\n'), QLatin1Char(' ')) << Qt::endl;
    }

    void tellReceipt(const char* kind, const QString& number, const QString& bill, double amount) {
        tell({kind, number, bill, naira(amount)});
    }

    /// A box that a step does not allow: the save did not come to its end.
    void expectBoxes(const QString& step, const QStringList& expected) {
        if (const QStringList boxes = m_ui.takeBoxes(); boxes != expected)
            throw DataError(step + ": " + boxes.join(" / "));
    }

    /// Enters the next patient who has no open visit: the other workers enter the same ones. Gives the visit.
    QString attend() {
        for (int attempts = 0; attempts < 200; ++attempts) {
            const QString pno = patientOfWorkers(ownsItsRows() ? m_number : m_next++ % sharedPatients);
            Hand hand = findPatient(m_program, "PROOF", pno);
            QStringList boxes = m_ui.takeBoxes();
            if (boxes.isEmpty()) {
                const QString visit = saveVisit(hand, boxes);
                if (boxes == QStringList{saved}) {
                    tell({"visit", visit, pno});
                    // The doctor has seen the patient, who may come again.
                    m_program.openBilling().execute(Sql("update hRecords set attendedto=1 where consultID='")
                                                    << visit << "'");
                    return visit;
                }
            }
            if (boxes != QStringList{attendedAlready})
                throw DataError("visit: " + boxes.join(" / "));
            QThread::msleep(5);
        }
        throw DataError("every patient is in");
    }

    QString saveVisit(Hand& hand, QStringList& boxes) {
        completeAttendance(hand);
        QString visit;
        m_ui.onBox = [&](const QString&) { visit = hand.value("lblBill"); };
        hand.click("OKButton");
        m_ui.onBox = nullptr;
        boxes = m_ui.takeBoxes();
        return visit;
    }

    void deposit(const QString& visit, double amount) {
        enterDeposit(m_program, visit, naira(amount)).click("OKButton");
        expectBoxes("deposit", {});
        tellReceipt("deposit", takeReceipt(m_program), visit, amount);
    }

    /// What an outlet has given to the patient of a visit.
    void order(const QString& visit, const QString& pno, double price) {
        Connection connection = m_program.openBilling();
        makeItem(connection,
                 {.consultID = visit, .pno = pno, .name = QStringLiteral("ITEM OF %1").arg(m_number), .price = price});
        tell({"item", visit, naira(price)});
    }

    /// Collates and saves a visit, with a receipt where `cash` (naira) is above 0.
    void collate(const QString& visit, double cash) {
        Hand hand = loadBill(m_program, visit);
        expectBoxes("bill", {});
        if (cash > 0)
            enterCash(hand, "CONSULTING AND DRUGS", naira(cash));
        hand.click("OKButton");
        expectBoxes("bill", cash > 0 ? QStringList() : QStringList{saved});
        if (cash > 0)
            tellReceipt("paidbill", takeReceipt(m_program), visit, cash);
        else
            tell({"bill", visit});
    }

    void receiveAndReverse(const QString& bill, double amount) {
        enterReceipt(m_program, bill, naira(amount)).click("OKButton");
        expectBoxes("receipt", {saved});
        const QString number = takeReceipt(m_program);
        tellReceipt("receipt", number, bill, amount);

        // The screen leaves the saved receipt selected.
        const auto& grid = static_cast<const Grid&>(*m_program.form("frmReceiptTemp").find("grdData"));
        if (grid.text("ReceiptNo") != number)
            throw DataError("another receipt is selected");
        enterReversal(m_program).click("OKButton");
        expectBoxes("reversal", {saved});
        tellReceipt("reversal", grid.text("ReceiptNo"), bill, -amount);
    }

    QStringList m_options;
    int m_number = 0;
    int m_next = 0; ///< patient
    WorkerUi m_ui;
    Program m_program;
    QTextStream m_out{stdout};
};

} // namespace

QString patientOfWorkers(int number) {
    return QStringLiteral("P/%1").arg(number + 1, 4, 10, QLatin1Char('0'));
}

QString visitOfWorkers(int number) {
    return QStringLiteral("001OFL%1").arg(number + 1, 7, 10, QLatin1Char('0'));
}

int runWorker(const QStringList& arguments, const AroundWork& around) {
    const QStringList options = arguments.mid(3);
    setGateForTests(!options.contains("no-gate"));
    try {
        Worker worker(arguments.value(0), options);
        worker.work(arguments.value(1).split(','), arguments.value(2).toInt(), around);
    } catch (const DataError& fault) {
        QTextStream(stderr) << fault.description() << Qt::endl;
        return 1;
    }
    return 0;
}

void rehearse(const QString& homeFolder, const QString& number) {
    Worker(homeFolder, {"own", "silent"}).workRounds({number}, 1);
}

WorkerProcess::WorkerProcess(const QStringList& arguments)
    : m_output(std::make_unique<QTemporaryFile>()), m_process(std::make_unique<QProcess>()) {
    m_output->open();
    m_process->setStandardOutputFile(m_output->fileName());
    m_process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process->start(QCoreApplication::applicationFilePath(), arguments);
}

bool WorkerProcess::isReady() {
    while (m_output->size() == 0)
        if (m_process->waitForFinished(10) || m_process->state() == QProcess::NotRunning)
            return false;
    return true;
}

void WorkerProcess::begin() {
    m_process->write("begin\n");
    m_process->waitForBytesWritten();
}

bool WorkerProcess::hasEndedWell() {
    return m_process->waitForFinished(-1) && m_process->exitStatus() == QProcess::NormalExit &&
           m_process->exitCode() == 0;
}

QStringList WorkerProcess::told() const {
    QFile lines(m_output->fileName());
    return lines.open(QIODevice::ReadOnly) ? QString::fromUtf8(lines.readAll()).split('\n', Qt::SkipEmptyParts).mid(1)
                                           : QStringList();
}

void workTogether(const TestHome& home, const QList<QStringList>& workers, QStringList& told) {
    std::vector<std::unique_ptr<SecondHome>> homes;
    std::vector<WorkerProcess> running;
    for (const QStringList& worker : workers) {
        const QString number = QString::number(homes.size());
        homes.push_back(std::make_unique<SecondHome>(home));
        running.emplace_back(QStringList{"--worker", homes.back()->folder(), number, worker.first(), "linger"} +
                             worker.mid(1));
    }
    for (WorkerProcess& worker : running)
        ASSERT_TRUE(worker.isReady());
    for (WorkerProcess& worker : running)
        worker.begin();
    for (WorkerProcess& worker : running) {
        ASSERT_TRUE(worker.hasEndedWell());
        told << worker.told();
    }
}

} // namespace orvane
