#pragma once

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
    void close(const QString& form);
    void menu(const QString& entry); ///< of the shell
    void set(const QString& control, const QString& value);
    void pick(const QString& control, int index);
    void pick(const QString& control,
              const QString& text); ///< the entry equal to the text, else the first that contains it
    void tick(const QString& list, const QStringList& entries, bool ticked = true);
    void row(const QString& grid, int row);
    void row(const QString& grid, const QString& cell);
    void click(const QString& control);
    void dblClick(const QString& control);
    void leave(const QString& control);
    void key(const QString& control, const QString& keys);
    void timer(const QString& timer); ///< one tick

    Form& form(const QString& name); ///< an open one
    Control& control(const QString& name);
    template <typename T>
    T& control(const QString& name) {
        return dynamic_cast<T&>(control(name));
    }
    QString value(const QString& name) { return control(name).valueText(); }
    QString state(const QString& name); ///< "visible enabled", "hidden disabled locked" and the like
    QStringList items(const QString& name);
    QStringList rows(const QString& name); ///< cells apart by tabs, the head first

    Connection billing() { return program.openBilling(); }
    Connection accounting() { return program.openAccounting(); }
    void run(const QString& tsql) { billing().run(tsql); } ///< on the billing database
    QString
    scalar(const QString& tsql); ///< the first column of the first row of the billing database; "" without a row
    QString accountingScalar(const QString& tsql);
    int tableCount(const QString& tableAndFilter); ///< "Payments where billNo='...'" of the billing database

private:
    Control& usable(const QString& name);
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
