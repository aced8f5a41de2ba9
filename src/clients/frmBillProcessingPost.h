#pragma once

#include "clients/frmBillProcessing.h"

namespace orvane {

/// "Post Monthly Bill Processed for Clients": the invoices of a month as debts of the clients in the ledger. Its run
/// takes bills without lines too.
class frmBillProcessingPost : public frmBillProcessing {
public:
    explicit frmBillProcessingPost(Program& owner);

protected:
    bool prepareRun() override;
    void cmdPost_Click() override;

private:
    void post();
    void showPosted(int companies);
};

} // namespace orvane
