#include "books/Trail.h"
#include "session/Program.h"

#include <QSysInfo>

namespace orvane {

/// Where the environment does not name the workstation, the host's name stands in.
void Program::readEnvironmentIdentity() {
    session.sComputerName = qEnvironmentVariable("computername");
    if (session.sComputerName.isEmpty())
        session.sComputerName = QSysInfo::machineHostName();
}

void Program::writeAuditTrail(const AuditEntry& entry) {
    try {
        readEnvironmentIdentity();
        Connection connection = openBilling();
        connection.call("SpAudiTrail", {{"@userName", entry.user.isEmpty() ? session.gUsername : entry.user},
                                        {"@userAction", entry.action},
                                        {"@ActionDate", session.gServerDate},
                                        {"@ActionTime", session.gServerTime.toString("HH:mm")},
                                        {"@TranCode", entry.document},
                                        {"@Remarks", entry.remarks},
                                        {"@Src", session.gModuleName + ": from " + session.sComputerName},
                                        {"@saveToken", entry.token.isEmpty() ? followedSave : entry.token}});
    } catch (const DataError& fault) {
        boxAfterTransaction(fault.description());
    }
}

void Program::openUserActivity(bool isLogout, bool autoLogoff, const QString& remarks) {
    const QDateTime now = getServerDateTime();
    session.dWorkDate = now.date();
    try {
        session.gActivitySNo = *desk().save<qlonglong>(
            "LOG ON",
            [&](Books& books) -> Given<qlonglong> {
                return orvane::openUserActivity(books, {now, isLogout, autoLogoff, remarks});
            });
    } catch (const DataError& fault) {
        boxAfterTransaction(fault.description());
    }
}

void Program::closeUserActivity(bool isLogout, bool autoLogoff, const QString& remarks) {
    session.bAutoLogoff = false;
    const QDateTime now = getServerDateTime();
    session.dWorkDate = now.date();
    try {
        desk().save<Saved>(
            "LOG OFF",
            [&](Books& books) -> Given<Saved> {
                orvane::closeUserActivity(books, session.gActivitySNo, {now, isLogout, autoLogoff, remarks});
                return Saved{};
            });
    } catch (const DataError& fault) {
        boxAfterTransaction(fault.description());
    }
}

} // namespace orvane
