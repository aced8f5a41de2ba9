// Whatever text comes into whichever field: it is shown back as it was typed, every search, refresh and save answers in
// plain words, and nothing in the databases moves that was not meant to.
#include "ScreenWalk.h"
#include "data/dialect/Catalog.h"
#include "data/words/Money.h"
#include "session/Screen.h"
#include "support/Check.h"
#include "support/HostileTexts.h"

namespace orvane {
namespace {

bool takesText(const Control& control) {
    if (control.kind() == ControlKind::TextBox)
        return !static_cast<const TextBox&>(control).isLocked();
    return control.kind() == ControlKind::ComboBox && !static_cast<const ComboBox&>(control).isLocked() &&
           static_cast<const ComboBox&>(control).style() == ComboBox::FreeText;
}

bool isNumberField(const Control& control) {
    return control.kind() == ControlKind::TextBox && static_cast<const TextBox&>(control).isNumeric();
}

/// The lines of one list that are not in another.
QStringList missing(QStringList lines, const QStringList& others) {
    const QSet<QString> there(others.begin(), others.end());
    lines.removeIf([&](const QString& line) { return there.contains(line); });
    return lines;
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
        if (control.kind() == ControlKind::TextBox) {
            auto& box = static_cast<TextBox&>(control);
            typed.truncate(box.maxLength() > 0 ? box.maxLength() : typed.size());
            driver.type(box, typed);
            upper = box.isUpperCase();
        } else {
            driver.type(static_cast<ComboBox&>(control), typed);
            upper = static_cast<ComboBox&>(control).isUpperCase();
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

    void typeEverywhere(Form& form) {
        for (Control* control : QVector<Control*>(form.controls()))
            if (!form.isClosed() && takesText(*control))
                type(*control, text);
    }

    void press(Control& button) {
        driver.click(button);
        checkBoxes(where(button));
        ++m_presses;
    }

    void pressEveryButton(Form& form) {
        for (Control* control : QVector<Control*>(form.controls())) {
            if (form.isClosed() || control->kind() != ControlKind::Button || !control->isUsable())
                continue;
            typeEverywhere(form);
            if (!form.isClosed() && control->isUsable())
                press(*control);
        }
    }

    /// Every row of both databases but the trails of who was at work, and roles: any text makes one.
    QStringList everyRow() {
        static const QStringList trails = {"LoginTrail", "UserActivities", "AuditTrail", "UserRoles", "Roles"};
        QStringList rows;
        for (const QString& database : {QStringLiteral("billing"), QStringLiteral("accounting")}) {
            Connection connection =
                database == QLatin1String("billing") ? program.openBilling() : program.openAccounting();
            for (const Table* table : Catalog::instance().tables(database)) {
                if (trails.contains(table->name, Qt::CaseInsensitive))
                    continue;
                QStringList lines;
                for (Recordset row = connection.run("select * from [" + table->name + ']'); !row.eof();
                     row.moveNext()) {
                    QStringList cells{table->name};
                    for (int column = 0; column < row.columns().size(); ++column)
                        cells << row.text(column);
                    lines << cells.join('\t');
                }
                lines.sort();
                rows << lines;
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
    const QStringList before = everyRow();
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
    const QStringList after = everyRow();
    EXPECT_EQ(missing(before, after), QStringList());
    EXPECT_EQ(missing(after, before), QStringList());
}

} // namespace
} // namespace orvane
