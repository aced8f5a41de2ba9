#pragma once

#include "session/Screen.h"

namespace orvane {

/// The account of the ledger that a record is tied to: its number, the button that picks one, and its name, empty for
/// a number that is not in the chart of accounts.
class AccountPicker {
public:
    AccountPicker(Screen& screen, Program& owner);

    TextBox txtAcctNo;
    Button cmdAccts;
    Label lblAcct;

    QString accountNo() const { return txtAcctNo.text().trimmed(); }
    void setEnabled(bool enabled);
    Layout layout() const;

private:
    void showName();
    void pick();

    Program& program;
};

} // namespace orvane
