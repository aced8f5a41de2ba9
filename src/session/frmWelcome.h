#pragma once

#include "session/Program.h"

namespace orvane {

/// The welcome of the entry with a password.
class frmWelcome : public Screen {
public:
    explicit frmWelcome(Program& owner);

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return &cmdEnter; }
    Button* cancelButton() override { return &cmdExit; }

private:
    void Timer1_Timer();

    Label Label1{*this, QStringLiteral("Label1"), QStringLiteral("Welcome")};
    Label Label2{*this, QStringLiteral("Label2"), QStringLiteral("Billing : Orvane")};
    Label Label3{*this, QStringLiteral("Label3"), QStringLiteral("Bills, receipts and accounts of the hospital")};
    Label Label4{*this, QStringLiteral("Label4"), QStringLiteral("Today")};
    Label Label5{*this, QStringLiteral("Label5")};
    Label Label6{*this, QStringLiteral("Label6")};
    Button cmdEnter{*this, QStringLiteral("cmdEnter"), QStringLiteral("&Enter")};
    Button cmdExit{*this, QStringLiteral("cmdExit"), QStringLiteral("E&xit")};
    Timer Timer1{*this, QStringLiteral("Timer1"), 1000, true};
};

} // namespace orvane
