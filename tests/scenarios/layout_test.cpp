// Every screen shows each of its controls, once, where its frames reach it.
#include "screens/Screens.h"
#include "support/TestUi.h"

#include <QTemporaryDir>

namespace orvane {
namespace {

/// Walks a layout: every control once, and what stands inside a frame's group is held by that frame.
void walk(const Layout& part, QList<const Control*>& seen, const Control* frame, QStringList& faults) {
    const Control* inside = part.kind == Layout::Group && part.control ? part.control : frame;
    if (part.control && part.control != inside && part.kind != Layout::Tabs) {
        if (seen.contains(part.control))
            faults << part.control->name() + QStringLiteral(" stands twice");
        seen << part.control;
        const Control* holder = part.control->parentFrame();
        while (holder && holder != frame)
            holder = holder->parentFrame();
        if (holder != frame)
            faults << part.control->name() + QStringLiteral(" stands in ") + frame->name() + ", which does not hold it";
    }
    for (const Layout& child : part.children)
        walk(child, seen, inside, faults);
}

} // namespace

TEST(Layouts, LayOutEveryControlThatItsUserNeeds) {
    QTemporaryDir home;
    TestUi ui;
    Program program(home.path(), ui);
    registerScreens(program);
    // Frames and tabs are parts of the layout itself, a label's text may name a field, the rest belongs to the main
    // window.
    const QList<ControlKind> shownElsewhere = {ControlKind::Frame, ControlKind::TabStrip,  ControlKind::Label,
                                               ControlKind::Timer, ControlKind::StatusBar, ControlKind::Menu};
    for (const QString& name : program.formNames()) {
        const Form& form = program.form(name);
        QStringList faults;
        QList<const Control*> seen;
        walk(form.layout(), seen, nullptr, faults);
        for (const Control* control : form.controls())
            if (control->isVisible() && !shownElsewhere.contains(control->kind()) && !seen.contains(control))
                faults << control->name() + QStringLiteral(" is nowhere");
        EXPECT_EQ(faults.join("; "), "") << name.toStdString();
    }
}

} // namespace orvane
