#include "support/SampleForm.h"

namespace orvane {

SampleForm::SampleForm(Ui& ui, const QString& name) : Form(ui, name, "Sample") {
    txtCode.upperCase().setMaxLength(5);
    txtDigits.onKeyPress = [](QChar key) { return key.isDigit(); };
    txtLocked.setText("fixed");
    txtLocked.setLocked(true);
    txtNote.multiline();
    txtAmt0.numeric();
    cboTown.addItems({"ABA", "IBADAN", "IBADAN NORTH"});
    cboColor.addItems({"RED", "GREEN"});
    fraInner.holds({&radCash, &radBank});
    fraOuter.holds({&fraInner});
    radOne.setChecked(true);
    radCash.setChecked(true);
    for (const char* item : {"ONE", "TWO", "THREE"})
        lstItems.addItem(QString::fromLatin1(item));
    tree.addNode({"root", "Root", {}, true});
    tree.addNode({"leaf", "Leaf", "root", false});
    grdEntry.setHead("----Item----|--Price--");
    status.setPanel(1, "ready");
    mnuHidden.setVisible(false);
    for (Control* control : controls())
        noteEvents(*control);
}

SampleForm::~SampleForm() {
    if (destroyed)
        *destroyed = true;
}

void SampleForm::noteEvents(Control& control) {
    const auto noting = [this, &control](const char* event) {
        return [this, &control, event] { events << control.name() + QLatin1Char(' ') + QLatin1String(event); };
    };
    control.onClick = noting("Click");
    control.onDblClick = noting("DblClick");
    control.onLeave = noting("Leave");
    if (auto* box = dynamic_cast<TextBox*>(&control))
        box->onChange = noting("Change");
    if (auto* combo = dynamic_cast<ComboBox*>(&control))
        combo->onChange = noting("Change");
    if (auto* date = dynamic_cast<DatePicker*>(&control))
        date->onChange = noting("Change");
    if (auto* label = dynamic_cast<Label*>(&control))
        label->onChange = noting("Change");
    if (auto* timer = dynamic_cast<Timer*>(&control))
        timer->onTimer = noting("Timer");
}

Layout SampleForm::layout() const {
    using namespace layout;
    const Layout rows = row({growing(cell(grdRows)), card({field("Amount", txtAmt0), field("Second", txtAmt1)})});
    const Layout entries = row({cell(grdEntry), cell(lstItems), cell(tree)});
    return column({row({field("Name", txtName, 20), field("Code", txtCode, 8), field("Color", cboColor, 12),
                        cell(chkCard), stretch()}),
                   field("Town", cboTown), facts({{"Bill No", &lblTitle}, {"Fixed", &txtLocked}}),
                   row({field("Digits", txtDigits, 10), field("Date", dtDate)}),
                   growing(tabs(strip, {layout::page("Rows", {rows}),
                                        layout::page("Entries", {entries, field("Note", txtNote)})})),
                   row({cell(radOne), cell(radTwo), group("Payment", {row({cell(radCash), cell(radBank)})}, &fraInner),
                        cell(bar)}),
                   cell(status), buttons({&cmdExtra}, {&cmdClose, &cmdSave})});
}

bool SampleForm::Form_Unload() {
    note("Form Unload");
    return !refusesUnload;
}

QStringList SampleForm::takeEvents() {
    QStringList taken;
    for (const QString& event : std::exchange(events, {}))
        if (!event.startsWith(QLatin1String("Form ")))
            taken << event;
    return taken;
}

} // namespace orvane
