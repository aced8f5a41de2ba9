#include "session/Program.h"

namespace orvane {

QDateTime Program::getServerDateTime() {
    try {
        Connection connection = openBilling();
        const Recordset clock(connection, Sql("select sysDT from qrySysDateTime"));
        return clock.eof() ? QDateTime() : clock.dateTime("sysdt");
    } catch (const DataError& fault) {
        boxAfterTransaction(fault.description());
        return {};
    }
}

} // namespace orvane
