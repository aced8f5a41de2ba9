#pragma once

#include "session/Screen.h"

namespace orvane {

/// The welcome of the entry with a password.
class frmWelcome : public Screen {
public:
    explicit frmWelcome(Program& owner);

    Layout layout() const override;
    void Form_Load() override;
    bool fillsScreen() const override { return true; }
    Button* defaultButton() override { return &cmdEnter; }
    Button* cancelButton() override { return &cmdExit; }

private:
    void Timer1_Timer();
    void cmdEnter_Click() { program.open("frmLogin"); }
    void cmdExit_Click() { program.end(); }

    using Me = frmWelcome;
    Label Label1{*this, "Label1", "Welcome"};
    Label Label2{*this, "Label2", "Billing : Orvane"};
    Label Label3{*this, "Label3", "Bills, receipts and accounts of the hospital"};
    Label Label4{*this, "Label4", "Today"};
    Label Label5{*this, "Label5"};
    Label Label6{*this, "Label6"};
    Button cmdEnter{*this, "cmdEnter", "&Enter", &Me::cmdEnter_Click};
    Button cmdExit{*this, "cmdExit", "E&xit", &Me::cmdExit_Click};
    Timer Timer1{*this, "Timer1", 1000, true, &Me::Timer1_Timer};
};

} // namespace orvane
