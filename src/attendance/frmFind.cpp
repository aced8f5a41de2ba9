#include "attendance/frmFind.h"

#include <utility>

namespace orvane {

frmFind::frmFind(Program& owner) : Screen(owner, "frmFind", "Find a Record ") {
    txtName.setToolTip("enter the first few letters");
    TxtID.setToolTip("enter New File No and click OK");
    txtName.onEnter = [this] { searchByName(); };
}

Layout frmFind::layout() const {
    using namespace orvane::layout;
    return column(
        {row({field("Surname", txtName, 24), cell(cmdName), stretch(), field("File No", TxtID, 18), cell(cmdID)}),
         cell(grdData), buttons({}, {&cmdRestore, &cmdClose})});
}

void frmFind::searchByName() {
    // An empty or a short name means half the hospital: the first patients show while the others are still read.
    grdData.load(
        Recordset::paged(program.openBilling(),
                         Sql("select pno as FileNo,oldpno as [Old FileNo],psurname as Surname,pfirstname as Firstname "
                             ",homeAddress from hpatients where psurname like '")
                             << txtName.text() << "%'"));
}

Screen::PatientTaker frmFind::patientTaker() {
    return [this](const QString& pno) {
        TxtID.setText(pno);
        cmdID_Click();
    };
}

void frmFind::cmdID_Click() {
    Connection connection = program.openBilling();
    grdData.load(Recordset(
        connection, Sql("select pno as FileNo,oldpno as [Old FileNo],psurname as Surname,pfirstname as Firstname "
                        ",homeAddress from hpatients where pno like '")
                        << TxtID.text() << "'"));
}

void frmFind::cmdRestore_Click() {
    TxtID.clear();
    // Emptied without its search, which would read every patient of the hospital only to clear them again.
    const auto search = std::exchange(txtName.onChange, nullptr);
    txtName.clear();
    txtName.onChange = search;
    grdData.clear();
}

/// The card of the patient who was found.
void frmFind::grdData_DblClick() {
    session.sFoundPNo = grdData.text("FileNo");
    program.open("frmPatientInfo");
}

} // namespace orvane
