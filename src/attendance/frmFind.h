#pragma once

#include "session/Screen.h"

namespace orvane {

/// "Find a Record ": searches the patient file by the head of a surname, as one types, or by a file number.
class frmFind : public Screen {
public:
    explicit frmFind(Program& owner);

    Layout layout() const override;
    Button* defaultButton() override { return &cmdID; }
    Button* cancelButton() override { return &cmdClose; }

protected:
    PatientTaker patientTaker() override;

private:
    void searchByName();
    void cmdID_Click();
    void cmdRestore_Click();
    void grdData_DblClick();

    using Me = frmFind;
    TextBox txtName{*this, "txtName", &Me::searchByName};
    Button cmdName{*this, "cmdName", "Search by &Surname", &Me::searchByName};
    TextBox TxtID{*this, "TxtID"};
    Button cmdID{*this, "cmdID", "&OK", &Me::cmdID_Click};
    Grid grdData{*this, "grdData", &Me::grdData_DblClick};
    Button cmdRestore{*this, "cmdRestore", "&Restore", &Me::cmdRestore_Click};
    Button cmdClose{*this, "cmdClose", "&Close", &Me::unload};
};

} // namespace orvane
