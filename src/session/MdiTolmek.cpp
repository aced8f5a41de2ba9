#include "session/MdiTolmek.h"

#include "patients/PatientDirectory.h"

#include <QDir>

namespace orvane {

namespace {

constexpr unsigned restColor = 0x8080ff;
constexpr unsigned alarmColor = 0xff0000;

} // namespace

MdiTolmek::MdiTolmek(Program& owner) : Screen(owner, "MdiTolmek", "Billing : Orvane") {
    Frame1.holds({&lblServer, &lblDate, &lblTime});
    buildMenus();
    Picture1.onDblClick = [this] { Picture1_DblClick(); };
    Picture1.setToolTip("Flashes while patients from the doctor wait. A double click silences the alert, or lets it "
                        "sound again.");
    program.onSaved = [this](const QString& words) { SbrTolmek.setMessage(words); };
}

MdiTolmek::~MdiTolmek() {
    program.onSaved = {};
}

/// The hospital is named at the left; the clock stands in the middle of the strip, cmdView at its right edge.
Layout MdiTolmek::layout() const {
    using namespace orvane::layout;
    return row({cell(Picture1), cell(Picture2), facts({{session.gHospName2, &lblHospital}}), stretch(), cell(lblServer),
                cell(lblDate), cell(lblTime), stretch(), cell(cmdView)});
}

void MdiTolmek::Form_Load() {
    Control* accounts = find("mnuAccts");
    accounts->setVisible(false);
    refreshServerClock();
    lblHospital.setText(session.gHospName);
    SbrTolmek.setPanel(1, session.gModuleName);
    SbrTolmek.setPanel(2, session.gUsername);
    SbrTolmek.setPanel(3, session.gFullName);
    find("mnuEPE")->setCaption("Log Off " + session.gUsername);
    program.writeAuditTrail({"Login Billing", {}, {}});
    {
        Connection connection = program.openBilling();
        const Recordset user(connection, Sql("select username from UsersForAccts where username ='")
                                             << session.gUsername << "'");
        accounts->setVisible(!user.eof());
    }
    program.openUserActivity(false, false, session.gModuleName);
}

bool MdiTolmek::Form_Unload() {
    if (session.bAutoLogoff) {
        endSession(true);
        return true;
    }
    if (!program.question(" Do you want to Exit the Application?", "Exit Application"))
        return false;
    endSession(false);
    return true;
}

void MdiTolmek::endSession(bool autoLogoff) {
    program.closeUserActivity(true, autoLogoff, session.gModuleName);
    program.writeAuditTrail({"Login Out", {}, {}});
    program.end();
}

void MdiTolmek::refreshServerClock() {
    program.ui().processEvents();
    const QDateTime now = program.getServerDateTime();
    // No reading, or the server's date went back: the clock stays.
    if (!now.isValid() || (session.gServerDate.isValid() && now.date() < session.gServerDate))
        return;
    session.gServerDate = now.date();
    session.gServerTime = QTime(now.time().hour(), now.time().minute());
    lblDate.setText(session.gServerDate.toString("dd/MM/yyyy"));
    lblTime.setText(session.gServerTime.toString("HH:mm"));
    program.ui().processEvents();
}

void MdiTolmek::checkWaitingVisits() {
    program.ui().processEvents();
    {
        Connection connection = program.openBilling();
        const Recordset waiting(connection,
                                Sql("SELECT Fullname,Date,Time,Client from vwhConsultingVisitsForBilling where date='")
                                    << session.gServerDate << "' order by fullname ");
        cmdView.setCount(waiting.count());
        tmrMDI.setEnabled(!waiting.eof());
        tmrSound.setEnabled(!waiting.eof());
    }
    program.ui().processEvents();
}

/// A page of them in each pause, for the patient finder. A fault is shown once and ends it; the finder goes on.
void MdiTolmek::readPatients() {
    tmrPatients.setEnabled(false);
    Connection connection = program.openBilling();
    tmrPatients.setEnabled(program.patients().readOn(connection));
}

void MdiTolmek::tmrMDI_Timer() {
    Picture1.setColor(flashToggle ? alarmColor : restColor);
    flashToggle = !flashToggle;
}

void MdiTolmek::tmrSound_Timer() {
    if (soundTicks < 5) {
        ++soundTicks;
        return;
    }
    soundTicks = 0;
    program.ui().playSound(QDir(program.homeFolder()).filePath("ring1.wav"));
}

/// Silences the alert, or lets it sound again.
void MdiTolmek::Picture1_DblClick() {
    const bool silence = session.bFirstShow;
    session.bFirstShow = !session.bFirstShow;
    if (silence) {
        Picture1.setColor(restColor);
        cmdView.setCount(0); // nobody counts any more
    }
    Timer1.setEnabled(!silence);
    tmrMDI.setEnabled(!silence);
    tmrSound.setEnabled(!silence);
}

void MdiTolmek::VerifyApptDate() {
    Connection connection = program.openBilling();
    if (!Recordset(connection, Sql("select * from qryhNextAppt")).eof())
        sPrompt.prepend("--Some Patients Appt Date is Due Today--\n");
}

void MdiTolmek::VerifyVisitsToday() {
    Connection connection = program.openBilling();
    if (!Recordset(connection, Sql("select * from qryhVisitsForToday")).eof())
        sPrompt.prepend("--There are Visits to the clinic Today--\n");
}

} // namespace orvane
