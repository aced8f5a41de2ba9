#include "accounts/frmRevHeaders.h"

namespace orvane {

Layout frmRevHeaders::layout() const {
    using namespace orvane::layout;
    return column({cell(lblHead), growing(cell(LstRev, 40)), buttons({}, {&CancelButton, &OKButton})});
}

void frmRevHeaders::Form_Load() {
    session.sRevHeads.clear();
    Connection connection = program.openBilling();
    Recordset type(connection, Sql("select SNo,Revtype from hRevenuetype where Active='YES'  order by Revtype "));
    for (; !type.eof(); type.moveNext())
        LstRev.addItem(type.text("Revtype"));
}

void frmRevHeaders::OKButton_Click() {
    QStringList ticked;
    for (int i = 0; i < LstRev.count(); ++i)
        if (LstRev.isSelected(i))
            ticked << LstRev.item(i);
    if (!passes({{ticked.isEmpty(), lblHead.text(), &LstRev}}))
        return;
    session.sRevHeads = ticked.join(", ");
    unload();
    picked();
}

} // namespace orvane
