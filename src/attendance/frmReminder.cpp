#include "attendance/frmReminder.h"

namespace orvane {

frmReminder::frmReminder(Program& owner) : Screen(owner, "frmReminder", "Prompts") {
    cmdExpected.onClick = [this] { showList(Sql("select * from qryhvisitsForToday"), "Hospital Attendance"); };
    cmdReorder.onClick = [this] { showList(Sql("select * from qryhNextAppt"), "Patients Appt Date Due Today"); };
    cmdClose.onClick = [this] { unload(); };
}

Layout frmReminder::layout() const {
    using namespace orvane::layout;
    return column({cell(lblShow), cell(dGexp), buttons({&cmdExpected, &cmdReorder}, {&cmdClose})});
}

void frmReminder::showList(const Sql& sql, const QString& caption) {
    Connection connection = program.openBilling();
    dGexp.load(Recordset(connection, sql));
    lblShow.setText(caption);
}

} // namespace orvane
