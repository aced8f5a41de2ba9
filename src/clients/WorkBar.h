#pragma once

#include "forms/Controls.h"

namespace orvane {

/// The bar of a batch: on the screen only while it works, and the screen is painted as it moves.
class WorkBar {
public:
    explicit WorkBar(Form& form);

    ProgressBar ProgressBar1;

    void show(int percent); ///< safe inside a transaction
    void hide() { ProgressBar1.setVisible(false); }
    void finish(); ///< full, and gone
};

} // namespace orvane
