#include "support/SampleForm.h"

namespace orvane {

SampleForm::SampleForm(Ui& ui, const QString& name) : Form(ui, name, QStringLiteral("Sample")) {
    txtCode.upperCase().setMaxLength(5);
    txtDigits.onKeyPress = [](QChar key) { return key.isDigit(); };
    txtLocked.setText(QStringLiteral("fixed"));
    txtLocked.setLocked(true);
    txtNote.multiline();
    cboTown.addItems({QStringLiteral("ABA"), QStringLiteral("IBADAN"), QStringLiteral("IBADAN NORTH")});
    cboColor.addItems({QStringLiteral("RED"), QStringLiteral("GREEN")});
    fraInner.holds({&radCash, &radBank});
    fraOuter.holds({&fraInner});
    radOne.setChecked(true);
    radCash.setChecked(true);
    for (const char* item : {"ONE", "TWO", "THREE"})
        lstItems.addItem(QString::fromLatin1(item));
    tree.addNode({QStringLiteral("root"), QStringLiteral("Root"), {}, true});
    tree.addNode({QStringLiteral("leaf"), QStringLiteral("Leaf"), QStringLiteral("root"), false});
    grdEntry.setHead(QStringLiteral("----Item----|--Price--"));
    status.setPanel(1, QStringLiteral("ready"));
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
    return column({cell(lblTitle),
                   row({field(QStringLiteral("Name"), txtName), field(QStringLiteral("Code"), txtCode),
                        field(QStringLiteral("Town"), cboTown), field(QStringLiteral("Color"), cboColor)}),
                   row({cell(chkCard), cell(radOne), cell(radTwo), field(QStringLiteral("Date"), dtDate)}),
                   group(QStringLiteral("Payment"), {cell(radCash), cell(radBank)}, &fraInner),
                   tabs(strip, {layout::page(QStringLiteral("Rows"), {growing(cell(grdRows))}),
                                layout::page(QStringLiteral("Entries"), {growing(cell(grdEntry))})}),
                   buttons({}, {&cmdClose, &cmdSave})});
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
