#pragma once

#include "reports/ReportData.h"

#include <functional>

namespace orvane {

/// Where in the report a band stands, for what it shows.
struct BandPlace {
    int row = -1;  ///< whose fields it shows; -1: there is none
    int page = 0;  ///< from 0
    QString pages; ///< how many there are, as it is written
    /// The value of a sum or count.
    std::function<double(const ReportElement&)> sum;
};

/// Puts what the band shows on the page, its upper left corner at x, y (mm from the page's).
void paintBand(Page& page, double x, double y, const ReportBand& band, const ReportTemplate& layout,
               const ReportData& data, const BandPlace& place);

} // namespace orvane
