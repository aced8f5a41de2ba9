// Every screen, pressed everywhere by an impatient user: whatever is typed and pressed in whatever order, the program
// answers with its own messages, never with a fault of the database.
#include "play/ControlActs.h"
#include "play/HeadlessDriver.h"
#include "screens/Screens.h"
#include "session/Main.h"
#include "support/Hospital.h"
#include "support/TestHome.h"

#include <QRandomGenerator>
#include <QTemporaryDir>

namespace orvane {
namespace {

/// A user who answers at random, and keeps the texts of all boxes.
class HastyUi : public Ui {
public:
    explicit HastyUi(QRandomGenerator& random) : m_random(random) {}
    std::function<void(Form&)> inModal;
    QStringList boxes;

    void box(const QString& text, Icon, const QString&) override { boxes << text; }
    bool question(const QString&, const QString&) override { return m_random.bounded(4) > 0; }
    std::optional<QString> inputBox(const QString&, const QString&, const QString&) override {
        return m_random.bounded(3) ? std::optional(QStringLiteral("1'0")) : std::nullopt;
    }
    void show(Form&) override {}
    void showModal(Form& form) override {
        inModal(form);
        if (!form.isClosed())
            form.abandon();
    }
    void closed(Form&) override {}
    void setBusy(bool) override {}
    void processEvents() override {}
    void printForm(Form&) override {}
    void viewReport(const QString&, const QString&, const Recordset&) override {}
    QString exportFolder() const override { return m_documents.path(); }
    void exported(const QString&) override {}
    void playSound(const QString&) override {}
    QDateTime now() const override { return QDateTime(QDate(2026, 3, 14), QTime(9, 30)); }
    void quit() override {}

private:
    QRandomGenerator& m_random;
    QTemporaryDir m_documents;
};

class EveryScreenTest : public ::testing::TestWithParam<Engine> {
protected:
    EveryScreenTest() : random(20260314), ui(random), program(home.folder(), ui) {
        registerScreens(program);
        program.data().setServerClock(ui.now());
        ui.inModal = [this](Form& form) { actAtRandom(form, 20); };
    }

    void SetUp() override {
        ASSERT_TRUE(prepareServer(program));
        Connection billing = program.openBilling(), accounting = program.openAccounting();
        layHospital(billing, accounting);
        makePatient(billing);
        makePatient(billing, {.pno = "P/0002", .surname = "O'NEILL", .category = "HMO", .client = "0201"});
        makeVisit(billing);
        makeVisit(billing, {.consultID = "001OFL0000002", .pno = "P/0002", .category = "HMO", .client = "0201"});
        makeConsultation(billing);
        makeConsultation(billing, {.consultID = "001OFL0000002", .pno = "P/0002"});
        makeItem(billing);
        makeItem(billing, {.consultID = "001OFL0000002", .pno = "P/0002", .client = "0201"});
        program.data().setStatementHook([this](const QString& statement) { lastStatement = statement; });
    }

    QString someValue(const Control& control) {
        if (control.kind() == ControlKind::DatePicker)
            return random.bounded(3) ? QStringLiteral("2026-03-14") : QString();
        if (control.kind() == ControlKind::CheckBox)
            return random.bounded(2) ? QStringLiteral("yes") : QStringLiteral("no");
        static const QStringList values = {"",       "10",  "-2.5",  "1,500.00", "O'NEILL", "001OFL0000001",
                                           "P/0002", "abc", "1e999", "%_[",      "😀",       " "};
        return values.at(random.bounded(int(values.size())));
    }

    void act(Control& control) {
        if (random.bounded(8) == 0)
            return random.bounded(2) ? driver.dblClick(control) : driver.leave(control);
        switch (control.kind()) {
        case ControlKind::TextBox:
        case ControlKind::DatePicker:
            return setValue(driver, control, someValue(control));
        case ControlKind::ComboBox: {
            const int entries = static_cast<ComboBox&>(control).count();
            return entries > 0 ? pickEntry(driver, control, QString::number(random.bounded(entries)), true)
                               : setValue(driver, control, someValue(control));
        }
        case ControlKind::Grid:
        case ControlKind::EntryGrid:
            return makeRowCurrent(driver, control, QString::number(random.bounded(3)), true);
        default:
            return clickControl(driver, control);
        }
    }

    void actAtRandom(Form& form, int acts) {
        if (++depth > 3) {
            --depth;
            return;
        }
        for (; acts > 0 && !form.isClosed(); --acts) {
            Control& control = *form.controls().at(random.bounded(int(form.controls().size())));
            try {
                requireUsable(control, nullptr);
                act(control);
            } catch (const PlayError&) {
                continue; // its user could not do that
            }
            checkBoxes(form.name() + QLatin1Char('.') + control.name());
        }
        --depth;
    }

    /// No box may speak the engine's words.
    void checkBoxes(const QString& where) {
        static const QStringList faults = {"no such",           "syntax error",   "Item cannot be found",
                                           "cannot be written", "does not exist", "constraint",
                                           "violates",          "ambiguous",      "near \"",
                                           "operator",          "invalid input",  "misuse",
                                           "Unable to fetch"};
        for (const QString& box : std::exchange(ui.boxes, {}))
            for (const QString& fault : faults)
                if (box.contains(fault, Qt::CaseInsensitive) && !seen.contains(box)) {
                    seen << box;
                    ADD_FAILURE() << where.toStdString() << ": " << box.toStdString()
                                  << "\nlast statement: " << lastStatement.toStdString();
                }
        ASSERT_EQ(program.data().openTransactions(), 0) << where.toStdString();
    }

    TestHome home{GetParam()};
    QRandomGenerator random;
    HastyUi ui;
    Program program;
    HeadlessDriver driver;
    QString lastStatement;
    QStringList seen;
    int depth = 0;
};
ORVANE_ON_EACH_ENGINE(EveryScreenTest);

TEST_P(EveryScreenTest, AnswersEveryActWithoutAFaultOfTheDatabase) {
    ASSERT_TRUE(Main(program));
    for (const QString& name : program.formNames()) {
        for (int round = 0; round < 20; ++round) {
            program.open(name);
            checkBoxes(name);
            if (Form* form = program.loadedForm(name))
                actAtRandom(*form, 150);
            if (Form* form = program.loadedForm(name); form && name != QLatin1String("mditolmek"))
                form->abandon();
            if (!program.loadedForm("MdiTolmek"))
                program.open("MdiTolmek");
        }
    }
}

} // namespace
} // namespace orvane
