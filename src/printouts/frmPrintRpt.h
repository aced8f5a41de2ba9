#pragma once

#include "printouts/ReportScreen.h"

namespace orvane {

/// "Debt Information": a viewer that another screen fills, with the debts or, in session.sPrintRptMode "CLAIMS", with
/// claims; session.sPrintRptSQL gives the rows.
class frmPrintRpt : public ReportScreen {
public:
    explicit frmPrintRpt(Program& program);

    Layout layout() const override;
    void Form_Activate() override;
    Button* cancelButton() override { return &CancelButton; }

private:
    Label Label1{*this, "Label1", "Patients' Debt Information"};
    Button CancelButton{*this, "CancelButton", "&Close", &frmPrintRpt::unload};
};

} // namespace orvane
