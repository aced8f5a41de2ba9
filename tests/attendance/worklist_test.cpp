// " Prompt": the visits that doctors have sent to billing; and the day's prompts.
#include "support/ScreenTest.h"

namespace orvane {
namespace {

class Worklist : public ScreenTest {
protected:
    Worklist() : ScreenTest("frmFlash") {}

    void layVisits() {
        Connection billing = ws.billing();
        makePatient(billing, {.debt = -1500});
        makePatient(billing, {.pno = "P/0002", .surname = "BAKARE"});
        for (const QString& visit :
             QStringList{"001OFL0000001 P/0001 14 1", "TODAY2 P/0002 14 1", "WITH-DOCTOR P/0002 14 0",
                         "BILLED P/0002 14 1", "EARLIER P/0001 10 1"}) {
            const QStringList facts = visit.split(' ');
            const QDate day(2026, 3, facts[2].toInt());
            makeVisit(billing, {.consultID = facts[0], .pno = facts[1], .date = day});
            makeConsultation(billing,
                             {.consultID = facts[0], .pno = facts[1], .date = day, .finished = facts[3] == "1"});
        }
        makeItem(billing, {});
        ws.run("update hRecords set BillDate='2026-03-14' where consultID='BILLED'");
    }
    /// A column of a grid, sorted.
    QStringList bills(const char* grid = "frmFlash.dGexp", int column = 1) {
        QStringList numbers;
        for (const QString& row : ws.rows(grid).mid(1))
            numbers << row.section('\t', column, column);
        numbers.sort();
        return numbers;
    }
    QString caption() { return value("lblShow"); }
};
ORVANE_ON_EACH_ENGINE(Worklist);

TEST_P(Worklist, HandsAVisitToTheCollationScreen) {
    layVisits();
    open();
    EXPECT_EQ(ws.rows("frmFlash.dGexp").mid(0, 2),
              QStringList({"Fullname\tBillNo\tDate\tTime\tClient\tDebt\tClinic\tClientCat",
                           "ADEYEMI BOLA\t001OFL0000001\t14/03/2026\t09:00:00\tPRIVATE PATIENTS\t(1,500)\tOPD\t"
                           "PRIVATE"}));
    EXPECT_EQ(bills(), QStringList({"001OFL0000001", "TODAY2"}));
    EXPECT_EQ(caption(), "Patients from Doctor");
    set("DTPicker1", "2026-03-01");
    click("cmdPat");
    EXPECT_EQ(bills(), QStringList({"001OFL0000001", "EARLIER", "TODAY2"}));

    row("dGexp", "001OFL0000001");
    dblClick("dGexp");
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(ws.value("frmBillingVerify.lblBill"), "001OFL0000001");
    EXPECT_EQ(ws.tableCount("BillingDetails where billNo='001OFL0000001'"), 1) << "the load collates";
    EXPECT_EQ(ws.program.session.gSearchBillNo, "");
    open();
    row("dGexp", "TODAY2");
    dblClick("dGexp");
    EXPECT_EQ(ws.value("frmBillingVerify.lblBill"), "TODAY2") << "the screen was open already";
    EXPECT_BOXES(ui, {});
}

TEST_P(Worklist, ShowsTheHistoryOfThePatientInTheRange) {
    layVisits();
    open();
    row("dGexp", "001OFL0000001");
    click("cmdExpected");
    EXPECT_EQ(value("SSTab1"), "1");
    EXPECT_EQ(ws.rows("frmFlash.grdData"),
              QStringList({"Date\tTime\tBillNo\tFullname", "14/03/2026\t09:00:00\t001OFL0000001\tADEYEMI BOLA"}));
    EXPECT_EQ(caption(), "View Patient Attendance History for: ADEYEMI BOLA");
    // The tab is open already: the button asks anew.
    set("DTPicker1", "2026-03-01");
    click("cmdDoc");
    EXPECT_EQ(bills("frmFlash.grdData", 2), QStringList({"001OFL0000001", "EARLIER"}));
    pick("SSTab1", 0);
    EXPECT_EQ(caption(), "Patients from Doctor");
    set("DTPicker2", "2026-03-02");
    pick("SSTab1", 1);
    EXPECT_EQ(bills("frmFlash.grdData"), QStringList()) << "no visit in the range";
    EXPECT_EQ(caption(), "View Patient Attendance History for: ADEYEMI BOLA");
    EXPECT_BOXES(ui, {});
}

TEST_P(Worklist, AsksForARowWhereThereIsNone) {
    open();
    EXPECT_EQ(bills(), QStringList());
    dblClick("dGexp");
    EXPECT_BOXES(ui, {"Please select a row "});
    pick("SSTab1", 1);
    EXPECT_BOXES(ui, {"Please select a row to view Attendance History for the Patient"});
    EXPECT_EQ(value("SSTab1"), "0");
    EXPECT_EQ(told("cmdPrint"), "No record is displayed for printing");
    EXPECT_TRUE(isOpen());
}

TEST_P(Worklist, ListsOverdrawnDrugsAndPrintsWhatItLists) {
    open();
    click("cmdCPC");
    EXPECT_EQ(caption(), "---");
    for (const auto& [drug, stock] :
         {std::pair("AMOXICILLIN 500MG", -3), {"ARTEMETHER INJECTION", -1}, {"PARACETAMOL 500MG", 0}})
        ws.run(QString("update StockItemsRetail set UnitsInStock=%1 where ItemID='%2'").arg(stock).arg(drug));
    click("cmdCPC");
    EXPECT_EQ(ws.rows("frmFlash.dGexp"), QStringList({"Drug\tCategory\tUnitsinStock", "AMOXICILLIN 500MG\tTABLETS\t-3",
                                                      "ARTEMETHER INJECTION\tINJECTIONS\t-1"}));
    EXPECT_EQ(caption(), "Overdrawn System Drugs");
    click("cmdPrint");
    ASSERT_EQ(ui.reports.size(), 1);
    EXPECT_EQ(ui.reports.first().title, "Overdrawn System Drugs");
    EXPECT_EQ(ui.reports.first().rows, 2);
    ws.run("update StockItemsRetail set UnitsInStock=5");
    EXPECT_EQ(told("cmdPrint"), "No info for this request : \nOverdrawn System Drugs");
}

TEST_P(Worklist, RemindsOfTheDaysAttendanceAndAppointments) {
    layVisits();
    for (const char* values :
         {"('P/0001', '2026-03-14', 0)", "('P/0002', '2026-03-15', 0)", "('P/0002', '2026-03-14', 1)"})
        ws.run(QStringLiteral("insert into hreferal (PNo, ApptDate, attendedTo) values ") + values);
    open("frmReminder");
    click("cmdExpected");
    EXPECT_EQ(bills("frmReminder.dGexp", 3), QStringList({"001OFL0000001", "BILLED", "TODAY2", "WITH-DOCTOR"}))
        << "EARLIER is still open";
    EXPECT_EQ(value("lblShow"), "Hospital Attendance");
    click("cmdReorder");
    EXPECT_EQ(value("dGexp"), "1 rows");
    EXPECT_TRUE(ws.rows("frmReminder.dGexp").last().startsWith("P/0001"));
    EXPECT_EQ(value("lblShow"), "Patients Appt Date Due Today");
}

} // namespace
} // namespace orvane
