#pragma once

#include "support/SampleForm.h"

namespace orvane {

/// The sample form with each of its controls in the layout.
class ShownForm : public SampleForm {
public:
    explicit ShownForm(Ui& ui, const QString& name = QStringLiteral("frmShown")) : SampleForm(ui, name) {
        txtAmt0.numeric();
        cmdExtra.onClick = [this] { note("cmdExtra Click"); };
        tmrFast.onTimer = [this] { note("tmrFast Timer"); };
        tmrTick.setEnabled(false);
    }

    Layout layout() const override {
        using namespace orvane::layout;
        return column(
            {row({field(QStringLiteral("Name"), txtName, 20), field(QStringLiteral("Code"), txtCode, 8),
                  field(QStringLiteral("Color"), cboColor, 12), cell(chkCard), stretch()}),
             field(QStringLiteral("Town"), cboTown),
             facts({{QStringLiteral("Bill No"), &lblTitle}, {QStringLiteral("Fixed"), &txtLocked}}),
             row({field(QStringLiteral("Digits"), txtDigits, 10), field(QStringLiteral("Date"), dtDate)}),
             growing(pages()),
             row({cell(radOne), cell(radTwo),
                  group(QStringLiteral("Payment"), {row({cell(radCash), cell(radBank)})}, &fraInner), cell(bar)}),
             cell(status), buttons({&cmdExtra}, {&cmdClose, &cmdSave})});
    }

    Timer tmrFast{*this, QStringLiteral("tmrFast"), 1, false};
    Button cmdExtra{*this, QStringLiteral("cmdExtra"), QStringLiteral("Save Copy")};

private:
    Layout pages() const {
        using namespace orvane::layout;
        return tabs(strip,
                    {layout::page(QStringLiteral("Bill"),
                                  {row({growing(cell(grdRows)), card({field(QStringLiteral("Amount"), txtAmt0),
                                                                      field(QStringLiteral("Second"), txtAmt1)})})}),
                     layout::page(QStringLiteral("More"), {row({cell(grdEntry), cell(lstItems), cell(tree)}),
                                                           field(QStringLiteral("Note"), txtNote)})});
    }
};

} // namespace orvane
