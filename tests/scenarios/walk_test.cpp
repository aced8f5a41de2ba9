// Walks over every screen. Whatever text comes into whichever field: it is shown back as it was typed, every search,
// refresh and save answers in plain words, and nothing in the databases moves that was not meant to.
#include "ScreenWalk.h"
#include "data/dialect/Catalog.h"
#include "data/words/Money.h"
#include "play/ControlActs.h"
#include "session/Screen.h"
#include "support/HostileTexts.h"
#include "support/Rows.h"

#include <QRandomGenerator>

namespace orvane {
namespace {

bool takesText(const Control& control) {
    const auto* box = dynamic_cast<const TextBox*>(&control);
    const auto* list = dynamic_cast<const ComboBox*>(&control);
    return box ? !box->isLocked() : list && !list->isLocked() && list->style() == ComboBox::FreeText;
}

bool isNumberField(const Control& control) {
    const auto* box = dynamic_cast<const TextBox*>(&control);
    return box && box->isNumeric();
}

class HostileText : public ScreenWalk {
protected:
    HostileText() {
        ui.answer = [this] { return std::optional(text); };
        ui.inModal = [this](Form& form) {
            if (++m_depth < 3)
                pressEveryButton(form);
            --m_depth;
        };
    }
    void prepare(Connection& billing) override {
        billing.run("update AppDefaults set idval='NO' where ID='LockPrice'"); // prices are typed too
    }

    static QString nameOf(const Control& control) { return control.form().name() + QLatin1Char('.') + control.name(); }
    QString where(const Control& control) const { return nameOf(control) + " <" + text.left(20) + QLatin1Char('>'); }

    /// Types into a field, a disabled one too: another state of its screen enables it.
    void type(Control& control, QString typed) {
        m_typedInto.insert(nameOf(control));
        if (control.onKeyPress)
            typed.removeIf([&](QChar key) { return !control.keyPress(key); });
        bool upper = false;
        if (auto* box = dynamic_cast<TextBox*>(&control)) {
            typed.truncate(box->maxLength() > 0 ? box->maxLength() : typed.size());
            driver.type(*box, typed);
            upper = box->isUpperCase();
        } else if (auto* list = dynamic_cast<ComboBox*>(&control)) {
            driver.type(*list, typed);
            upper = list->isUpperCase();
        }
        if (control.form().isClosed())
            return;
        const QString shown = control.valueText(), expected = upper ? typed.toUpper() : typed;
        const bool sameAmount = isNumberField(control) && parseAmount(shown) == parseAmount(expected);
        EXPECT_TRUE(shown == expected || sameAmount)
            << where(control).toStdString() << " shows " << shown.left(40).toStdString();
        checkBoxes(where(control));
        driver.leave(control);
        checkBoxes(where(control) + " left");
    }

    void pressEveryButton(Form& form) {
        for (Control* control : QVector<Control*>(form.controls())) {
            if (form.isClosed() || control->kind() != ControlKind::Button || !control->isUsable())
                continue;
            for (Control* field : QVector<Control*>(form.controls()))
                if (!form.isClosed() && takesText(*field))
                    type(*field, text);
            if (form.isClosed() || !control->isUsable())
                continue;
            driver.click(*control);
            checkBoxes(where(*control));
            ++m_presses;
        }
    }

    /// Every row of both databases but the trails of who was at work, and roles: any text makes one.
    QSet<QString> everyRow() {
        static const QStringList trails = {"LoginTrail", "UserActivities", "AuditTrail", "SavedActions",
                                           "SavedParts", "UserRoles",      "Roles"};
        QSet<QString> rows;
        for (const QString& database : {QString("billing"), QString("accounting")}) {
            Connection connection = database == "billing" ? program.openBilling() : program.openAccounting();
            for (const Table* table : Catalog::instance().tables(database)) {
                if (trails.contains(table->name, Qt::CaseInsensitive))
                    continue;
                for (const QString& row : rowsOf(connection, "select * from [" + table->name + ']').split('\n'))
                    rows << table->name + '\t' + row;
            }
        }
        return rows;
    }

    QString text;
    QSet<QString> m_typedInto;
    int m_depth = 0;
    int m_presses = 0;
};
ORVANE_ON_EACH_ENGINE(HostileText);

TEST_P(HostileText, IsShownBackAndChangesNothingByItself) {
    const QSet<QString> before = everyRow();
    QStringList untouched;
    for (const QString& name : program.formNames()) {
        if (name == QLatin1String("mditolmek"))
            continue; // it has no field
        for (const QString& hostile : hostileTexts()) {
            text = hostile;
            if (Form* form = opened(name))
                pressEveryButton(*form);
            if (Form* left = program.loadedForm(name))
                left->abandon();
            program.deleteClosedForms();
        }
        for (const Control* control : program.form(name).controls())
            if (takesText(*control) && !m_typedInto.contains(nameOf(*control)))
                untouched << nameOf(*control);
    }
    EXPECT_EQ(untouched, QStringList()) << "fields that were never reached";
    EXPECT_GT(m_presses, 6000);
    const QSet<QString> after = everyRow();
    EXPECT_EQ((before - after).values() + (after - before).values(), QStringList());
}

/// An impatient user: whatever is typed and pressed in whatever order, the program answers with its own messages.
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
        ++depth;
        for (; depth <= 3 && acts > 0 && !form.isClosed(); --acts) {
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

/// Hidden ones too, and those that an empty entry opens where it is turned on.
TEST_P(EveryScreenTest, OpensFromTheMenuWithTheLeastRights) {
    program.open("MdiTolmek");
    QStringList entries;
    for (const Control* control : program.form("MdiTolmek").controls())
        if (const auto* item = dynamic_cast<const MenuItem*>(control);
            item && item->menu() && item->isEnabled() && item->name() != QLatin1String("mnuEPE"))
            entries << item->name();
    EXPECT_GT(entries.size(), 60);
    ui.answer = [] { return std::nullopt; };
    for (const QString& entry : std::as_const(entries)) {
        Form& shell = program.form("MdiTolmek");
        shell.userEvent([&] { static_cast<MenuItem*>(shell.find(entry))->click(); });
        checkBoxes(entry);
        if (Form* active = program.activeForm(); active && active != &shell)
            active->abandon();
    }
}

} // namespace
} // namespace orvane
