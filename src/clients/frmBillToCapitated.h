#pragma once

#include "clients/MonthBillsScreen.h"

namespace orvane {

/// Turns fee-for-service bills of a capitated client that wait for the run into capitated ones.
class frmBillToCapitated : public MonthBillsScreen {
public:
    explicit frmBillToCapitated(Program& owner);

    Layout layout() const override;

private:
    Sql companies() const override;
    Sql waitingOf(const QString& code) const override;
    void cmdProcess_Click() override;
};

} // namespace orvane
