#include "Worker.h"

#include "data/Physical.h"
#include "demo/Hand.h"
#include "demo/QuietUi.h"
#include "screens/Screens.h"
#include "session/Main.h"
#include "support/Hospital.h"

#include <QTextStream>
#include <QThread>
#include <cstdio>

namespace orvane {

namespace {

const QString saved = QStringLiteral("Record Succesfully saved");
const QString attendedAlready = QStringLiteral("Patient Attendance already entered!!! Duplicate not allowed");

/// A box that no step allows: the save did not come to its end.
struct Refusal {
    QString step;
    QString text;
};

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
    Worker(const QString& home, int number) : m_number(number), m_program(home, m_ui) {
        const QDateTime today(QDate(2026, 3, 14), QTime(9, 30));
        m_ui.setClock(today);
        m_program.data().setServerClock(today);
        registerScreens(m_program);
        if (!Main(m_program, QStringLiteral("amina.b")))
            throw DataError(m_ui.takeBoxes().join(QLatin1Char('\n')));
        // A transaction lasts long enough for the others to come upon it.
        m_program.data().setStatementHook([](const QString& tsql) {
            if (tsql == QLatin1String("commit transaction"))
                QThread::msleep(3);
        });
        m_ui.takeBoxes();
    }

    /// Waits until everybody is there, so that the work overlaps, and does it.
    void work(int rounds) {
        tell({"ready"});
        QTextStream(stdin).readLine();
        for (int round = 0; round < rounds; ++round) {
            const QString& shared = sharedVisits.at((m_number + round) % sharedVisits.size());
            QString visit;
            attempt([&] { visit = attend(); });
            if (!visit.isEmpty()) {
                attempt([&] { deposit(visit, 500.5); });
                attempt([&] { collate(visit, 700.25); });
            }
            order(shared, 40 + m_number);
            attempt([&] { collate(shared, 0); });
            attempt([&] { receiveAndReverse(shared, 300.1 + m_number); });
        }
    }

private:
    template <typename Step>
    void attempt(Step step) {
        try {
            step();
        } catch (const Refusal& refusal) {
            tell({"trouble", refusal.step, refusal.text});
        } catch (const DataError& fault) {
            tell({"trouble", "fault", fault.description()});
        }
        for (const char* name : {"frmRecordsOffline", "frmReceiptDeposit", "frmBillingVerify", "frmReceiptTemp"})
            if (Form* form = m_program.loadedForm(QLatin1String(name)))
                form->abandon();
        m_program.deleteClosedForms();
        m_ui.takeBoxes();
    }

    void tell(const QStringList& words) {
        QString line = words.join(QLatin1Char('\t'));
        m_out << line.replace(QLatin1Char('\n'), QLatin1Char(' ')) << Qt::endl;
    }

    void tellReceipt(const QString& number, const QString& bill, double amount) {
        tell({"receipt", number, bill, QString::number(amount, 'f', 2)});
    }

    void expectBoxes(const QString& step, const QStringList& expected) {
        if (const QStringList boxes = m_ui.takeBoxes(); boxes != expected)
            throw Refusal{step, boxes.join(QStringLiteral(" / "))};
    }

    Form& opened(const QString& name) {
        m_program.open(name);
        return m_program.form(name);
    }

    /// The number on the receipt that the screen has just shown.
    QString shownReceipt(const QString& step) {
        Form* receipt = m_program.loadedForm(QStringLiteral("frmCashReceipt"));
        if (!receipt)
            throw Refusal{step, QStringLiteral("no receipt came up")};
        const QString number = Hand(*receipt).value(QStringLiteral("txtReceiptNo"));
        receipt->abandon();
        return number;
    }

    /// Enters the next patient who has no open visit: the other workers enter the same ones. Gives the visit.
    QString attend() {
        Form& form = opened(QStringLiteral("frmRecordsOffline"));
        Hand hand(form);
        for (int attempts = 0; attempts < 200; ++attempts) {
            const QString pno = sharedPatients.at(m_next++ % sharedPatients.size());
            hand.click(QStringLiteral("cmdAdd"));
            hand.type(QStringLiteral("txtName"), QStringLiteral("PROOF"));
            hand.click(QStringLiteral("cmdOK"));
            hand.chooseContaining(QStringLiteral("cboVehNo"), QStringLiteral("[%1]").arg(pno));
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
                throw Refusal{QStringLiteral("visit"), boxes.join(QStringLiteral(" / "))};
            QThread::msleep(5);
        }
        throw Refusal{QStringLiteral("visit"), QStringLiteral("every patient is in")};
    }

