// The events of a control, raised alike by its user and by code.
#include "support/SampleForm.h"
#include "support/TestUi.h"

namespace orvane {
namespace {

struct EventCase {
    const char* what;
    std::function<void(SampleForm&)> steps;
    QStringList events;
};

TEST(Events, CodeRaisesThemLikeTheUser) {
    const EventCase cases[] = {
        {"a text changes once for each new text",
         [](SampleForm& f) {
             f.txtName.setText("A");
             f.txtName.setText("A");
             f.txtName.setText("");
         },
         {"txtName Change", "txtName Change"}},
        {"a capital box sees no change in the same capitals",
         [](SampleForm& f) {
             f.txtCode.setText("ab");
             f.txtCode.setText("AB");
         },
         {"txtCode Change"}},
        {"a locked box is only locked for the user",
         [](SampleForm& f) { f.txtLocked.setText("by code"); },
         {"txtLocked Change"}},
        {"choosing an index clicks, the same one again too",
         [](SampleForm& f) {
             f.cboTown.setListIndex(1);
             f.cboTown.setListIndex(1);
         },
         {"cboTown Click", "cboTown Click"}},
        {"an entry's text in any case of letters chooses it",
         [](SampleForm& f) { f.cboTown.setText("ibadan"); },
         {"cboTown Click"}},
        {"the text of the chosen entry is no news",
         [](SampleForm& f) {
             f.cboTown.setListIndex(1);
             f.cboTown.setText("IBADAN");
         },
         {"cboTown Click"}},
        {"a free text changes, and does not click",
         [](SampleForm& f) {
             f.cboTown.setText("LAGOS");
             f.cboTown.setText("LAGOS");
         },
         {"cboTown Change"}},
        {"a list-only box refuses a text that is not in its list",
         [](SampleForm& f) {
             f.cboColor.setListIndex(0);
             f.cboColor.setText("BLUE");
             f.cboColor.setText("");
         },
         {"cboColor Click"}},
        {"emptying a list raises nothing",
         [](SampleForm& f) {
             f.cboColor.clear();
             f.lstItems.clear();
             f.tree.clear();
         },
         {}},
        {"a tick set by code clicks, once",
         [](SampleForm& f) {
             f.chkCard.setChecked(true);
             f.chkCard.setChecked(true);
             f.chkCard.setChecked(false);
         },
         {"chkCard Click", "chkCard Click"}},
        {"an option clicks when it is turned on, the one turned off does not",
         [](SampleForm& f) {
             f.radTwo.setChecked(true);
             f.radTwo.setChecked(true);
         },
         {"radTwo Click"}},
        {"a selection in a list clicks when it differs",
         [](SampleForm& f) {
             f.lstItems.setSelected(1, true);
             f.lstItems.setSelected(1, true);
             f.lstItems.setSelected(0, false);
         },
         {"lstItems Click"}},
        {"a date changes, to empty too",
         [](SampleForm& f) {
             f.dtDate.setDate(QDate(2026, 3, 14));
             f.dtDate.setDate(QDate(2026, 3, 14));
             f.dtDate.clear();
         },
         {"dtDate Change", "dtDate Change"}},
        {"another tab clicks",
         [](SampleForm& f) {
             f.strip.setTab(0);
             f.strip.setTab(2);
         },
         {"tabs Click"}},
        {"a node clicks each time",
         [](SampleForm& f) {
             f.tree.select("leaf");
             f.tree.select("leaf");
         },
         {"tree Click", "tree Click"}},
        {"a label changes, its caption set at design does not",
         [](SampleForm& f) {
             f.lblTitle.setText("Sample");
             f.lblTitle.setText("New");
             f.lblTitle.setCaption("Other");
         },
         {"lblTitle Change"}},
        {"a timer ticks while it is enabled",
         [](SampleForm& f) {
             f.tmrTick.tick();
             f.tmrOff.tick();
             f.tmrTick.setEnabled(false);
             f.tmrTick.tick();
         },
         {"tmrTick Timer"}},
    };
    for (const EventCase& one : cases) {
        SCOPED_TRACE(one.what);
        TestUi ui;
        SampleForm form(ui);
        form.takeEvents();
        one.steps(form);
        EXPECT_EQ(form.takeEvents(), one.events);
    }
}

TEST(Events, ComboBoxKeepsTextAndIndexTogether) {
    TestUi ui;
    SampleForm form(ui);
    ComboBox& box = form.cboTown;
    const auto both = [&] { return QString::number(box.listIndex()) + ' ' + box.text(); };
    EXPECT_EQ(both(), "-1 ");
    box.setText("ibadan north");
    EXPECT_EQ(both(), "2 IBADAN NORTH");
    box.setText("IBADAN SOUTH");
    EXPECT_EQ(both(), "-1 IBADAN SOUTH");
    box.setListIndex(0);
    box.setListIndex(-1);
    EXPECT_EQ(both(), "-1 ");
    box.addItem("ABA", 7); // a second entry of the same text
    box.setListIndex(3);
    box.setText("ABA");
    EXPECT_EQ(both(), "3 ABA");
    EXPECT_EQ(box.itemData(3).toInt(), 7);
    box.clear();
    EXPECT_EQ(both(), "-1 ");
    form.cboColor.setText("green");
    EXPECT_EQ(form.cboColor.listIndex(), 1);
    form.cboColor.setText("BLUE");
    EXPECT_EQ(form.cboColor.text(), "GREEN");
}

TEST(Events, OptionsOfOneFrameExcludeEachOther) {
    TestUi ui;
    SampleForm form(ui);
    form.radBank.setChecked(true);
    EXPECT_FALSE(form.radCash.isChecked());
    EXPECT_TRUE(form.radOne.isChecked()) << "an option outside the frame is another group";
    form.radTwo.setChecked(true);
    EXPECT_FALSE(form.radOne.isChecked());
    EXPECT_TRUE(form.radBank.isChecked());
}

TEST(Events, FramesReachWhatIsInThem) {
    TestUi ui;
    SampleForm form(ui);
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
    EXPECT_FALSE(form.radCash.isShown());
    EXPECT_FALSE(form.radCash.isUsable());
    EXPECT_FALSE(form.mnuInHidden.isUsable()) << "an entry of a hidden menu cannot be reached";
    EXPECT_TRUE(form.mnuEntry.isUsable());
}

TEST(Events, ControlsAreFoundByName) {
    TestUi ui;
    SampleForm form(ui);
    EXPECT_EQ(form.find("TXTAMT(1)"), &form.txtAmt1);
    EXPECT_EQ(form.find("txtAmt"), nullptr);
    EXPECT_EQ(form.find(""), nullptr);
}

} // namespace
} // namespace orvane
