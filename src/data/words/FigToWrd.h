#pragma once

#include <QString>

namespace orvane {

/// Turns an amount of naira into words. Bills and receipts store the result, so its exact words, "Fourty" and
/// "Eightteen" among them, are part of the records. Each option is a small integer that starts at 0.
class figToWrd {
public:
    int letterCase() const { return m_case; } ///< 0 as built, 1 upper case, 2 lower case
    void setLetterCase(int option) { m_case = option; }
    int delimiter() const { return m_delimiter; } ///< between groups: 0 ", ", 1 " ", 2 "-"
    void setDelimiter(int option) { m_delimiter = option; }
    int padding() const { return m_padding; } ///< around the result: 0 none, 1 "*", 2 "***"
    void setPadding(int option) { m_padding = option; }

    /// The words of an amount in naira, its kobo included; "***" above 999,999,999,999.99 and for what is no number. A
    /// negative amount reads like the empty one.
    QString amountToWords(double amount) const;

private:
    int m_case = 0;
    int m_delimiter = 0;
    int m_padding = 0;
};

} // namespace orvane
