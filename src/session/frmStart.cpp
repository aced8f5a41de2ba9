#include "session/frmStart.h"

namespace orvane {

frmStart::frmStart(Program& owner) : Screen(owner, "frmStart", "Billing : Orvane") {}

Layout frmStart::layout() const {
    return layout::column({layout::stretch(), layout::cell(lblName), layout::cell(ProgressBar1), layout::stretch()});
}

void frmStart::Timer1_Timer() {
    ProgressBar1.setValue(ProgressBar1.value() + 1);
    if (ProgressBar1.value() >= 100)
        unload();
}

} // namespace orvane
