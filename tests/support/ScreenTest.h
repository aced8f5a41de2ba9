#pragma once

#include "support/ChecksInOrder.h"
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

    /// Accounts of the chart in both databases: number, name and group, such as "'1210', 'CASH', '1210000'".
    void layAccounts(std::initializer_list<const char*> accounts);

    void open() { ws.open(m_form); }
    void open(const QString& form);                         ///< takes another screen in hand
    void takeInHand(const QString& form) { m_form = form; } ///< one that is open already
    void load(const QString& bill = billNo);                ///< on the collation screen, which is in hand then
    void begin(const QString& bill = billNo);               ///< a cashier's entry for it on the screen in hand
    bool isOpen() { return ws.program.loadedForm(m_form); }
    void close() { ws.close(m_form); }
    void set(const QString& control, const QString& value) { ws.set(named(control), value); }
    void pick(const QString& control, int index) { ws.pick(named(control), index); }
    void pick(const QString& control, const QString& entry) { ws.pick(named(control), entry); }
    void row(const QString& grid, int index) { ws.row(named(grid), index); }
    void row(const QString& grid, const QString& cell) { ws.row(named(grid), cell); }
    void click(const QString& control) { ws.click(named(control)); }
    void dblClick(const QString& control) { ws.dblClick(named(control)); }
    /// Presses the button and gives what the boxes say then, a line each.
    QString told(const QString& button) {
        click(button);
        return ui.takeBoxes().join('\n');
    }
    void leave(const QString& control) { ws.leave(named(control)); }
    void save(const QString& button = "OKButton"); ///< presses it and says yes to what it may ask
    QString value(const QString& control) { return ws.value(named(control)); }
    QString state(const QString& control) { return ws.state(named(control)); }
    QStringList items(const QString& control) { return ws.items(named(control)); }
    QString shown(const QString& controls); ///< their values, apart by "|"
    QString focused();                      ///< the control's name; "" without one
    void expectChecks(std::initializer_list<CheckStep> steps, const QString& button = "OKButton") {
        expectChecksInOrder(ws, m_form, button, steps);
    }

    /// Cells apart by "|", rows apart by "\n"; amounts in plain decimals.
    QString rows(const QString& tsql);
    QString lines();   ///< those that are billed
    QString bill();    ///< billed, paid, isPaid
    QString account(); ///< the running account: amount, running total, remarks
    QString debt();
    /// The audit rows whose action is like this pattern.
    QString audit(const QString& action, const QString& columns = "userAction, Remarks");
    /// Each statement that contains the text fails as on a full disk, or the first one alone.
    void breakAt(const QString& text, bool once = false);
    void mend() { ws.program.data().setStatementHook({}); }
    /// When the next transaction begins, another workstation has just done this.
    void runBeforeTransaction(const QString& tsql);

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
