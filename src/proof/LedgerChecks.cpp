// The ledger of the accounting database.
#include "proof/CheckTable.h"

namespace orvane {

namespace {

constexpr Check checks[] = {
    {"ledger transaction",
     "select top 1000 TranID,sum(Amount) as Total from (select TranID,Amount from Tranxaction union all "
     "select TranID,Amount from TranxactionTemp) t group by TranID having abs(sum(Amount)) > 0.005",
     "the legs of transaction %1 make %2 instead of nothing"},
};

} // namespace

std::span<const Check> ledgerChecks() {
    return checks;
}

} // namespace orvane
