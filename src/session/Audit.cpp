#include "data/rows/Transaction.h"
#include "session/Program.h"

#include <QSysInfo>

namespace orvane {

namespace {

const QString shortTime = "HH:mm";

} // namespace

/// Where the environment does not name the workstation or its user, the host's name and the system's own user variable
/// stand in.
void Program::readEnvironmentIdentity() {
    session.sComputerName = qEnvironmentVariable("computername");
    if (session.sComputerName.isEmpty())
        session.sComputerName = QSysInfo::machineHostName();
    session.sEnvUserName = qEnvironmentVariable("username");
    if (session.sEnvUserName.isEmpty())
        session.sEnvUserName = qEnvironmentVariable("USER");
}

void Program::writeAuditTrail(const AuditEntry& entry) {
    try {
        readEnvironmentIdentity();
        Connection connection = openBilling();
        const QString source = entry.source.isEmpty() ? session.sComputerName : entry.source;
        connection.call("SpAudiTrail", {{"@userName", session.gUsername},
                                        {"@userAction", entry.action},
                                        {"@ActionDate", session.gServerDate},
                                        {"@ActionTime", session.gServerTime.toString(shortTime)},
                                        {"@TranCode", entry.document},
                                        {"@Remarks", entry.remarks},
                                        {"@Src", session.gModuleName + ": from " + source}});
    } catch (const DataError& fault) {
        boxAfterTransaction(fault.description());
    }
}

void Program::openUserActivity(bool isLogout, bool autoLogoff, const QString& remarks) {
    const QDateTime now = getServerDateTime();
    session.dWorkDate = now.date();
    try {
        Connection connection = openBilling();
        Transaction transaction(connection);
        Recordset activity(connection, Sql("select * from UserActivities where 1=2"));
        activity.addNew();
        activity.set("username", session.gUsername);
        activity.set("LoginDate", now.date());
        activity.set("LoginTime", now.toString(shortTime));
        activity.set("islogout", int(isLogout));
        if (isLogout) {
            activity.set("LogoutDate", now.date());
            activity.set("LogoutTime", now.toString(shortTime));
        }
        activity.set(QStringLiteral("AutoLogoff"), int(autoLogoff));
        activity.set("Remarks", remarks);
        activity.update();
        const Recordset last(connection, Sql("select top 1 SNO from UserActivities order by SNO desc"));
        session.gActivitySNo = last.integer("SNo");
        transaction.commit();
    } catch (const DataError& fault) {
        boxAfterTransaction(fault.description());
    }
}

void Program::closeUserActivity(bool isLogout, bool autoLogoff, const QString& remarks) {
    session.bAutoLogoff = false;
    const QDateTime now = getServerDateTime();
    session.dWorkDate = now.date();
    try {
        Connection connection = openBilling();
        Recordset activity(connection, Sql("select * from UserActivities where SNO=") << session.gActivitySNo);
        if (activity.eof())
            return;
        activity.set("islogout", int(isLogout));
        if (isLogout) {
            activity.set("LogoutDate", now.date());
            activity.set("LogoutTime", now.toString(shortTime));
        }
        activity.set(QStringLiteral("AutoLogoff"), int(autoLogoff));
        activity.set("Remarks", remarks);
        activity.update();
    } catch (const DataError& fault) {
        boxAfterTransaction(fault.description());
    }
}

} // namespace orvane
