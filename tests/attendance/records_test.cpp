#include "support/TestHome.h"
#include "support/Workstation.h"

#include "attendance/ConsultID.h"
#include "attendance/ConsultationFee.h"

#include <gtest/gtest.h>

namespace orvane {

namespace {

const QDate Today(2026, 3, 14);

class Attendance : public WorkstationTest {
protected:
    void patient(const TestPatient& patient = {}) {
        Connection connection = ws.billing();
        makePatient(connection, patient);
    }
    void visit(const TestVisit& visit) {
        Connection connection = ws.billing();
        makeVisit(connection, visit);
    }

    /// Starts a new attendance and picks the patient whose name begins so.
    void begin(const QString& name = "ADEYEMI") {
        if (!ws.program.loadedForm("frmRecordsOffline"))
            ws.open("frmRecordsOffline");
        ws.click("frmRecordsOffline.cmdAdd");
        ws.set("frmRecordsOffline.txtName", name);
        ws.click("frmRecordsOffline.cmdOK");
        ws.pick("frmRecordsOffline.cboVehNo", 0);
    }
    void fill(const QString& clinic = "OPD", const QString& purpose = "CONSULTATION") {
        ws.set("frmRecordsOffline.cboType", clinic);
        ws.set("frmRecordsOffline.cboClient", purpose);
        ws.pick("frmRecordsOffline.cboAppr", "BELLO AMINA");
    }
    void save() { ws.click("frmRecordsOffline.OKButton"); }
    QString value(const QString& control) { return ws.value("frmRecordsOffline." + control); }
    QString row(const QString& tsql) {
        const Recordset found = ws.billing().run(tsql);
        QStringList cells;
        for (int column = 0; !found.eof() && column < found.columns().size(); ++column)
            cells << found.text(column);
        return cells.join("|");
    }
};

ORVANE_ON_EACH_ENGINE(Attendance);

/// Whichever way the user asks what became of it, the visit and its fee are there once and the next one is a new one.
TEST_P(Attendance, UnknownCommitIsLookedUp) {
    patient();
    patient({.pno = "P/0002", .surname = "BELLO"});
    const struct {
        const char* name;
        const char* button;
    } cases[] = {{"ADEYEMI", "OKButton"}, {"BELLO", "CancelButton"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.button);
        begin(c.name);
        fill();
        bool visitWritten = false;
        ws.program.data().setStatementHook([&visitWritten](const QString& tsql) {
            visitWritten = visitWritten || tsql.contains("into [hRecords]", Qt::CaseInsensitive);
            if (visitWritten && (tsql == "transaction committed" || tsql == "outcome of commit"))
                throw DataError("the cable was pulled");
        });
        save();
        EXPECT_TRUE(ui.takeBoxes().join('|').contains("It is not known whether it was saved."));
        save();
        EXPECT_TRUE(ui.takeBoxes().join('|').contains("still not known"));
        for (const char* control : {"cmdAdd", "cmdCancel", "cboVehNo", "txtName", "grdData"})
            EXPECT_EQ(ws.state(QString("frmRecordsOffline.") + control), "visible disabled") << control;
        ws.program.data().setStatementHook({});
        ws.click(QString("frmRecordsOffline.") + c.button);
        EXPECT_BOXES(ui, {"The entry was saved before the connection broke. It is not saved again.",
                          "Record Succesfully saved"});
        EXPECT_EQ(value("lblBill"), "");
        EXPECT_EQ(ws.state("frmRecordsOffline.cmdAdd"), "visible enabled");
    }
    EXPECT_EQ(row("select count(*), min(consultID), max(consultID) from hRecords"), "2|001OFL0000001|001OFL0000002");
}

TEST_P(Attendance, NewVisitGetsIdChargeAndWaitingItems) {
    patient({.category = "HMO", .client = "0201", .ref = "YES"});
    Connection connection = ws.billing();
    makeItem(connection, {.consultID = "", .name = "MALARIA PARASITE"});
    makeItem(connection, {.consultID = "", .pno = "P/0002"});

    begin();
    EXPECT_EQ(value("lblBill"), "001OFL0000001");
    EXPECT_EQ(value("lblNo"), "P/0001");
    EXPECT_EQ(value("cboBilling"), "HMO");
    EXPECT_EQ(value("cboRef"), "YES");
    EXPECT_TRUE(ws.control("frmRecordsOffline.tmrBill").isEnabled());
    fill();
    ws.set("frmRecordsOffline.cboRef", "NO");
    ws.set("frmRecordsOffline.cboBilling", "NHIS");
    save();

    EXPECT_BOXES(ui, {"Record Succesfully saved"});
    EXPECT_EQ(row("select consultID, PNo, recDate, htime, clientCat, clinicType, Remarks, referal, empID, coyName, "
                  "attendedto, "
                  "exitDate from hRecords"),
              "001OFL0000001|P/0001|2026-03-14|09:30|NHIS|OPD|CONSULTATION|NO|E001|0201|0|");
    EXPECT_EQ(row("select dtDate, drgName, Price, Qty, SubTotal, PNo, billType, attendedto from BillAccum where "
                  "consultID='001OFL0000001' and drgName='CONSULTATION'"),
              "2026-03-14|CONSULTATION|2000|1|2000|P/0001|SERVICE|0");
    EXPECT_EQ(ws.tableCount("BillAccum where consultID='001OFL0000001'"), 2);
    EXPECT_EQ(ws.tableCount("BillAccum where consultID=''"), 1) << "another patient's item was taken";
    EXPECT_EQ(row("select clientcatID, ref from hPatients where PNo='P/0001'"), "NHIS|NO");
    EXPECT_EQ(value("lblBill"), "");
    EXPECT_EQ(ws.form("frmRecordsOffline").caption(), "OFFLINE ATTENDANCE:1");
}

TEST_P(Attendance, SaveChecksInOrder) {
    patient();
    ws.open("frmRecordsOffline");
    EXPECT_EQ(ws.form("frmRecordsOffline").caption(), "OFFLINE ATTENDANCE:");
    const struct {
        std::function<void()> before;
        const char* message;
    } steps[] = {
        {[] {}, " Consultation ID is needed for this Patient, select Patient Name OR see the Administrator"},
        {[&] {
             ws.click("frmRecordsOffline.cmdAdd");
             ws.set("frmRecordsOffline.dtDate", "");
         },
         " please specify Attendance date"},
        {[&] { ws.set("frmRecordsOffline.dtDate", "2026-03-14"); }, " please specify Name of Patient"},
        {[&] { begin(); }, " please specify clinic for Patient"},
        {[&] { ws.set("frmRecordsOffline.cboType", "OUT-PATIENT"); }, " please specify Purpose of Visit for Patient"},
        {[&] { ws.set("frmRecordsOffline.cboClient", "CONSULTATION"); }, " please specify Name of record Officer"},
        {[&] {
             ws.pick("frmRecordsOffline.cboAppr", 0);
             ws.control<ComboBox>("frmRecordsOffline.cboRef").setListIndex(-1);
         },
         " please specify Whether Patient is on Referral"},
        {[&] {
             ws.set("frmRecordsOffline.cboRef", "NO");
             ws.control<ComboBox>("frmRecordsOffline.cboBilling").setListIndex(-1);
         },
         "please specify Patient Billing Category"},
    };
    for (const auto& step : steps) {
        step.before();
        save();
        EXPECT_BOXES(ui, {step.message});
        EXPECT_EQ(ws.tableCount("hRecords"), 0);
    }
    ws.set("frmRecordsOffline.cboBilling", "PRIVATE");
    save();
    EXPECT_BOXES(ui, {"Record Succesfully saved"});
    EXPECT_EQ(ws.tableCount("BillAccum"), 0) << "a clinic without a fee row charges nothing";
}

TEST_P(Attendance, PickRefusesWithoutDateAndDuplicates) {
    patient();
    ws.open("frmRecordsOffline");
    ws.set("frmRecordsOffline.txtName", "NOBODY");
    ws.click("frmRecordsOffline.cmdOK");
    EXPECT_EQ(value("lblFound"), "***");
    EXPECT_EQ(ws.rows("frmRecordsOffline.grdData").size(), 1);

    ws.set("frmRecordsOffline.txtName", "adeyemi b");
    ws.click("frmRecordsOffline.cmdOK");
    EXPECT_EQ(ws.items("frmRecordsOffline.cboVehNo"), QStringList{"ADEYEMI BOLA [P/0001]"});
    EXPECT_TRUE(ws.rows("frmRecordsOffline.grdData").first().contains("Surname"));
    EXPECT_FALSE(ws.rows("frmRecordsOffline.grdData").first().split("\t").contains("expired"));
    ws.pick("frmRecordsOffline.cboVehNo", 0);
    EXPECT_BOXES(ui, {"Specify Attendance Date"});

    visit({.consultID = "001OFL0000007"});
    begin();
    EXPECT_BOXES(ui, {"Patient Attendance already entered!!! Duplicate not allowed"});
    EXPECT_EQ(value("lblNo") + value("lblBill") + value("cboVehNo"), "");

    ws.run("update hRecords set attendedto=1");
    begin();
    fill();
    save();
    EXPECT_BOXES(ui, {"Record Succesfully saved"});
    EXPECT_EQ(row("select max(consultID) from hRecords"), "001OFL0000008");
}

TEST_P(Attendance, TwoWorkstationsEnterOnePatientOnce) {
    patient();
    patient({.pno = "P/0002", .surname = "BAKARE"});
    begin();
    fill();
    const SecondHome secondHome(home);
    Workstation other{secondHome.folder()};
    ASSERT_TRUE(other.start());
    other.ui.forgetBoxes();
    for (const char* name : {"BAKARE", "ADEYEMI"}) {
        other.program.open("frmRecordsOffline");
        other.click("frmRecordsOffline.cmdAdd");
        other.set("frmRecordsOffline.txtName", name);
        other.click("frmRecordsOffline.cmdOK");
        other.pick("frmRecordsOffline.cboVehNo", 0);
        other.set("frmRecordsOffline.cboType", "OPD");
        other.set("frmRecordsOffline.cboClient", "CONSULTATION");
        other.pick("frmRecordsOffline.cboAppr", 0);
        other.click("frmRecordsOffline.OKButton");
    }
    EXPECT_BOXES(other.ui, {"Record Succesfully saved", "Record Succesfully saved"});
    save();
    EXPECT_BOXES(ui, {"Patient Attendance already entered!!! Duplicate not allowed"});
    begin("BAKARE");
    EXPECT_BOXES(ui, {"Patient Attendance already entered!!! Duplicate not allowed"});
    EXPECT_EQ(ws.tableCount("hRecords"), 2);
    EXPECT_EQ(ws.tableCount("BillAccum"), 2);
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
    const struct {
        QTime now;
        const char* purpose;
        const char* fee;
    } cases[] = {{{12, 59}, "REVIEW", "0"}, {{13, 0}, "CONSULTATION", "2000"}};
    patient();
    for (const auto& at : cases) {
        ws.run("delete from hRecords");
        ws.run("delete from BillAccum");
        visit({});
        ws.run("update hRecords set attendedto=1");
        ui.clock = QDateTime(Today, at.now);
        begin();
        fill("OPD", "REVIEW");
        EXPECT_EQ(ui.takeBoxes(), at.now < QTime(13, 0) ? QStringList() : QStringList{tooLate});
        EXPECT_EQ(value("cboClient"), at.purpose);
        save();
        ui.forgetBoxes();
        EXPECT_EQ(row("select Price, SubTotal from BillAccum"), QString("%1|%1").arg(at.fee));
        EXPECT_EQ(row("select Remarks from hRecords where attendedto=0"), at.purpose);
    }

    // The purpose before the patient.
    ws.run("update hRecords set attendedto=1");
    ws.click("frmRecordsOffline.cmdAdd");
    ws.set("frmRecordsOffline.cboClient", "REVIEW");
    EXPECT_BOXES(ui, {});
    begin();
    EXPECT_EQ(ui.takeBoxes(), QStringList{tooLate});
    EXPECT_EQ(value("cboClient"), "CONSULTATION");
    EXPECT_EQ(ws.program.session.sClientName, "CONSULTATION");
}

TEST_P(Attendance, FollowUpHalvesTheFeeAndClosesItsAppointment) {
    patient();
    ws.run("insert into hreferal (ConsultID, PNo, ApptDate, clinicType, Remarks, attendedTo) values ('001OFL0000001', "
           "'P/0001', '2026-03-14', 'ANTENATAL', 'FOLLOW-UP', 0)");
    begin();
    EXPECT_BOXES(ui, {" This Patient has ANTENATAL Appointment Today"});
    fill("ANTENATAL", "FOLLOW-UP");
    save();
    EXPECT_BOXES(ui, {"Record Succesfully saved"});
    EXPECT_EQ(row("select Price, Qty, SubTotal from BillAccum"), "751|1|751");
    EXPECT_EQ(row("select attendedTo from hreferal"), "1");
}

TEST_P(Attendance, EditChangesTheVisitOnly) {
    patient();
    patient({.pno = "P/0002", .surname = "O'NEILL", .category = "HMO", .client = "0201"});
    begin();
    fill();
    save();
    ui.forgetBoxes();

    ws.set("frmRecordsOffline.txtName", "ADE");
    ws.click("frmRecordsOffline.cmdOK");
    ws.row("frmRecordsOffline.grdData", 0);
    ws.click("frmRecordsOffline.cmdEdit");
    EXPECT_BOXES(ui, {"Search Result cannot be Edited, Only Attendance"});

    ws.click("frmRecordsOffline.cmdRefresh");
    ws.row("frmRecordsOffline.grdData", "001OFL0000001");
    ws.click("frmRecordsOffline.cmdEdit");
    EXPECT_EQ(value("cboVehNo"), "ADEYEMI BOLA [P/0001]");
    EXPECT_EQ(value("lblBill"), "001OFL0000001");
    EXPECT_EQ(value("dtDate"), "2026-03-14");
    ws.set("frmRecordsOffline.dtDate", "2026-03-12");
    ws.set("frmRecordsOffline.cboType", "ANTENATAL");
    ws.pick("frmRecordsOffline.cboAppr", "OKAFOR");
    save();
    EXPECT_BOXES(ui, {"Record Succesfully Edited and Updated"});
    EXPECT_EQ(
        row("select consultID, PNo, recDate, exitDate, clinicType, Remarks, clientCat, empID, coyName from hRecords"),
        "001OFL0000001|P/0001|2026-03-12|2026-03-12|ANTENATAL|CONSULTATION|PRIVATE|D001|0001");
    EXPECT_EQ(row("select Price from BillAccum"), "2000");

    begin("O'NEILL");
    EXPECT_EQ(value("lblNo"), "P/0002") << "a new attendance after an edit is a new row";
    fill();
    save();
    EXPECT_BOXES(ui, {"Record Succesfully saved"});
    EXPECT_EQ(ws.tableCount("hRecords"), 2);
}

TEST_P(Attendance, DeleteAsksAndLeavesTheItems) {
    patient();
    begin();
    fill();
    save();
    ui.forgetBoxes();
    ws.row("frmRecordsOffline.grdData", 0);
    ui.answer(false);
    ws.click("frmRecordsOffline.cmdDel");
    EXPECT_EQ(ws.tableCount("hRecords"), 1);
    ui.answer(true);
    ws.click("frmRecordsOffline.cmdDel");
    EXPECT_BOXES(ui, {" Record successfully deleted "});
    EXPECT_QUESTIONS(ui, {"Are you sure to Delete Record", "Are you sure to Delete Record"});
    EXPECT_EQ(ws.tableCount("hRecords"), 0);
    EXPECT_EQ(ws.tableCount("BillAccum"), 1);
    EXPECT_EQ(ws.form("frmRecordsOffline").caption(), "OFFLINE ATTENDANCE:");
}

TEST_P(Attendance, HardNamesAreNames) {
    patient({.pno = "P/'1", .surname = "O'NEILL'; drop table hRecords--", .firstname = QString::fromUtf8("ẸNIỌLÁ 😀")});
    begin("o'neill'; drop");
    EXPECT_EQ(value("lblNo"), "P/'1");
    fill();
    save();
    EXPECT_BOXES(ui, {"Record Succesfully saved"});
    EXPECT_EQ(row("select PNo from hRecords"), "P/'1");
    EXPECT_TRUE(ws.rows("frmRecordsOffline.grdData").at(1).contains(QString::fromUtf8("ẸNIỌLÁ 😀")));
}

TEST_P(Attendance, FaultInTheSaveLeavesNothingButTheFilledForm) {
    patient();
    begin();
    fill();
    ws.program.data().setStatementHook([](const QString& tsql) {
        if (tsql.startsWith("Update hpatients"))
            throw DataError("the cable was pulled");
    });
    save();
    EXPECT_BOXES(ui, {"the cable was pulled"});
    ws.program.data().setStatementHook({});
    EXPECT_EQ(ws.tableCount("hRecords"), 0);
    EXPECT_EQ(ws.tableCount("BillAccum"), 0);
    EXPECT_EQ(value("cboVehNo"), "ADEYEMI BOLA [P/0001]");
    save();
    EXPECT_BOXES(ui, {"Record Succesfully saved"});
    EXPECT_EQ(ws.tableCount("hRecords"), 1);
    EXPECT_EQ(ws.tableCount("BillAccum"), 1);
}

TEST_P(Attendance, IdsGoOnFromWhatIsThere) {
    const struct {
        QStringList present;
        const char* next;
    } cases[] = {
        {{}, "001OFL0000001"},
        {{"OFL0000041"}, "001OFL0000042"},
        {{"OFL0000041", "001OFL0000003"}, "001OFL0000004"},
        {{"002OFL0000900", "001OFL0000009", "001OFL0000010"}, "001OFL0000011"},
        {{"001OFL9999999"}, "001OFL0000000"},
        {{"001OFL0000012A"}, "001OFL0000013"},
    };
    for (const auto& ids : cases) {
        ws.run("delete from hRecords");
        for (const QString& id : ids.present)
            visit({.consultID = id});
        Connection connection = ws.billing();
        EXPECT_EQ(genConsultID(connection, "001"), ids.next);
    }

    // What deleted visits have left behind is not the next visit's.
    ws.run("delete from hRecords");
    ws.run("insert into BillAccum (consultID, drgName, SubTotal) values ('001OFL0000001', 'CONSULTATION', 2000)");
    ws.run("insert into Billing (billNo, PNo) values ('001OFL0000002', 'P/0001')");
    Connection connection = ws.billing();
    EXPECT_EQ(genConsultID(connection, "001"), "001OFL0000003");
}

TEST(ConsultationFee, GoesByPurpose) {
    const struct {
        double full;
        const char* purpose;
        double fee;
    } cases[] = {{2000, "CONSULTATION", 2000}, {2000.75, "", 2000.75},   {2000, "REVIEW", 0}, {2000, "FOLLOW-UP", 1000},
                 {1501.5, "FOLLOW-UP", 751},   {1501, "FOLLOW-UP", 750}, {0, "FOLLOW-UP", 0}};
    for (const auto& charge : cases)
        EXPECT_EQ(consultationFee(charge.full, charge.purpose), charge.fee) << charge.full << charge.purpose;
}

} // namespace

} // namespace orvane
