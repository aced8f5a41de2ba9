#include "attendance/frmReminder.h"

namespace orvane {

frmReminder::frmReminder(Program& owner) : Screen(owner, "frmReminder", "Prompts") {}

Layout frmReminder::layout() const {
    using namespace orvane::layout;
    return column({cell(lblShow), cell(dGexp), buttons({&cmdExpected, &cmdReorder}, {&cmdClose})});
}

void frmReminder::cmdExpected_Click() {
    // The view also has the open visits of earlier days.
    showList(Sql("select * from qryhvisitsForToday where recdate='") << session.gServerDate << "'",
             "Hospital Attendance");
}

void frmReminder::cmdReorder_Click() {
    showList(Sql("select * from qryhNextAppt"), "Patients Appt Date Due Today");
}

void frmReminder::showList(const Sql& sql, const QString& caption) {
    Connection connection = program.openBilling();
    dGexp.load(Recordset(connection, sql));
    lblShow.setText(caption);
}

} // namespace orvane
