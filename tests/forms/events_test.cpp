// The events of a control, raised alike by its user and by code.
#include "support/SampleForm.h"
#include "support/TestUi.h"

namespace orvane {
namespace {

/// Sets a property to these values, one after the other.
template <typename Control, typename Argument, typename... Value>
void each(Control& control, void (Control::*set)(Argument), const Value&... values) {
    ((control.*set)(values), ...);
}

class Events : public ::testing::Test {
protected:
    QString both() { return QString::number(form.cboTown.listIndex()) + ' ' + form.cboTown.text(); }

    TestUi ui;
    SampleForm form{ui};
};

TEST(EventsOfCode, AreThoseOfTheUserOnceForEachNews) {
    using F = SampleForm;
    const QDate day(2026, 3, 14);
    const std::pair<const char*, std::function<void(F&)>> cases[] = {
        {"txtName Change;txtName Change", [](F& f) { each(f.txtName, &TextBox::setText, "A", "A", ""); }},
        {"txtCode Change", [](F& f) { each(f.txtCode, &TextBox::setText, "ab", "AB"); }},
        {"txtLocked Change", [](F& f) { f.txtLocked.setText("locked for the user only"); }},
        {"cboTown Click;cboTown Click", [](F& f) { each(f.cboTown, &ComboBox::setListIndex, 1, 1); }},
        {"cboTown Click", [](F& f) { each(f.cboTown, &ComboBox::setText, "ibadan", "IBADAN"); }},
        {"cboTown Change", [](F& f) { each(f.cboTown, &ComboBox::setText, "LAGOS", "LAGOS"); }},
        {"cboColor Click", [](F& f) { each(f.cboColor, &ComboBox::setText, "RED", "BLUE", ""); }},
        {"", [](F& f) { f.cboColor.clear(), f.lstItems.clear(), f.tree.clear(); }},
        {"chkCard Click;chkCard Click", [](F& f) { each(f.chkCard, &CheckBox::setChecked, true, true, false); }},
        {"radTwo Click", [](F& f) { each(f.radTwo, &OptionButton::setChecked, true, true); }}, // nothing of radOne
        {"lstItems Click", [](F& f) { f.lstItems.setSelected(1, true), f.lstItems.setSelected(1, true); }},
        {"", [](F& f) { f.lstItems.setSelected(0, false); }},
        {"dtDate Change;dtDate Change", [&](F& f) { each(f.dtDate, &DatePicker::setDate, day, day, QDate()); }},
        {"tabs Click", [](F& f) { each(f.strip, &TabStrip::setTab, 0, 2); }},
        {"tree Click;tree Click", [](F& f) { each(f.tree, &Tree::select, "leaf", "leaf"); }},
        {"lblTitle Change", [](F& f) { each(f.lblTitle, &Label::setText, "Sample", "New"); }},
        {"", [](F& f) { f.lblTitle.setCaption("a caption is no text"); }},
        {"tmrTick Timer", [](F& f) { f.tmrTick.tick(), f.tmrTick.setEnabled(false), f.tmrTick.tick(); }},
    };
    for (const auto& [events, steps] : cases) {
        TestUi ui;
        SampleForm form(ui);
        form.takeEvents();
        steps(form);
        EXPECT_EQ(form.takeEvents().join(';'), events);
    }
}

TEST_F(Events, ComboBoxKeepsTextAndIndexTogether) {
    EXPECT_EQ(both(), "-1 ");
    for (const auto& [text, shown] :
         {std::pair("ibadan north", "2 IBADAN NORTH"), {"IBADAN SOUTH", "-1 IBADAN SOUTH"}}) {
        form.cboTown.setText(text);
        EXPECT_EQ(both(), shown);
    }
    each(form.cboTown, &ComboBox::setListIndex, 0, -1);
    EXPECT_EQ(both(), "-1 ");
    form.cboTown.addItem("ABA", 7); // a second entry of the same text
    form.cboTown.setListIndex(3);
    form.cboTown.setText("ABA");
    EXPECT_EQ(both(), "3 ABA");
    EXPECT_EQ(form.cboTown.itemData(3).toInt(), 7);
    form.cboTown.clear();
    EXPECT_EQ(both(), "-1 ");
    each(form.cboColor, &ComboBox::setText, "green", "BLUE");
    EXPECT_EQ(form.cboColor.listIndex(), 1);
    EXPECT_EQ(form.cboColor.text(), "GREEN");
}

TEST_F(Events, FramesReachWhatIsInThem) {
    form.radBank.setChecked(true);
    EXPECT_FALSE(form.radCash.isChecked());
    EXPECT_TRUE(form.radOne.isChecked()) << "an option outside the frame is another group";
    form.radTwo.setChecked(true);
    EXPECT_TRUE(!form.radOne.isChecked() && form.radBank.isChecked());

    int repaints = 0;
    QObject::connect(&form.radCash, &Control::changed, [&] { ++repaints; });
    EXPECT_TRUE(form.radCash.isUsable());
    form.fraOuter.setEnabled(false);
    EXPECT_FALSE(form.radCash.isUsable());
    EXPECT_TRUE(form.radCash.isShown());
    EXPECT_TRUE(form.radCash.isEnabled()) << "its own flag stands";
    EXPECT_GT(repaints, 0) << "what shows the option must hear of it";
    form.fraOuter.setEnabled(true);
    form.fraInner.setVisible(false);
    EXPECT_FALSE(form.radCash.isShown() || form.radCash.isUsable());
    EXPECT_FALSE(form.mnuInHidden.isUsable()) << "an entry of a hidden menu cannot be reached";
    EXPECT_TRUE(form.mnuEntry.isUsable());

    EXPECT_EQ(form.find("TXTAMT(1)"), &form.txtAmt1);
    for (const char* none : {"txtAmt", ""})
        EXPECT_EQ(form.find(none), nullptr);
}

} // namespace
} // namespace orvane
