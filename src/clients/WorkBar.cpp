#include "clients/WorkBar.h"

#include "forms/Form.h"

namespace orvane {

WorkBar::WorkBar(Form& form) : ProgressBar1(form, "ProgressBar1") {
    hide();
}

void WorkBar::show(int percent) {
    if (ProgressBar1.isVisible() && ProgressBar1.value() == percent)
        return;
    ProgressBar1.setVisible(true);
    ProgressBar1.setValue(percent);
    ProgressBar1.form().ui().processEvents();
}

void WorkBar::finish() {
    show(100);
    hide();
}

} // namespace orvane
