// The patient finder over a screen of the real program, with its keys.
#include "desktop/DesktopUi.h"
#include "desktop/ViewTest.h"
#include "patients/PatientDirectory.h"
#include "screens/Screens.h"
#include "session/Main.h"
#include "support/Workstation.h"

#include <QTimer>

namespace orvane {
namespace {

TEST(FinderViewTest, AKeyOpensItACardTakesAndTheNextOneReplacesTheText) {
    TestHome home;
    {
        Workstation station(home.folder());
        station.layHospital();
        Connection billing = station.billing();
        makePatient(billing);
        makePatient(billing, {.pno = "P/0002", .surname = "BELLO", .firstname = "ADE"});
        makePatient(billing, {.pno = "P/0003", .surname = "BELLO", .firstname = "OLADE"});
    }
    DesktopUi ui;
    Program program(home.folder(), ui);
    registerScreens(program);
    ASSERT_TRUE(Main(program, "amina.b"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return program.patients().isWhole(); })) << "read in pauses";
    program.open("frmFind");
    Form& screen = program.form("frmFind");
    const auto editor = [&](const QString& form, const char* control) {
        Form& shown = program.form(form);
        return ui.windows().viewOf(shown)->bindingOf(*shown.find(control))->editor();
    };
    const auto inFinder = [&](const std::function<void(QLineEdit&)>& act) {
        bool acted = false;
        QTimer::singleShot(50, &ui.windows(), [&] {
            act(static_cast<QLineEdit&>(*editor("frmPatientFinder", "txtFind")));
            acted = true;
        });
        QTest::keyClick(editor("frmFind", "TxtID"), Qt::Key_F3);
        EXPECT_TRUE(QTest::qWaitFor([&] { return acted && !program.loadedForm("frmPatientFinder"); }));
        settleEvents();
        return screen.find("TxtID")->valueText();
    };

    EXPECT_EQ(inFinder([](QLineEdit& line) {
                  QTest::keyClicks(&line, "zz");
                  QTest::keyClick(&line, Qt::Key_Return);
                  settleEvents();
                  EXPECT_EQ(line.selectedText(), "zz") << "nobody has it: the next card replaces it";
                  QTest::keyClicks(&line, "p/0001\r");
              }),
              "P/0001");
    EXPECT_EQ(inFinder([](QLineEdit& line) {
                  EXPECT_EQ(line.selectedText(), "p/0001");
                  QTest::keyClicks(&line, "llo ola");
                  QTest::keyClick(&line, Qt::Key_Return);
              }),
              "P/0003");
    EXPECT_EQ(inFinder([&](QLineEdit& line) {
                  QTest::keyClicks(&line, "bello");
                  QTest::keyClick(&line, Qt::Key_Down);
                  settleEvents();
                  QWidget* list = QApplication::focusWidget();
                  EXPECT_NE(list, &line);
                  QTest::keyClick(list, Qt::Key_Down);
                  QTest::keyClick(list, Qt::Key_Up);
                  QTest::keyClick(list, Qt::Key_Return);
              }),
              "P/0002");
    program.form("MdiTolmek").abandon();
}

} // namespace
} // namespace orvane
