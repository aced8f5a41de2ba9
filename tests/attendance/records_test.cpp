// Attendance entry: what the records officer sees and is told, in order. The rules of a visit have tests of their own.
#include "support/ChecksInOrder.h"
#include "support/ScreenTest.h"

namespace orvane {

namespace {

const QDate Today(2026, 3, 14);

class Attendance : public ScreenTest {
protected:
    Attendance() : ScreenTest("frmRecordsOffline") {}

    Connection billing = ws.billing();
    void patient(const TestPatient& patient = {}) { makePatient(billing, patient); }
    void visit(const TestVisit& visit) { makeVisit(billing, visit); }
    void search(const QString& name) {
        set("txtName", name);
        click("cmdOK");
    }
    /// Starts a new attendance and picks the patient whose name begins so.
    void begin(const QString& name = "ADEYEMI") {
        if (!isOpen())
            open();
        click("cmdAdd");
        search(name);
        pick("cboVehNo", 0);
    }
    void fill(const QString& clinic = "OPD", const QString& purpose = "CONSULTATION") {
        set("cboType", clinic);
        set("cboClient", purpose);
        pick("cboAppr", "BELLO AMINA");
    }
    void enter(const QString& name = "ADEYEMI") {
        begin(name);
        fill();
        save();
        EXPECT_BOXES(ui, {"Record Succesfully saved"});
    }
    QString caption() { return ws.form("frmRecordsOffline").caption(); }
};

ORVANE_ON_EACH_ENGINE(Attendance);

TEST_P(Attendance, NewVisitTakesWhatTheOfficerChose) {
    patient({.category = "HMO", .client = "0201", .ref = "YES"});
    ws.run("update hPatients set OldPNo='OLD7', policytype='GOLD'");
    ws.run("insert into hreferal (ConsultID, PNo, ApptDate, clinicType, Remarks, attendedTo) values ('001OFL0000001', "
           "'P/0001', '2026-03-14', 'ANTENATAL', 'FOLLOW-UP', 0)");
    begin();
    EXPECT_BOXES(ui, {" This Patient has ANTENATAL Appointment Today"});
    EXPECT_EQ(shown("lblBill lblNo cboBilling cboRef lblCoy lblOld lblPolicy"),
              "001OFL0000001|P/0001|HMO|YES|CLEARWATER HMO|OLD7|GOLD");
    EXPECT_TRUE(ws.control("frmRecordsOffline.tmrBill").isEnabled());
    fill("ANTENATAL", "FOLLOW-UP");
    set("cboRef", "NO");
    set("cboBilling", "NHIS");
    save();
    EXPECT_BOXES(ui, {"Record Succesfully saved"});
    EXPECT_EQ(rows("select consultID, PNo, recDate, htime, clientCat, clinicType, Remarks, referal, empID, coyName "
                   "from hRecords"),
              "001OFL0000001|P/0001|2026-03-14|09:30|NHIS|ANTENATAL|FOLLOW-UP|NO|E001|0201")
        << "the screen shows the client's name and stores his id";
    EXPECT_EQ(rows("select Price, Qty, SubTotal from BillAccum") + rows("select attendedTo from hreferal"),
              "751|1|7511");
    EXPECT_EQ(value("lblBill") + value("lblCoy"), "");
    EXPECT_EQ(caption(), "OFFLINE ATTENDANCE:1");
}

TEST_P(Attendance, SaveChecksInOrder) {
    // Neither his category nor his referral is offered.
    patient({.category = "GONE", .ref = "MAYBE"});
    open();
    EXPECT_EQ(caption(), "OFFLINE ATTENDANCE:");
    save();
    EXPECT_BOXES(ui, {" Consultation ID is needed for this Patient, select Patient Name OR see the Administrator"});
    search("ADEYEMI");
    click("cmdAdd");
    expectChecksInOrder(ws, "frmRecordsOffline", "OKButton",
                        {{"dtDate", "", " please specify Attendance date", "dtDate"},
                         {"dtDate", "2026-03-14", " please specify Name of Patient", "cboVehNo"},
                         {"cboVehNo", "ADEYEMI BOLA [P/0001]", " please specify clinic for Patient", "cboType"},
                         {"cboType", "OUT-PATIENT", " please specify Purpose of Visit for Patient", "cboClient"},
                         {"cboClient", "CONSULTATION", " please specify Name of record Officer", "cboAppr"},
                         {"cboAppr", "BELLO AMINA [E001]", " please specify Whether Patient is on Referral", "cboRef"},
                         {"cboRef", "NO", "please specify Patient Billing Category", "cboBilling"}});
    EXPECT_EQ(ws.tableCount("hRecords"), 0);
    set("cboBilling", "PRIVATE");
    save();
    EXPECT_BOXES(ui, {"Record Succesfully saved"});
}

TEST_P(Attendance, PickRefusesWithoutDateAndDuplicates) {
    patient();
    open();
    search("NOBODY");
    EXPECT_EQ(value("lblFound"), "***");
    EXPECT_EQ(ws.rows("frmRecordsOffline.grdData").size(), 1);

    search("adeyemi b");
    EXPECT_EQ(items("cboVehNo"), QStringList{"ADEYEMI BOLA [P/0001]"});
    EXPECT_TRUE(ws.rows("frmRecordsOffline.grdData").first().contains("Surname"));
    EXPECT_FALSE(ws.rows("frmRecordsOffline.grdData").first().split("\t").contains("expired"));
    pick("cboVehNo", 0);
    EXPECT_BOXES(ui, {"Specify Attendance Date"});

    visit({.consultID = "001OFL0000007"});
    begin();
    EXPECT_BOXES(ui, {"Patient Attendance already entered!!! Duplicate not allowed"});
    EXPECT_EQ(value("lblNo") + value("lblBill") + value("cboVehNo"), "");
    ws.run("update hRecords set attendedto=1");
    enter();
}

TEST_P(Attendance, CardExpiry) {
    const struct {
        QDate expiry;
        bool refused;
    } cards[] = {{Today.addDays(-1), true}, {Today, true}, {Today.addDays(1), false}, {{}, false}};
    int number = 0;
    for (const auto& card : cards) {
        const QString pno = QString("C/%1").arg(++number);
        patient({.pno = pno, .surname = QString("CARD%1").arg(number), .expiry = card.expiry});
        begin(QString("CARD%1").arg(number));
        EXPECT_EQ(ui.takeBoxes(), card.refused ? QStringList{"Patient's Card has Expired"} : QStringList());
        EXPECT_EQ(value("lblNo"), pno) << "the screen is left filled";
        fill();
        save();
        EXPECT_EQ(ui.takeBoxes(),
                  QStringList(card.refused ? "Patient's Card has Expired" : "Record Succesfully saved"));
        EXPECT_EQ(ws.tableCount("hRecords where PNo='" + pno + "'"), card.refused ? 0 : 1);
    }
}

TEST_P(Attendance, ReviewIsRefusedAfterTwelveWholeHours) {
    const QString tooLate = " This patient last visit to clinic is beyond time limit of 12HRS for Review. \n"
                            "The system will Enter 'CONSULTATION' for purpose of visit";
    patient();
    for (const bool late : {false, true}) {
        ws.run("delete from hRecords");
        visit({}); // at midnight
        ws.run("update hRecords set attendedto=1");
        ui.clock = QDateTime(Today, late ? QTime(13, 0) : QTime(12, 59));
        begin();
        fill("OPD", "REVIEW");
        EXPECT_EQ(ui.takeBoxes(), late ? QStringList{tooLate} : QStringList());
        save();
        ui.forgetBoxes();
        EXPECT_EQ(rows("select Remarks from hRecords where attendedto=0"), late ? "CONSULTATION" : "REVIEW");
    }
    EXPECT_EQ(rows("select count(*), sum(SubTotal) from BillAccum"), "2|2000");
    // The purpose before the patient.
    ws.run("update hRecords set attendedto=1");
    click("cmdAdd");
    set("cboClient", "REVIEW");
    EXPECT_BOXES(ui, {});
    begin();
    EXPECT_EQ(ui.takeBoxes(), QStringList{tooLate});
    EXPECT_EQ(value("cboClient"), "CONSULTATION");
}

TEST_P(Attendance, EditChangesTheVisitOnly) {
    patient();
    patient({.pno = "P/0002", .surname = "O'NEILL [JNR]", .category = "HMO", .client = "0201"});
    enter();
    search("ADE");
    row("grdData", 0);
    EXPECT_EQ(told("cmdEdit"), "Search Result cannot be Edited, Only Attendance");

    click("cmdRefresh");
    row("grdData", "001OFL0000001");
    click("cmdEdit");
    EXPECT_EQ(shown("cboVehNo lblBill dtDate lblCoy"),
              "ADEYEMI BOLA [P/0001]|001OFL0000001|2026-03-14|PRIVATE PATIENTS");
    set("dtDate", "2026-03-12");
    set("cboType", "ANTENATAL");
    pick("cboAppr", "OKAFOR");
    save();
    EXPECT_BOXES(ui, {"Record Succesfully Edited and Updated"});
    EXPECT_EQ(
        rows("select consultID, PNo, recDate, exitDate, clinicType, Remarks, clientCat, empID, coyName from hRecords"),
        "001OFL0000001|P/0001|2026-03-12|2026-03-12|ANTENATAL|CONSULTATION|PRIVATE|D001|0001");
    enter("O'NEILL");
    EXPECT_EQ(ws.tableCount("hRecords where PNo='P/0002'"), 1) << "a new attendance after an edit is a new row";
    row("grdData", "O'NEILL [JNR] BOLA");
    ui.answer(false);
    click("cmdDel");
    EXPECT_QUESTIONS(ui, {"Are you sure to Delete Record"});
    EXPECT_EQ(ws.tableCount("hRecords"), 2);
}

} // namespace

} // namespace orvane
