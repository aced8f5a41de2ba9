#pragma once

#include "printouts/ReportScreen.h"

namespace orvane {

/// A viewer of the revenue reports that the ledger's screens fill: session.sRevRptMode says which one,
/// session.sRevRptSQL gives the rows.
class frmRevPrintRpt : public ReportScreen {
public:
    explicit frmRevPrintRpt(Program& program);

    Layout layout() const override;
    void Form_Activate() override;
    Button* cancelButton() override { return &CancelButton; }

private:
    QString fileFor(const Recordset& rows) const;

    Button CancelButton{*this, "CancelButton", "&Close", &frmRevPrintRpt::unload};
};

} // namespace orvane
