#pragma once

#include "session/Screen.h"

namespace orvane {

/// Asks how a private bill is prepared. Neither choice leads anywhere; the menu only opens it.
class frmExistBill : public Screen {
public:
    explicit frmExistBill(Program& owner);

    Layout layout() const override;
    Button* cancelButton() override { return &CancelButton; }

private:
    OptionButton OptNew{*this, "OptNew", "Prepare a new Bill"};
    OptionButton OptExist{*this, "OptExist", "Add to Existing Bill"};
    Button CancelButton{*this, "CancelButton", "Close", &frmExistBill::unload};
};

} // namespace orvane
