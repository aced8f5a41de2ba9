#pragma once

#include "forms/MasterButtons.h"
#include "session/Screen.h"

namespace orvane {

/// A screen that keeps groups and their members, such as banks and their branches, in one list that shows now these,
/// now those.
class GroupedList : public Screen {
public:
    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return master.isEntering() ? &master.OKButton : nullptr; }
    Button* cancelButton() override { return &master.CancelButton; }

protected:
    /// In what one such screen reads differently from another.
    struct Words {
        QString heading;
        QString group, member; ///< the entry types
        QString groupLabel, nameLabel, remarkLabel;
        QString groupColumn, memberName, memberRemark; ///< columns of the lists
        QString groupCode;                             ///< among the groups
        QString codeOfGroup, memberCode;               ///< among the members
    };
    GroupedList(Program& owner, const QString& name, const QString& caption, const Words& words);

    virtual Sql groupNames() const = 0;                     ///< for the box: code and name
    virtual Sql groups() const = 0;                         ///< for the list
    virtual Sql members() const = 0;                        ///< those of `groupCode`, or all where it is empty
    virtual Sql ownRow(const QString& groupCode) const = 0; ///< SNO of the group's own row among the members
    virtual bool isComplete() = 0;                          ///< the checks of a save
    virtual Given<Saved> addEntry(Books& books) = 0;
    virtual void changeEntry(Books& books) = 0;

    bool isGroup() const { return cboType.text() == m_words.group; }
    QString groupCode() const { return cboVehNo.picked<QString>().value_or(QString()); }

    using Me = GroupedList;
    Label lblHead{*this, "lblHead"};
    ComboBox cboType{*this, "cboType", ComboBox::ListOnly, &Me::cboType_Click};
    ComboBox cboVehNo{*this, "cboVehNo", ComboBox::FreeText, &Me::fillGrid};
    Grid grdData{*this, "grdData", &Me::cmdEdit_Click};
    TextBox txtID{*this, "txtID"};   ///< the group's code
    TextBox txtCon{*this, "txtCon"}; ///< the member's code
    TextBox txtReg{*this, "txtReg"};
    TextBox txtName{*this, "txtName"};
    MasterButtons master{*this,
                         &Me::cmdAdd_Click,
                         &Me::cmdEdit_Click,
                         &Me::cmdDel_Click,
                         &Me::cmdRefresh_Click,
                         &Me::cmdCancel_Click,
                         &Me::OKButton_Click};

    QString sCode;     ///< of the group under edit
    qlonglong lID = 0; ///< SNO of the member under edit

private:
    void cboType_Click();
    void fillGroups();
    void fillGrid();
    void cmdAdd_Click();
    void cmdEdit_Click();
    void cmdDel_Click();
    void cmdRefresh_Click();
    void cmdCancel_Click();
    void OKButton_Click();
    qlonglong currentRowID();
    void editGroup();
    void editMember();
    void openEntry(bool entering); ///< fields and buttons: an entry, or the list alone

    Words m_words;
    bool bEditing = false;
    bool m_showsGroups = false; ///< what the list holds
};

} // namespace orvane
