#include "accounts/frmRevAcctSelect.h"

namespace orvane {

Layout frmRevAcctSelect::layout() const {
    using namespace orvane::layout;
    return column({cell(lblHead), growing(cell(LstAcct, 80)), buttons({}, {&CancelButton, &OKButton})});
}

void frmRevAcctSelect::Form_Load() {
    session.sAcctSelected.clear();
    Connection connection = program.openBilling();
    Recordset account(
        connection, isForClient()
                        ? Sql("select SNo,AccountNo,AccountName from ChartOfAccounts where groupID='1230000' order by "
                              "AccountName ")
                        : Sql("select SNo,AccountNo,AccountName from ChartOfAccounts order by AccountName "));
    for (; !account.eof(); account.moveNext())
        LstAcct.addItem(account.text("AccountName") + " [" + account.text("AccountNo") + "]",
                        account.text("AccountNo"));
}

void frmRevAcctSelect::OKButton_Click() {
    QStringList ticked;
    for (int i = 0; i < LstAcct.count(); ++i)
        if (LstAcct.isSelected(i))
            ticked << LstAcct.itemData(i).toString();
    const QString onlyOne = isForClient() ? "Only one Account at a time" : "Select one Account at a time";
    if (!passes({{ticked.size() != 1, onlyOne, &LstAcct}}))
        return;
    session.sAcctSelected = ticked.first();
    unload();
}

} // namespace orvane
