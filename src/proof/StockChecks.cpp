// The retail store, and what was dispensed.
#include "proof/CheckTable.h"

namespace orvane {

namespace {

constexpr Check checks[] = {
    {"stock entry without item",
     "select top 1000 s.EntryID,s.ItemID,s.Qty from StockEntryRetail s "
     "where not exists (select i.ItemID from StockItemsRetail i where i.ItemID = s.ItemID)",
     "entry %1: %3 of the item %2 came in, which the store does not have"},
    {"quantity of a stock entry",
     "select top 1000 s.EntryID,s.ItemID,s.Qty from StockEntryRetail s where isnull(s.Qty, -1) < 0",
     "entry %1 of the item %2: its quantity is %3, less than nothing or not stated"},
    // The ward keeps lines of its own on the chart.
    {"injection in part",
     "select top 1000 j.SNo,j.consultID,j.injname from hInjAndDressing j "
     "where not exists (select d.SNo from hConsultingDetails d where d.consultID = j.consultID and d.drgName = "
     "j.injname) or not exists (select m.SNo from hMedChartMonitor m where m.consultID = j.consultID and m.drgName = "
     "j.injname)",
     "visit %2: the injection or dressing %3 stands in the injection book, but not among what was dispensed and on the "
     "medication chart"},
};

// What an item began with, and what other programs gave out, is written nowhere, so entries alone do not make a stock.
constexpr Check notices[] = {
    {"stock below nothing",
     "select top 1000 s.ItemID,s.UnitsInStock from StockItemsRetail s where s.UnitsInStock < 0 order by s.ItemID",
     "item %1: %2 in stock; an entry was taken back of which some is gone, or more was given out than there was"},
};

} // namespace

std::span<const Check> stockChecks() {
    return checks;
}

std::span<const Check> stockNotices() {
    return notices;
}

} // namespace orvane
