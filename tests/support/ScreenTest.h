#pragma once

#include "support/Workstation.h"

namespace orvane {

/// A test with one screen in hand, whose controls it names without their form. What it lays, it lays for the patient
/// P/0001 and his visit billNo unless it says otherwise; rows are read from the billing database.
class ScreenTest : public WorkstationTest {
protected:
    static constexpr const char* billNo = "001OFL0000001";

    explicit ScreenTest(const QString& form) : m_form(form) {}

    void layVisit(const TestPatient& patient = {}, const TestVisit& visit = {});
    qlonglong layItem(const TestItem& item = {}); ///< gives its SNo
    /// A bill in naira, with its charge in the patient's running account.
    void layBill(double billed, double paid = 0, const QString& bill = billNo, const QString& pno = "P/0001");

    void open() { ws.open(m_form); }
    void open(const QString& form); ///< takes another screen in hand
    bool isOpen() { return ws.program.loadedForm(m_form); }
    void close() { ws.close(m_form); }
    void set(const QString& control, const QString& value) { ws.set(named(control), value); }
    void pick(const QString& control, int index) { ws.pick(named(control), index); }
    void pick(const QString& control, const QString& entry) { ws.pick(named(control), entry); }
    void row(const QString& grid, int index) { ws.row(named(grid), index); }
    void row(const QString& grid, const QString& cell) { ws.row(named(grid), cell); }
    void click(const QString& control) { ws.click(named(control)); }
    void dblClick(const QString& control) { ws.dblClick(named(control)); }
    void leave(const QString& control) { ws.leave(named(control)); }
    void save(const QString& button = "OKButton"); ///< presses it and says yes to what it may ask
    QString value(const QString& control) { return ws.value(named(control)); }
    QString state(const QString& control) { return ws.state(named(control)); }
    QStringList items(const QString& control) { return ws.items(named(control)); }
    QString focused(); ///< the control's name; "" without one

    /// Cells apart by "|", rows apart by "\n"; amounts in plain decimals.
    QString rows(const QString& tsql);
    QString account(); ///< the running account: amount, running total, remarks
    QString debt();
    /// The audit rows whose action is like this pattern.
    QString audit(const QString& action, const QString& columns = "userAction, Remarks");
    /// Each statement that contains the text fails as on a full disk, or the first one alone.
    void breakAt(const QString& text, bool once = false);

private:
    QString named(const QString& control) const { return m_form + '.' + control; }

    QString m_form;
    bool m_broken = false;
};

/// The same; when a test has ended, its databases must be free of findings.
class SoundScreenTest : public ScreenTest {
protected:
    using ScreenTest::ScreenTest;
    void TearDown() override;
};

} // namespace orvane
