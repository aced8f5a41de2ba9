// Where a fault of the database ends, and what a running handler keeps away.
#include "data/DataError.h"
#include "session/Program.h"
#include "support/SampleForm.h"
#include "support/TestUi.h"

#include <QTemporaryDir>

namespace orvane {
namespace {

/// Runs something while a box is up, as a timer or an impatient user would.
class BusyUi : public TestUi {
public:
    std::function<void()> whileBoxIsUp;
    void box(const QString& text, Icon icon, const QString& title) override {
        TestUi::box(text, icon, title);
        if (whileBoxIsUp)
            whileBoxIsUp();
    }
    void setBusy(bool on) override { busy = on; }
    bool busy = false;
};

void fail() {
    throw DataError("the server is gone");
}

class Faults : public ::testing::Test {
protected:
    BusyUi ui;
    SampleForm form{ui};
};

TEST_F(Faults, AFaultInsideAnotherHandlerRisesToTheOutermostAndIsShownOnce) {
    bool wentOn = false;
    form.txtName.onChange = fail;
    form.cmdSave.onClick = [&] {
        ui.setBusy(true);
        form.txtName.setText("x");
        wentOn = true;
    };
    form.events.clear();
    form.cmdSave.click();
    EXPECT_FALSE(wentOn) << "the steps behind the fault must not run";
    EXPECT_BOXES(ui, {"the server is gone"});
    EXPECT_FALSE(ui.busy);
    EXPECT_EQ(form.events, (QStringList{"Form afterFault", "Form afterEvent"}));
    form.cmdClose.click();
    EXPECT_EQ(form.takeEvents(), QStringList{"cmdClose Click"}) << "the screen stays usable";
}

TEST_F(Faults, AnotherFormsFaultAndThatOfALoadStayThere) {
    struct Failing : SampleForm {
        using SampleForm::SampleForm;
        void Form_Load() override { fail(); }
    };
    Failing second(ui, "frmSecond");
    second.load();
    EXPECT_BOXES(ui, {"the server is gone"});
    EXPECT_TRUE(second.isLoaded() && !second.isClosed());
    bool wentOn = false;
    second.txtName.onChange = fail;
    form.cmdSave.onClick = [&] {
        second.txtName.setText("x");
        wentOn = true;
    };
    form.cmdSave.click();
    EXPECT_TRUE(wentOn);
    EXPECT_BOXES(ui, {"the server is gone"});
}

TEST_F(Faults, AHandlerUnderWayHearsItsUserNoMore) {
    int saves = 0;
    const auto press = [&] { form.userEvent([&] { form.cmdSave.click(); }); };
    form.cmdSave.onClick = [&] {
        ++saves;
        press(); // processEvents inside a long save
        fail();
    };
    ui.whileBoxIsUp = press;
    press();
    EXPECT_EQ(saves, 1) << "neither the save nor the box of its fault lets a second press through";
    EXPECT_BOXES(ui, {"the server is gone"});
    EXPECT_FALSE(form.isRunning());
    ui.whileBoxIsUp = nullptr;
    press();
    EXPECT_EQ(saves, 2);
    ui.forgetBoxes();
    form.cmdSave.onClick = [] { throw std::runtime_error("not of the database"); };
    EXPECT_THROW(form.cmdSave.click(), std::runtime_error);
    EXPECT_FALSE(form.isRunning()) << "the form stays usable";
}

TEST_F(Faults, UnloadMayRefuseAndHappensOnce) {
    form.load();
    form.load();
    form.refusesUnload = true;
    EXPECT_FALSE(form.unload());
    EXPECT_FALSE(form.isClosed());
    form.refusesUnload = false;
    EXPECT_TRUE(form.unload());
    EXPECT_TRUE(form.unload());
    EXPECT_EQ(ui.closedForms, QStringList{"frmSample"});
    EXPECT_EQ(form.events.count("Form Load"), 1);
    EXPECT_EQ(form.events.count("Form Unload"), 2);
    form.takeEvents();
    form.userEvent([&] { form.cmdSave.click(); });
    EXPECT_EQ(form.takeEvents(), QStringList{}) << "a closed form hears its user no more";
}

TEST_F(Faults, AFormLivesUntilItsLastHandlerHasEnded) {
    QTemporaryDir home;
    Program program(home.path(), ui);
    for (const char* name : {"frmFirst", "frmSecond"})
        program.registerForm(
            name, [name](Program& p) { return std::make_unique<SampleForm>(p.ui(), QString::fromLatin1(name)); });
    program.open("frmFirst");
    auto& first = static_cast<SampleForm&>(program.form("frmFirst"));
    bool destroyed = false, destroyedWhileRunning = true;
    first.destroyed = &destroyed;
    ui.whileBoxIsUp = [&] {
        program.open("frmSecond"); // sweeps closed forms
        destroyedWhileRunning = destroyed;
    };
    first.cmdSave.onClick = [&] {
        first.unload();
        fail();
    };
    first.userEvent([&] { first.cmdSave.click(); });
    EXPECT_FALSE(destroyedWhileRunning);
    EXPECT_BOXES(ui, {"the server is gone"});
    EXPECT_EQ(program.loadedForm("frmFirst"), nullptr);
    ui.whileBoxIsUp = nullptr;
    program.deleteClosedForms();
    EXPECT_TRUE(destroyed);
    EXPECT_EQ(ui.opened, (QStringList{"frmFirst", "frmSecond"}));
}

} // namespace
} // namespace orvane
