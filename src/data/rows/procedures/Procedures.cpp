#include "data/rows/procedures/Procedures.h"

#include "data/rows/procedures/Bodies.h"

namespace orvane {

const ProcedureEntry* findProcedure(const QString& name) {
    static const QList<ProcedureEntry> entries = {
        {"SpAudiTrail",
         {"@userName", "@userAction", "@ActionDate", "@ActionTime", "@TranCode", "@Remarks", "@Src", "@saveToken"},
         storeAuditRow},
        {"getIDNo", {"DestName"}, nextNumber},
        {"updateRevType", {"@ConsultID"}, fillRevenueTypes},
        {"SpRptHeaderCursor", {"@coyCode", "@BatchNo"}, fillHeadings},
        {"getTranID", {}, nextTranID},
        {"AccountOpenPeriods_Insert", {}, openNextPeriod},
        {"InsertTranxaction",
         {"@TranID", "@AccountNo", "@TranNo", "@TranDate", "@CostCenterID", "@Amount", "@Description", "@TranCat",
          "@EntryDate", "@Period", "@userName"},
         storeLeg},
        {"getTrialBalance", {}, ledgerDays},
        {"BillingDetailsForRevRpt", {"@Date1", "@Date2", "@ClientCat"}, billedLines},
        {"getBilling", {"@billNo"}, billOnPaper},
    };
    for (const ProcedureEntry& entry : entries)
        if (name.compare(QLatin1StringView(entry.name), Qt::CaseInsensitive) == 0)
            return &entry;
    return nullptr;
}

} // namespace orvane
