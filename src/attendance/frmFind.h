#pragma once

#include "session/Screen.h"

namespace orvane {

/// "Find a Record ": searches the patient file by the head of a surname, as one types, or by a file number.
class frmFind : public Screen {
public:
    explicit frmFind(Program& program);

    TextBox txtName{*this, "txtName"};
    Button cmdName{*this, "cmdName", "Search by &Surname"};
    TextBox TxtID{*this, "TxtID"};
    Button cmdID{*this, "cmdID", "&OK"};
    Grid grdData{*this, "grdData"};
    Button cmdRestore{*this, "cmdRestore", "&Restore"};
    Button cmdClose{*this, "cmdClose", "&Close"};

    Layout layout() const override;
    Button* defaultButton() override { return &cmdID; }
    Button* cancelButton() override { return &cmdClose; }

private:
    void searchByName();
    void cmdID_Click();
    void cmdRestore_Click();
};

} // namespace orvane
