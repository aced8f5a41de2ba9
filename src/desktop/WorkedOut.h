#pragma once

#include <QString>
#include <optional>

namespace orvane {

/// The result of a sum typed into a field of numbers, such as "3*450" or "12,500+700", rounded to two decimals. Nothing
/// for a plain number and for what cannot be worked out.
std::optional<double> workedOut(const QString& text);

} // namespace orvane
