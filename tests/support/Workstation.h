#pragma once

#include "play/ControlActs.h"
#include "play/ControlReading.h"
#include "play/HeadlessDriver.h"
#include "session/Program.h"
#include "support/Hospital.h"
#include "support/TestHome.h"
#include "support/TestUi.h"

namespace orvane {

/// A running program with its user. Controls are named "FORM.CONTROL", as in scripts, and acted on as their user would:
/// what is hidden, disabled or locked is refused by an exception that fails the test.
class Workstation {
public:
    /// `homeFolder`: made.sys and databases with their schema lie there. Registers every screen and starts nothing;
    /// both clocks stand at 2026-03-14 09:30.
    explicit Workstation(const QString& homeFolder);

    TestUi ui;
    Program program;

    void layHospital();                              ///< see Hospital.h
    bool start(const QString& userName = "amina.b"); ///< runs Main

    void open(const QString& form) { program.open(form); }
    void close(const QString& name) { m_driver.close(form(name)); }
    void menu(const QString& entry) { m_driver.click(dynamic_cast<MenuItem&>(usable("MdiTolmek." + entry))); }
    void set(const QString& control, const QString& value) { setValue(m_driver, usable(control), value); }
    void pick(const QString& list, int index) { pickEntry(m_driver, usable(list), QString::number(index), true); }
    /// The entry equal to the text, else the first that contains it.
    void pick(const QString& list, const QString& text) { pickEntry(m_driver, usable(list), text, false); }
    void tick(const QString& list, const QStringList& entries, bool ticked = true) {
        tickEntries(m_driver, usable(list), entries, ticked);
    }
    void row(const QString& grid, int row) { makeRowCurrent(m_driver, usable(grid), QString::number(row), true); }
    void row(const QString& grid, const QString& cell) { makeRowCurrent(m_driver, usable(grid), cell, false); }
    void click(const QString& control) { clickControl(m_driver, usable(control)); }
    void dblClick(const QString& control) { m_driver.dblClick(usable(control)); }
    void leave(const QString& control) { m_driver.leave(usable(control)); }
    void key(const QString& control, const QString& keys) { typeKeys(m_driver, usable(control), keys); }
    void timer(const QString& timer) { m_driver.tick(control<Timer>(timer)); } ///< one tick

    Form& form(const QString& name); ///< an open one
    Control& control(const QString& name);
    template <typename T>
    T& control(const QString& name) {
        return dynamic_cast<T&>(control(name));
    }
    QString value(const QString& name) { return control(name).valueText(); }
    /// "visible enabled", "hidden disabled locked" and the like.
    QString state(const QString& name) { return stateOf(control(name)); }
    QStringList items(const QString& name) { return itemsOf(control(name)).value(); }
    /// Cells apart by tabs, the head first.
    QStringList rows(const QString& name) { return rowsOf(control(name)).value(); }

    Connection billing() { return program.openBilling(); }
    Connection accounting() { return program.openAccounting(); }
    void run(const QString& tsql); ///< on the billing database; what it does to money counts as history
    /// The first column of the first row of the billing database; "" without a row.
    QString scalar(const QString& tsql);
    QString accountingScalar(const QString& tsql);
    /// "Payments where billNo='...'" of the billing database.
    int tableCount(const QString& table) { return scalar("select count(*) as n from " + table).toInt(); }

private:
    Control& usable(const QString& name);

    HeadlessDriver m_driver;
};

/// A home folder of another machine, on the databases of the first one.
class SecondHome {
public:
    explicit SecondHome(const TestHome& first) : SecondHome(first.folder()) {}
    explicit SecondHome(const QString& firstFolder);
    QString folder() const { return m_folder.path(); }

private:
    QTemporaryDir m_folder;
};

/// A test of the started program, with the rows of layHospital, on each engine: ORVANE_ON_EACH_ENGINE(YourTest). What a
/// test adds to its databases before the program starts is put into `prepare`.
class WorkstationTest : public ::testing::TestWithParam<Engine> {
protected:
    void SetUp() override;
    virtual void prepare() {}

    TestHome home{GetParam()};
    Workstation ws{home.folder()};
    TestUi& ui = ws.ui;
};

} // namespace orvane
