#include "session/LoginTrail.h"

namespace orvane {

namespace {

void addTrail(Program& program, const QString& action) {
    Session& session = program.session;
    const QDateTime now = program.ui().now();
    session.sLoginTrailAction = action;
    session.dLoginTrailDate = now.date();
    session.sLoginTrailTime = now.toString("HH:mm:ss");
    Connection connection = program.openBilling();
    Recordset trail(connection, Sql("select * from LoginTrail where 1=2"));
    // The columns behind the key are known by their places only.
    const QStringList columns = trail.columns();
    trail.addNew();
    trail.set(columns.at(1), session.sLoginName);
    trail.set(columns.at(2), session.sLoginTrailAction);
    trail.set(columns.at(3), session.dLoginTrailDate);
    trail.set(columns.at(4), session.sLoginTrailTime);
    trail.update();
}

} // namespace

int trailLogonSuccess(Program& program, int count) {
    addTrail(program, "Successful Logon");
    return count;
}

int trailLogonFailure(Program& program, int count) {
    addTrail(program, "Failed Logon");
    return count;
}

} // namespace orvane
