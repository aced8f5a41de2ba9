#pragma once

#include <QString>

namespace orvane {

/// "N5,000.00", and "-N5,000.00" for what goes back.
QString nairaText(double amount);

/// A save as its user reads it afterwards: "Receipt 001OFL0000001 of N5,000.00 saved". `action`, `document` and
/// `amount` (naira): as its row in SavedActions has them. Empty where the save changed nothing and has no document.
QString savedWords(const QString& action, const QString& document, double amount);

/// What a question is about, for below it: whose, which document, how much; a line for each that is not empty.
QString aboutLines(std::initializer_list<QString> lines);

} // namespace orvane
