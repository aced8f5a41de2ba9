// Numbers that stand for one thing.
#include "proof/CheckTable.h"

namespace orvane {

namespace {

constexpr Check checks[] = {
    {"visit number", "select top 1000 consultID,count(*) as N from hRecords group by consultID having count(*) > 1",
     "%2 visits bear the number %1"},
    {"outlet visit number",
     "select top 1000 consultID,count(*) as N from hRecordsPublic group by consultID having count(*) > 1",
     "%2 outlet visits bear the number %1"},
    {"bill number", "select top 1000 billNo,count(*) as N from Billing group by billNo having count(*) > 1",
     "%2 bills bear the number %1"},
    {"receipt number",
     "select top 1000 ReceiptNo,count(*) as N from Payments where ReceiptNo not like 'SN%' group by ReceiptNo having "
     "count(*) > 1",
     "%2 receipts bear the number %1"},
    {"item billed twice",
     "select top 1000 SNo,count(*) as N from BillingDetails where SNo is not null group by SNo having count(*) > 1",
     "the item %1 is billed %2 times"},
};

} // namespace

std::span<const Check> numberChecks() {
    return checks;
}

} // namespace orvane
