#pragma once

#include "session/Screen.h"

namespace orvane {

/// A splash that fills its bar and goes.
class frmStart : public Screen {
public:
    explicit frmStart(Program& owner);

    Layout layout() const override;

private:
    void Timer1_Timer();

    Label lblName{*this, "lblName", "Billing : Orvane"};
    ProgressBar ProgressBar1{*this, "ProgressBar1"};
    Timer Timer1{*this, "Timer1", 50, true, &frmStart::Timer1_Timer};
};

} // namespace orvane