    QString saveVisit(Hand& hand, QStringList& boxes) {
        hand.choose(QStringLiteral("cboType"), QStringLiteral("OPD"));
        hand.choose(QStringLiteral("cboClient"), QStringLiteral("CONSULTATION"));
        hand.chooseContaining(QStringLiteral("cboAppr"), QStringLiteral("[E001]"));
        QString visit;
        m_ui.onBox = [&](const QString&) { visit = hand.value(QStringLiteral("lblBill")); };
        hand.click(QStringLiteral("OKButton"));
        m_ui.onBox = nullptr;
        boxes = m_ui.takeBoxes();
        return visit;
    }

    void deposit(const QString& visit, double amount) {
        Hand hand(opened(QStringLiteral("frmReceiptDeposit")));
        hand.click(QStringLiteral("cmdAdd"));
        hand.chooseContaining(QStringLiteral("cboVehNo"), visit);
        hand.type(QStringLiteral("txtHt"), QString::number(amount, 'f', 2));
        hand.click(QStringLiteral("OKButton"));
        expectBoxes(QStringLiteral("deposit"), {});
        tellReceipt(shownReceipt(QStringLiteral("deposit")), visit, amount);
    }

    /// What an outlet has given to the patient of a visit.
    void order(const QString& visit, double price) {
        Connection connection = m_program.openBilling();
        makeItem(connection, {.consultID = visit,
                              .pno = sharedPatients.at(sharedVisits.indexOf(visit)),
                              .name = QStringLiteral("ITEM OF %1").arg(m_number),
                              .price = price});
    }

    /// Collates and saves a visit, with a receipt where `cash` (naira) is above 0.
    void collate(const QString& visit, double cash) {
        const QString step = QStringLiteral("bill");
        Hand hand(opened(QStringLiteral("frmBillingVerify")));
        hand.type(QStringLiteral("txtSearch"), visit);
        hand.click(QStringLiteral("cmdOK"));
        expectBoxes(step, {});
        if (cash > 0) {
            hand.tick(QStringLiteral("chkRct"));
            hand.choose(QStringLiteral("cboPayFor"), QStringLiteral("CONSULTING AND DRUGS"));
            hand.type(QStringLiteral("txtAmt(0)"), QString::number(cash, 'f', 2));
        }
        hand.click(QStringLiteral("OKButton"));
        expectBoxes(step, cash > 0 ? QStringList() : QStringList{saved});
        tell({"bill", visit});
        if (cash > 0)
            tellReceipt(shownReceipt(step), visit, cash);
    }

    void receiveAndReverse(const QString& bill, double amount) {
        Form& form = opened(QStringLiteral("frmReceiptTemp"));
        Hand hand(form);
        hand.click(QStringLiteral("cmdAdd"));
        hand.chooseContaining(QStringLiteral("cboVehNo"), bill);
        hand.choose(QStringLiteral("cboPay"), QStringLiteral("CASH"));
        hand.type(QStringLiteral("txtHt"), QString::number(amount, 'f', 2));
        hand.click(QStringLiteral("OKButton"));
        expectBoxes(QStringLiteral("receipt"), {saved});
        const QString number = shownReceipt(QStringLiteral("receipt"));
        tellReceipt(number, bill, amount);

        // The screen leaves the saved receipt selected.
        const auto& grid = static_cast<const Grid&>(*form.find(QStringLiteral("grdData")));
        if (grid.text(QStringLiteral("ReceiptNo")) != number)
            throw Refusal{QStringLiteral("reversal"), QStringLiteral("another receipt is selected")};
        hand.click(QStringLiteral("cmdRev"));
        hand.tick(QStringLiteral("chkRev"));
        hand.click(QStringLiteral("OKButton"));
        expectBoxes(QStringLiteral("reversal"), {saved});
        tellReceipt(grid.text(QStringLiteral("ReceiptNo")), bill, -amount);
    }

    int m_number;
    int m_next = 0; ///< patient
    WorkerUi m_ui;
    Program m_program;
    QTextStream m_out{stdout};
};

} // namespace

int runWorker(const QStringList& arguments) {
    setGateForTests(arguments.value(3) != QLatin1String("no-gate"));
    try {
        Worker(arguments.value(0), arguments.value(1).toInt()).work(arguments.value(2).toInt());
    } catch (const DataError& fault) {
        QTextStream(stderr) << fault.description() << Qt::endl;
        return 1;
    }
    return 0;
}

} // namespace orvane
