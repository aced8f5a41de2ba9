#include "support/ScreenTest.h"

#include "support/Check.h"
#include "support/Entries.h"
#include "support/Rows.h"

namespace orvane {

void ScreenTest::layVisit(const TestPatient& patient, const TestVisit& visit) {
    Connection connection = ws.billing();
    makePatient(connection, patient);
    makeVisit(connection, visit);
}

qlonglong ScreenTest::layItem(const TestItem& item) {
    Connection connection = ws.billing();
    return makeItem(connection, item);
}

void ScreenTest::layAccounts(std::initializer_list<const char*> accounts) {
    for (const bool ofLedger : {false, true}) {
        Connection connection = ofLedger ? ws.accounting() : ws.billing();
        addRows(connection, "ChartOfAccounts (AccountNo, AccountName, groupID)", accounts);
    }
}

void ScreenTest::layBill(double billed, double paid, const QString& bill, const QString& pno) {
    ws.run(QString("insert into Billing (billNo, bdate, PNo, clientID, Amountbilled, AmountPaid) values "
                   "('%1','2026-03-14','%2','0001',%3,%4)")
               .arg(bill, pno)
               .arg(billed)
               .arg(paid));
    ws.run(QString("insert into Tranxaction (entryDate, PNo, billNo, Amount, RunningTotal, Remarks) values "
                   "('2026-03-14','%1','%2',-%3,-%3,'BILL')")
               .arg(pno, bill)
               .arg(billed));
    ws.run(QString("update hPatients set DebtBF=-%2 where PNo='%1'").arg(pno).arg(billed));
}

void ScreenTest::open(const QString& form) {
    m_form = form;
    open();
}

void ScreenTest::load(const QString& bill) {
    m_form = "frmBillingVerify";
    loadBill(ws.program, bill);
}

void ScreenTest::begin(const QString& bill) {
    open();
    if (state("cmdAdd") == "visible enabled")
        click("cmdAdd");
    pick("cboVehNo", bill);
}

void ScreenTest::save(const QString& button) {
    ui.answer(true);
    click(button);
    ui.forgetAnswers();
    ui.takeQuestions();
}

QString ScreenTest::focused() {
    const Control* control = ws.form(m_form).focused();
    return control ? control->name() : QString();
}

QString ScreenTest::shown(const QString& controls) {
    QStringList values;
    for (const QString& control : controls.split(' '))
        values << value(control);
    return values.join('|');
}

QString ScreenTest::rows(const QString& tsql) {
    Connection connection = ws.billing();
    return rowsOf(connection, tsql);
}

QString ScreenTest::lines() {
    return rows("select drgName, SubTotal from BillingDetails order by SNo");
}

QString ScreenTest::bill() {
    return rows("select Amountbilled, AmountPaid, isPaid from Billing order by ID");
}

QString ScreenTest::account() {
    return rows("select Amount, RunningTotal, Remarks from Tranxaction order by SNo");
}

QString ScreenTest::debt() {
    return ws.scalar("select DebtBF from hPatients where PNo='P/0001'");
}

QString ScreenTest::audit(const QString& action, const QString& columns) {
    // On SQLite the trail lies in a file of its own.
    Connection trail = ws.billing().beside(GetParam() == Engine::Sqlite ? "Audit" : "");
    return rowsOf(trail, "select " + columns + " from AuditTrail where userAction like '" + action + "' order by SNo");
}

void ScreenTest::breakAt(const QString& text, bool once) {
    m_broken = false;
    ws.program.data().setStatementHook([this, text, once](const QString& tsql) {
        if (!tsql.contains(text, Qt::CaseInsensitive) || (m_broken && once))
            return;
        m_broken = true;
        throw DataError("disk full");
    });
}

void ScreenTest::runBeforeTransaction(const QString& tsql) {
    ws.program.data().setStatementHook([this, tsql](const QString& started) {
        if (started != "begin transaction")
            return;
        mend();
        const SecondHome other(home);
        Workstation(other.folder()).run(tsql);
    });
}

void SoundScreenTest::TearDown() {
    EXPECT_EQ(checkDatabases(ws.program).findings, QStringList());
}

} // namespace orvane
