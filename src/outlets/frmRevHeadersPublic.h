#pragma once

#include "accounts/frmRevHeaders.h"

namespace orvane {

/// "Revenue Headers" of the service outlets: what is picked goes to the collation of an outlet's bill, which it opens.
class frmRevHeadersPublic : public frmRevHeaders {
public:
    explicit frmRevHeadersPublic(Program& owner) : frmRevHeaders(owner, "frmRevHeadersPublic") {}

private:
    void picked() override { program.open("frmBillingPublic"); }
};

} // namespace orvane
