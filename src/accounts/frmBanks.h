#pragma once

#include "accounts/GroupedList.h"
#include "books/Bank.h"

namespace orvane {

/// "Banks": the banks and their branches.
class frmBanks : public GroupedList {
public:
    explicit frmBanks(Program& owner);

protected:
    Sql groupNames() const override { return Sql("select distinct groupCode,groupName from groupBank "); }
    Sql groups() const override { return Sql("select GroupCode,GroupName as Parent from GroupBank"); }
    Sql members() const override;
    Sql ownRow(const QString& code) const override;
    bool isComplete() override;
    Given<Saved> addEntry(Books& books) override;
    void changeEntry(Books& books) override;

private:
    BankBranch entered() const;
};

} // namespace orvane
