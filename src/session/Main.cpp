#include "session/Main.h"

#include "session/Settings.h"
#include "session/StartFiles.h"

namespace orvane {

namespace {

QString connectionString(const QString& server, const QString& database) {
    return "Driver={SQL Server};Server=" + server + ";Database=" + database + ";UID=zorva;PWD=vexlarin";
}

bool refuseSecondCopy(Program& program) {
    if (program.lockInstance())
        return false;
    program.box(program.session.gModuleName + " Module is Already Running !", Icon::Critical, "Error");
    return true;
}

bool proveUser(Program& program, Connection& connection) {
    Session& session = program.session;
    const Recordset user(connection,
                         Sql("SELECT EmpID, Fullname,username,loginrole,hname,hospID FROM vwUsers WHERE Username = '")
                             << session.gUsername << "'  and loginrole='" << session.gModuleName
                             << "' and isnull(AccountStatus, '') in ('Enabled', '')");
    if (user.eof()) {
        program.box("Invalid Login OR session has expired!!! Please Re-login");
        return false;
    }
    session.gEmpID = user.text("empID");
    session.gUsername = user.text("username");
    session.gFullName = user.text("fullName");
    session.gHospName = user.text("hname");
    session.gHospID = user.text("hospID");
    if (!session.gHospID.isEmpty())
        return true;
    program.box("Value needed for Hospital ID/Name");
    return false;
}

bool takeHospitalNames(Program& program, Connection& connection) {
    Session& session = program.session;
    const Recordset hospital(connection, Sql("SELECT hospID,Hname,HName2 FROM HospList WHERE hospID = '")
                                             << session.gHospID << "'");
    if (hospital.eof())
        return true;
    session.gHospName2 = hospital.text("hname2");
    if (!session.gHospName.isEmpty() && !session.gHospName2.isEmpty())
        return true;
    program.box("Value needed for Hospital ID/Name");
    return false;
}

/// A fault of the start is shown, and the start is over.
bool showingFaults(Program& program, const std::function<bool()>& steps) {
    try {
        return steps();
    } catch (const DataError& fault) {
        program.box(fault.description());
        return false;
    }
}

} // namespace

bool prepareServer(Program& program) {
    Session& session = program.session;
    session.dPostDate = session.gServerDate;
    if (!readMadeSys(program))
        return false;
    session.sHospitalNoStr = "0"; // made.sys gives no number of the hospital
    if (session.gServerName.isEmpty())
        session.gServerName = "SERVER";
    session.gConnStr = connectionString(session.gServerName, "Dunmarch");
    session.gAcctConnStr = connectionString(session.gServerName, "Accounting");
    session.bReceiptHeadLoaded = false;
    session.bRollPaper = readRollPaper(program.homeFolder());
    session.gPatientsFolder = "\\\\" + session.gServerName + "\\Patients\\";
    session.bFirstShow = true;
    session.bAutoLogoff = false;
    session.gModuleName = "BILLING";
    return true;
}

bool prepareSession(Program& program) {
    {
        Connection connection = program.openBilling();
        if (!proveUser(program, connection) || !takeHospitalNames(program, connection))
            return false;
    }
    if (!readSettings(program))
        return false;
    program.session.gHospIDName = program.session.gHospID;
    return true;
}

bool Main(Program& program, const std::optional<QString>& userName) {
    return showingFaults(
        program,
        [&] {
            if (!prepareServer(program) || refuseSecondCopy(program))
                return false;
            if (userName)
                program.session.gUsername = *userName;
            else if (!readSysDoc(program))
                return false;
            if (!prepareSession(program))
                return false;
            program.open("MdiTolmek");
            return true;
        });
}

bool MainWithLogin(Program& program) {
    return showingFaults(
        program,
        [&] {
            if (!prepareServer(program) || refuseSecondCopy(program))
                return false;
            program.open("frmWelcome");
            return true;
        });
}

} // namespace orvane
