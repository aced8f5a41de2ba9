#pragma once

#include "support/SampleForm.h"

namespace orvane {

/// The sample form with each of its controls in the layout.
class ShownForm : public SampleForm {
public:
    explicit ShownForm(Ui& ui, const QString& name = "frmShown") : SampleForm(ui, name) {
        txtAmt0.numeric();
        cmdExtra.onClick = [this] { note("cmdExtra Click"); };
        tmrFast.onTimer = [this] { note("tmrFast Timer"); };
        tmrTick.setEnabled(false);
    }

    Layout layout() const override {
        using namespace orvane::layout;
        return column({row({field("Name", txtName, 20), field("Code", txtCode, 8), field("Color", cboColor, 12),
                            cell(chkCard), stretch()}),
                       field("Town", cboTown), facts({{"Bill No", &lblTitle}, {"Fixed", &txtLocked}}),
                       row({field("Digits", txtDigits, 10), field("Date", dtDate)}), growing(pages()),
                       row({cell(radOne), cell(radTwo),
                            group("Payment", {row({cell(radCash), cell(radBank)})}, &fraInner), cell(bar)}),
                       cell(status), buttons({&cmdExtra}, {&cmdClose, &cmdSave})});
    }

    Timer tmrFast{*this, "tmrFast", 1, false};
    Button cmdExtra{*this, "cmdExtra", "Save Copy"};

private:
    Layout pages() const {
        using namespace orvane::layout;
        return tabs(
            strip,
            {layout::page("Bill",
                          {row({growing(cell(grdRows)), card({field("Amount", txtAmt0), field("Second", txtAmt1)})})}),
             layout::page("More", {row({cell(grdEntry), cell(lstItems), cell(tree)}), field("Note", txtNote)})});
    }
};

} // namespace orvane
