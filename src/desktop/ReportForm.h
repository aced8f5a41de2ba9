#pragma once

#include "forms/Form.h"

namespace orvane {

/// The list of a report's rows in a window of its own, and below it what is said of their sums.
class ReportForm : public Form {
public:
    ReportForm(Ui& ui, const QString& file, const QString& title, const Recordset& rows, const QString& sums);
    const Grid& rows() const { return grdRows; }
    QString sums() const; ///< of all rows, and what was given beside the list
    Layout layout() const override;
    Button* cancelButton() override { return &cmdClose; }

private:
    Grid grdRows{*this, "grdRows"};
    Label lblSums{*this, "lblSums"};
    Label lblCount{*this, "lblCount"};
    Button cmdPrint{*this, "cmdPrint", "&Print"};
    Button cmdClose{*this, "cmdClose", "&Close"};
};

} // namespace orvane
