#pragma once

#include "books/BillInHand.h"
#include "clients/TickList.h"
#include "clients/WorkBar.h"
#include "forms/RangePicker.h"
#include "session/Screen.h"

namespace orvane {

/// A screen on which bills that wait for the month's run are found by two dates and a client, and ticked.
class MonthBillsScreen : public Screen {
public:
    void Form_Load() override;
    void afterFault() override { bar.hide(); }
    Button* defaultButton() override { return &cmdProcess; }
    Button* cancelButton() override { return &CancelButton; }

protected:
    struct Words {
        QString range;   ///< label of the first date
        QString process; ///< caption of the button that saves
    };
    MonthBillsScreen(Program& owner, const QString& name, const QString& caption, const Words& words);

    virtual Sql companies() const = 0;                    ///< CoyName, retainCode
    virtual Sql waitingOf(const QString& code) const = 0; ///< fullName, billno, AttdDate of a client's bills
    virtual void listAll() {}                             ///< an entry for the bills of all clients, where there is one
    virtual void cmdProcess_Click() = 0;

    void cmdList_Click();
    void cboVehNo_Click();
    void cmdAll_Click();
    void cmdDeSelect_Click();
    void cmdRefresh_Click() { cboVehNo_Click(); }
    void fillBills(const Sql& sql);
    /// The checks that every save begins with; `none` is said when nothing is ticked.
    bool isTicked(const QString& none);
    QVector<ListedBill> tickedBills() const;
    bool showStart();         ///< on the bar
    void showDone(int bills); ///< on the bar
    void showRefused(Refusal refusal);
    void showSaved(const QString& words);

    /// Finding, list and ticks; below it `below`, the bar and the buttons.
    Layout layoutOf(const QString& heading, std::initializer_list<Layout> below) const;

    using Me = MonthBillsScreen;
    QString batchNo; ///< sBatchNo: of the second date when the clients were listed; this screen's alone
    RangePicker range;
    Label Label1{*this, "Label1", "Bill List"};
    TickList bills{*this, &Me::cmdAll_Click, &Me::cmdDeSelect_Click};
    WorkBar bar{*this};
    Button cmdRefresh{*this, "cmdRefresh", "&Refresh", &Me::cmdRefresh_Click};
    Button CancelButton{*this, "CancelButton", "&Close", &Me::unload};
    Button cmdProcess;
};

} // namespace orvane
