#include "desktop/ReportForm.h"

namespace orvane {

ReportForm::ReportForm(Ui& ui, const QString& file, const QString& title, const Recordset& rows)
    : Form(ui, file, title) {
    grdRows.load(rows);
    lblCount.setText(grdRows.rowCount() == 1 ? QStringLiteral("1 row")
                                             : QStringLiteral("%L1 rows").arg(grdRows.rowCount()));
    cmdPrint.onClick = [this] { this->ui().printForm(*this); };
    cmdClose.onClick = [this] { unload(); };
}

Layout ReportForm::layout() const {
    using namespace orvane::layout;
    return column({growing(cell(grdRows)), buttons({&lblCount}, {&cmdPrint, &cmdClose})});
}

} // namespace orvane
