#include "books/ToolContext.h"

#include <QSysInfo>

namespace orvane {

BookContext toolContext(Connection& billing) {
    const QDateTime now = QDateTime::fromString(
        Recordset(billing, Sql("select sysDT from qrySysDateTime")).text("sysDT"), "yyyy-MM-dd HH:mm:ss");
    const QString workstation = QSysInfo::machineHostName();
    return {.actor = {.user = toolUser, .empID = {}, .workstation = workstation},
            .settings = {},
            .today = now.date(),
            .now = now.time(),
            .audit = [&billing, now, workstation](const AuditEntry& entry) {
                billing.call("SpAudiTrail", {{"@userName", toolUser},
                                             {"@userAction", entry.action},
                                             {"@ActionDate", now.date()},
                                             {"@ActionTime", now.toString("HH:mm")},
                                             {"@TranCode", entry.document},
                                             {"@Remarks", entry.remarks},
                                             {"@Src", toolUser + ": from " + workstation},
                                             {"@saveToken", entry.token}});
            }};
}

void saveToolWork(Connection& billing, const QString& action, const QString& document) {
    const BookContext tool = toolContext(billing);
    Transaction transaction(billing);
    Books books(billing, tool);
    books.audit({action, document, {}});
    books.record(document, 0);
    transaction.commit(*books.savedAction(action));
}

} // namespace orvane
