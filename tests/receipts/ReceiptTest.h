#pragma once

#include "support/TestHome.h"
#include "support/Workstation.h"

namespace orvane {

/// A cashier's workstation on each engine, with a patient who owes for a visit.
class ReceiptTest : public WorkstationTest {
protected:
    static constexpr const char* billNo = "001OFL0000001";

    void layVisit(const TestPatient& patient = {}, const TestVisit& visit = {}) {
        Connection connection = ws.billing();
        makePatient(connection, patient);
        makeVisit(connection, visit);
    }
    /// The bill of a visit, and its charge on the patient's account. Naira.
    void layBill(double billed, double paid = 0, const QString& bill = billNo, const QString& pno = "P/0001") {
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
    QString account() { return rows("select billNo, Amount, RunningTotal, Remarks from Tranxaction order by SNo"); }
    QString debt() { return ws.scalar("select DebtBF from hPatients where PNo='P/0001'"); }
    QString bill() { return rows("select Amountbilled, AmountPaid, isPaid from Billing order by ID"); }

    /// What the audit trail says of money: action, transaction, remarks.
    QString audit() {
        Connection trail = ws.billing().beside(GetParam() == Engine::Sqlite ? QString("Audit") : QString());
        QStringList lines;
        for (Recordset row = trail.run("select * from AuditTrail order by SNo"); !row.eof(); row.moveNext())
            if (row.text("userAction").contains("Payment"))
                lines << row.text("userAction") + '|' + row.text("TranCode") + '|' + row.text("Remarks");
        return lines.join('\n');
    }

    /// The first statement that contains the text fails as a full disk would; the next one of it goes through.
    void breakAt(const QString& text) {
        m_broken = false;
        ws.program.data().setStatementHook([this, text](const QString& tsql) {
            if (m_broken || !tsql.contains(text, Qt::CaseInsensitive))
                return;
            m_broken = true;
            throw DataError("disk full");
        });
    }

private:
    bool m_broken = false;
};

} // namespace orvane
