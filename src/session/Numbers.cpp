#include "session/Program.h"

namespace orvane {

void Program::fetchIDNo(Connection& connection, const QString& destName) {
    const Recordset next = connection.call("getIDNo", {{"DestName", destName}});
    session.gIDNo = next.eof() ? QString() : next.text(0);
}

} // namespace orvane
