#pragma once

#include "session/Screen.h"

namespace orvane {

/// Shows what the doctors wrote about the visit in session.gConsultID.
class frmTreatment : public Screen {
public:
    explicit frmTreatment(Program& owner);

    Layout layout() const override;
    void Form_Load() override;
    Button* cancelButton() override { return &CancelButton; }

private:
    Label Label5{*this, "Label5"};
    TextBox txtPresc{*this, "txtPresc"};
    Button CancelButton{*this, "CancelButton", "Close", &frmTreatment::unload};
};

} // namespace orvane
