#include "accounts/GroupedList.h"

#include "books/Bank.h"

namespace orvane {

GroupedList::GroupedList(Program& owner, const QString& name, const QString& caption, const Words& words)
    : Screen(owner, name, caption), m_words(words) {
    lblHead.setText(words.heading);
    for (TextBox* code : {&txtID, &txtCon})
        code->setLocked(true);
    grdData.hide({"SNO", "Status"});
}

Layout GroupedList::layout() const {
    using namespace orvane::layout;
    return column({cell(lblHead),
                   row({field("Entry Type", cboType, 14), field(m_words.groupLabel, cboVehNo, 40), stretch()}),
                   cell(grdData),
                   row({column({field(m_words.nameLabel, txtReg, 44), field(m_words.remarkLabel, txtName, 44)}),
                        column({field(m_words.group + " Code", txtID, 8), field(m_words.member + " Code", txtCon, 8)}),
                        stretch()}),
                   master.row()});
}

void GroupedList::Form_Load() {
    cboType.clear();
    cboType.addItems({m_words.group, m_words.member});
    fillGroups();
    fillGrid();
    openEntry(false);
}

void GroupedList::fillGroups() {
    cboVehNo.clear();
    Connection connection = program.openBilling();
    Recordset row(connection, groupNames());
    for (; !row.eof(); row.moveNext())
        cboVehNo.addItem(row.text(1), row.text(0));
}

void GroupedList::cboType_Click() {
    fillGrid();
}

void GroupedList::fillGrid() {
    m_showsGroups = isGroup();
    Connection connection = program.openBilling();
    grdData.load(Recordset(connection, m_showsGroups ? groups() : members()));
}

void GroupedList::cmdAdd_Click() {
    openEntry(true);
    (cboType.text().isEmpty() ? static_cast<Control&>(cboType) : cboVehNo).setFocus();
}

void GroupedList::cmdEdit_Click() {
    // A double click in the list must not take away what is being entered.
    if (grdData.currentRow() < 0 || master.isEntering())
        return;
    openEntry(true);
    bEditing = true;
    cboType.setEnabled(false);
    if (m_showsGroups)
        editGroup();
    else
        editMember();
}

void GroupedList::editGroup() {
    sCode = grdData.text(m_words.groupCode);
    txtID.setText(sCode);
    cboVehNo.setText(grdData.text(m_words.groupColumn));
    cboVehNo.setFocus();
}

/// The row is read before the boxes are set: they fill the list anew.
void GroupedList::editMember() {
    lID = grdData.text("SNO").toLongLong();
    txtID.setText(grdData.text(m_words.codeOfGroup));
    txtCon.setText(grdData.text(m_words.memberCode));
    txtReg.setText(grdData.text(m_words.memberName));
    txtName.setText(grdData.text(m_words.memberRemark));
    const QString group = grdData.text("BName");
    cboType.setText(m_words.member);
    cboVehNo.setText(group);
    txtReg.setFocus();
}

/// Of a group: that of its own row among the members; 0 where it has none.
qlonglong GroupedList::currentRowID() {
    if (!m_showsGroups)
        return grdData.text("SNO").toLongLong();
    Connection connection = program.openBilling();
    const Recordset own(connection, ownRow(grdData.text(m_words.groupCode)));
    return own.eof() ? 0 : own.integer("SNO");
}

/// The statement names the table of banks on each of these screens.
void GroupedList::cmdDel_Click() {
    if (grdData.currentRow() < 0)
        return;
    save<Saved>({.button = master.cmdDel,
                 .action = name() + " DELETE",
                 .question = "Are you sure to Delete Record",
                 .title = "Delete",
                 .consent = Consent::Destroys,
                 .step = [id = currentRowID()](Books& books) -> Given<Saved> {
                     deleteBankBranch(books, id);
                     return Saved{};
                 },
                 .follow =
                     [this](const Saved&) {
                         program.box(" Record successfully deleted ");
                         fillGrid();
                     }});
}

void GroupedList::cmdRefresh_Click() {
    Form_Load();
}

void GroupedList::cmdCancel_Click() {
    openEntry(false);
    cboVehNo.setText({});
    fillGrid();
}

void GroupedList::OKButton_Click() {
    save<Saved>({.button = master.OKButton,
                 .action = name() + (bEditing ? " EDIT" : " ADD"),
                 .allowed = [this] { return isComplete(); },
                 .question = "Are you sure to save Record",
                 .title = "Save",
                 .step = [this](Books& books) -> Given<Saved> {
                     if (!bEditing)
                         return addEntry(books);
                     changeEntry(books);
                     return Saved{};
                 },
                 .follow =
                     [this](const Saved&) {
                         program.box(bEditing ? "Record Succesfully Updated" : "Record Succesfully saved");
                         openEntry(false);
                         fillGroups();
                         fillGrid();
                         master.cmdAdd.setFocus();
                     }});
}

void GroupedList::openEntry(bool entering) {
    bEditing = false;
    sCode.clear();
    lID = 0;
    for (TextBox* box : {&txtID, &txtCon, &txtReg, &txtName})
        box->clear();
    for (TextBox* box : {&txtReg, &txtName})
        box->setEnabled(entering);
    cboType.setEnabled(true);
    master.setEntering(entering);
}

} // namespace orvane
