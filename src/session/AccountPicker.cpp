#include "session/AccountPicker.h"

#include "books/ChartAccount.h"

namespace orvane {

AccountPicker::AccountPicker(Screen& screen, Program& owner)
    : txtAcctNo(screen, "txtAcctNo"), cmdAccts(screen, "cmdAccts", "..."), lblAcct(screen, "lblAcct"), program(owner) {
    txtAcctNo.onChange = [this] { showName(); };
    cmdAccts.onClick = [this] { pick(); };
    cmdAccts.setToolTip("Pick an account of the ledger");
}

void AccountPicker::showName() {
    Connection connection = program.openBilling();
    lblAcct.setText(accountName(connection, accountNo()));
}

void AccountPicker::pick() {
    program.session.sAcctCaller = txtAcctNo.form().name();
    program.openModal("frmRevAcctSelect");
    if (!program.session.sAcctSelected.isEmpty())
        txtAcctNo.setText(program.session.sAcctSelected);
    txtAcctNo.setFocus();
}

void AccountPicker::setEnabled(bool enabled) {
    txtAcctNo.setEnabled(enabled);
    cmdAccts.setEnabled(enabled);
}

Layout AccountPicker::layout() const {
    using namespace orvane::layout;
    return row({field("Account No", txtAcctNo, 14), cell(cmdAccts), cell(lblAcct, 42)});
}

} // namespace orvane
