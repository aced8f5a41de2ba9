// Every screen, pressed everywhere by an impatient user: whatever is typed and pressed in whatever order, the program
// answers with its own messages, never with a fault of the database.
#include "ScreenWalk.h"
#include "play/ControlActs.h"
#include "session/Screen.h"
#include "support/LeastRights.h"

#include <QRandomGenerator>

namespace orvane {
namespace {

class EveryScreenTest : public ScreenWalk {
protected:
    EveryScreenTest() {
        ui.yes = [this] { return random.bounded(4) > 0; };
        ui.answer = [this] { return random.bounded(3) ? std::optional("1'0") : std::nullopt; };
        ui.inModal = [this](Form& form) { actAtRandom(form, 20); };
    }

    void limitRights() override { rights.emplace(home); }

    QString someValue(const Control& control) {
        if (control.kind() == ControlKind::DatePicker)
            return random.bounded(3) ? "2026-03-14" : QString();
        if (control.kind() == ControlKind::CheckBox)
            return random.bounded(2) ? "yes" : "no";
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

    QRandomGenerator random{20260314};
    std::optional<LeastRights> rights;
    int depth = 0;
};
ORVANE_ON_EACH_ENGINE(EveryScreenTest);

TEST_P(EveryScreenTest, AnswersEveryActWithoutAFaultOfTheDatabase) {
    for (const QString& name : program.formNames()) {
        for (int round = 0; round < 20; ++round) {
            if (Form* form = opened(name))
                actAtRandom(*form, 150);
            if (Form* form = program.loadedForm(name); form && name != QLatin1String("mditolmek"))
                form->abandon();
        }
    }
}

} // namespace
} // namespace orvane
