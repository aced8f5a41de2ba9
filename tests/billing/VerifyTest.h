#pragma once

#include "support/Check.h"
#include "support/TestHome.h"
#include "support/Workstation.h"

#include <gtest/gtest.h>

namespace orvane {

/// The collation screen on a workstation, on each engine.
class VerifyTest : public WorkstationTest {
protected:
    static constexpr const char* billNo = "001OFL0000001";

    void layVisit(const TestPatient& patient = {}, const TestVisit& visit = {}) {
        Connection connection = ws.billing();
        makePatient(connection, patient);
        makeVisit(connection, visit);
    }
    qlonglong item(const TestItem& item = {}) {
        Connection connection = ws.billing();
        return makeItem(connection, item);
    }

    /// Finds the visit by its bill number, which loads and collates it.
    void load(const QString& consultID = billNo) {
        if (!ws.program.loadedForm("frmBillingVerify"))
            ws.open("frmBillingVerify");
        set("txtSearch", consultID);
        click("cmdOK");
    }
    void set(const QString& control, const QString& value) { ws.set("frmBillingVerify." + control, value); }
    void click(const QString& control) { ws.click("frmBillingVerify." + control); }
    QString value(const QString& control) { return ws.value("frmBillingVerify." + control); }
    /// Presses "Save Collated Bill" and says yes.
    void save() {
        ui.answer(true);
        click("OKButton");
        ui.takeQuestions();
    }

    /// The rows of a query, cells apart by "|", rows apart by "\n"; amounts in plain decimals.
    QString rows(const QString& tsql) {
        QStringList lines;
        for (Recordset found = ws.billing().run(tsql); !found.eof(); found.moveNext()) {
            QStringList cells;
            for (int column = 0; column < found.columns().size(); ++column)
                cells << found.text(column);
            lines << cells.join('|');
        }
        return lines.join('\n');
    }
    QString lines() { return rows("select drgName, SubTotal from BillingDetails order by SNo"); }
    QString account() { return rows("select Amount, RunningTotal, Remarks from Tranxaction order by SNo"); }
    QString debt() { return ws.scalar("select DebtBF from hPatients where PNo='P/0001'"); }

    /// The statement that contains the text fails as a full disk would.
    void breakAt(Program& program, const QString& text) {
        program.data().setStatementHook([text](const QString& tsql) {
            if (tsql.contains(text, Qt::CaseInsensitive))
                throw DataError("disk full");
        });
    }
};

/// The same, and after each test the databases must be free of findings.
class SoundBillTest : public VerifyTest {
protected:
    void TearDown() override { EXPECT_EQ(checkDatabases(ws.program).findings, QStringList()); }

    /// The audit rows of these actions, "action: remarks", a line each.
    QString audit(const QString& actionStart) {
        Connection trail = ws.billing().beside(GetParam() == Engine::Sqlite ? "Audit" : QString());
        QStringList found;
        for (Recordset row = trail.run("select * from AuditTrail order by SNo"); !row.eof(); row.moveNext())
            if (row.text("userAction").startsWith(actionStart))
                found << row.text("userAction") + QLatin1Char('|') + row.text("Remarks");
        return found.join('\n');
    }
};

} // namespace orvane
