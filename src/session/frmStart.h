#pragma once

#include "session/Program.h"

namespace orvane {

/// A splash that fills its bar and goes.
class frmStart : public Screen {
public:
    explicit frmStart(Program& owner);

    Layout layout() const override;

private:
    void Timer1_Timer();

    Label lblName{*this, QStringLiteral("lblName"), QStringLiteral("Billing : Orvane")};
    ProgressBar ProgressBar1{*this, QStringLiteral("ProgressBar1")};
    Timer Timer1{*this, QStringLiteral("Timer1"), 50, true};
};

} // namespace orvane
