#pragma once

#include "forms/Form.h"

namespace orvane {

/// The list of a report's rows in a window of its own.
class ReportForm : public Form {
public:
    ReportForm(Ui& ui, const QString& file, const QString& title, const Recordset& rows);
    const Grid& rows() const { return grdRows; }
    Layout layout() const override;
    Button* cancelButton() override { return &cmdClose; }

private:
    Grid grdRows{*this, "grdRows"};
    Label lblCount{*this, "lblCount"};
    Button cmdPrint{*this, "cmdPrint", "&Print"};
    Button cmdClose{*this, "cmdClose", "&Close"};
};

} // namespace orvane
