#pragma once

#include <QString>
#include <optional>

namespace orvane {

/// A number in one of the screens' formats: "#,###.00" (zero shows as ".00"), "#,##0.00", "0.00", "#,##;(#,##0)" (the
/// second section serves negatives). Rounded half away from zero, as round2.
QString formatNumber(double value, const QString& format);

/// The same with two decimals and grouping, 0 as "0.00": fees and prices on the screens.
inline QString formatTwoDecimals(double value) {
    return formatNumber(value, "#,##0.00");
}

/// The number that a text states; none for an empty text, for anything else than a plain decimal number, whose commas,
/// if it has any, group its thousands, and for one that no amount can hold: infinite, or not nought but less than half
/// a kobo.
std::optional<double> parseAmount(const QString& text);

/// The rounding of fees and prices before they are stored: two decimals, half away from zero on the decimal text of the
/// number.
double round2(double value);

/// The same to `decimals` places.
double roundTo(double value, int decimals);

} // namespace orvane
