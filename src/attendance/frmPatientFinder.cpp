#include "attendance/frmPatientFinder.h"

namespace orvane {

namespace {

const QString hint = "Number, old number, telephone, or any part of the name";
const QString numberColumn = "Patient No";

} // namespace

frmPatientFinder::frmPatientFinder(Program& owner) : Screen(owner, "frmPatientFinder", "Find a Patient") {
    txtFind.setToolTip(hint);
    txtFind.onEnter = [this] { txtFind_Enter(); };
    txtFind.onDown = [this] { enterList(); };
    grdData.setWidth("Name", 34);
    grdData.setWidth("Client", 34);
}

Layout frmPatientFinder::layout() const {
    using namespace orvane::layout;
    return column(
        {field("Find", txtFind), cell(lblFound), growing(cell(grdData)), buttons({}, {&CancelButton, &cmdTake})});
}

/// What was searched last stands there, and the next card or letter takes its place.
void frmPatientFinder::Form_Load() {
    txtFind.setText(session.sPatientSearch);
    tellFound();
    txtFind.typeOver();
}

void frmPatientFinder::search() {
    session.sPatientSearch = txtFind.text();
    Connection connection = program.openBilling();
    m_found = program.patients().find(connection, txtFind.text());
    if (m_found.empty())
        grdData.clear();
    else
        showFound(connection);
    tellFound();
}

/// The patients as the database knows them now, in the order in which they were found.
void frmPatientFinder::showFound(Connection& connection) {
    Sql sql("select PNo as [Patient No],oldPno as [Old No],fullName as Name,pPhoneNo as Telephone,Company as Client,"
            "(select max(recDate) from hRecords where hRecords.PNo=vwhpatients.PNo) as [Last Visit] from vwhpatients "
            "where PNo in (");
    Sql order(") order by case PNo");
    for (std::size_t i = 0; i < m_found.size(); ++i) {
        if (i > 0)
            sql << ",";
        sql << "'" << m_found[i].number << "'";
        order << " when '" << m_found[i].number << "' then " << i;
    }
    grdData.load(Recordset(connection, sql << order << " end"));
}

void frmPatientFinder::tellFound() {
    const int count = grdData.rowCount();
    QString text = count == 1 ? QString("1 patient") : QString::number(count) + " patients";
    if (txtFind.text().trimmed().isEmpty())
        text = hint;
    else if (count == 0)
        text = "No patient has: " + txtFind.text().trimmed();
    else if (count >= PatientDirectory::mostFound)
        text = "The first " + text + ": type more to find others";
    m_toldReading = !program.patients().isWhole();
    if (m_toldReading)
        text += " (the names are still being read)";
    lblFound.setText(text);
}

/// Nobody is taken by chance: one who bears the number, or the only one of a name.
bool frmPatientFinder::isCertain() const {
    const bool only = m_found.size() == 1;
    const PatientMatch best = m_found.front().match;
    const bool bearsNumber = best <= PatientMatch::OtherNumber && (only || m_found[1].match > best);
    // He may be gone since, and another one stands first.
    if (grdData.rowCount() != int(m_found.size()))
        return false;
    return bearsNumber || (only && PatientQuery(txtFind.text()).hasLetter());
}

void frmPatientFinder::txtFind_Enter() {
    if (grdData.rowCount() == 0)
        txtFind.typeOver();
    else if (isCertain())
        take();
    else
        enterList();
}

void frmPatientFinder::enterList() {
    if (grdData.rowCount() > 0)
        grdData.setFocus();
}

void frmPatientFinder::take() {
    if (grdData.currentRow() < 0) {
        txtFind.typeOver();
        return;
    }
    session.sFoundPNo = grdData.text(numberColumn);
    unload();
}

/// The patients whom nobody has read yet, and those registered since. Rows that were found stay as they are, or the
/// user would take another one than he sees.
void frmPatientFinder::readOn() {
    tmrRead.setEnabled(false);
    Connection connection = program.openBilling();
    tmrRead.setEnabled(program.patients().readOn(connection));
    if (!m_toldReading || !program.patients().isWhole())
        return;
    if (m_found.empty())
        search();
    else
        tellFound();
}

} // namespace orvane
