#pragma once

#include "support/Rows.h"
#include "support/TestHome.h"
#include "support/Workstation.h"

namespace orvane {

/// A cashier's workstation on each engine, at one screen, with a patient who owes for a visit.
class ReceiptTest : public WorkstationTest {
protected:
    static constexpr const char* billNo = "001OFL0000001";

    explicit ReceiptTest(const QString& screen) : m_screen(screen + '.') {}
    void set(const QString& control, const QString& value) { ws.set(m_screen + control, value); }
    void pick(const QString& control, const QString& entry) { ws.pick(m_screen + control, entry); }
    void click(const QString& control) { ws.click(m_screen + control); }
    QString value(const QString& control) { return ws.value(m_screen + control); }
    QString state(const QString& control) { return ws.state(m_screen + control); }
    void openScreen() { ws.open(m_screen.chopped(1)); }
    /// Saves, with the answer Yes.
    void save(const char* question = "Are you sure to save?") {
        ui.answer(true);
        click("OKButton");
        EXPECT_QUESTIONS(ui, {question});
    }
    /// The values of these controls, apart by "|".
    QString shown(const QString& controls) {
        QStringList values;
        for (const QString& control : controls.split(' '))
            values << value(control);
        return values.join('|');
    }
    /// On the screen, entering something for this bill.
    void begin(const QString& bill = billNo) {
        openScreen();
        if (state("cmdAdd") == "visible enabled")
            click("cmdAdd");
        pick("cboVehNo", bill);
    }

    void layVisit(const TestPatient& patient = {}, const TestVisit& visit = {}) {
        Connection connection = ws.billing();
        makePatient(connection, patient);
        makeVisit(connection, visit);
    }
    void layBill(double billed, double paid = 0, const QString& bill = billNo, const QString& pno = "P/0001") {
        ws.run(QString("insert into Billing (billNo, bdate, PNo, clientID, Amountbilled, AmountPaid) values "
                       "('%1','2026-03-14','%2','0001',%3,%4)")
                   .arg(bill, pno, QString::number(billed), QString::number(paid)));
    }
    QString rows(const QString& tsql) {
        Connection connection = ws.billing();
        return rowsOf(connection, tsql);
    }
    QString bill() { return rows("select Amountbilled, AmountPaid, isPaid from Billing order by ID"); }

    /// The fields in turn: what each is set to, then what a save says.
    struct Refused {
        const char *control, *value, *text;
        const char* focus = nullptr;
    };
    void expectRefusals(std::initializer_list<Refused> steps) {
        for (const Refused& step : steps) {
            SCOPED_TRACE(QString("%1 '%2'").arg(step.control, step.value).toStdString());
            if (*step.control)
                set(step.control, step.value);
            click("OKButton");
            EXPECT_BOXES(ui, {step.text});
            if (step.focus)
                EXPECT_EQ(ws.form(m_screen.chopped(1)).focused(), &ws.control(m_screen + step.focus));
        }
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
    QString m_screen;
};

} // namespace orvane
