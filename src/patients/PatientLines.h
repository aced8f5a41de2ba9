#pragma once

#include "patients/PatientMatch.h"

namespace orvane {

/// What is searched of all patients as one block of text, some 50 bytes each: no index serves any part of a name, and
/// going through the block takes less than asking a server once.
class PatientLines {
public:
    void add(std::string_view line); ///< of patientLine
    std::size_t bytes() const { return m_text.size(); }
    /// Lines that match, up to `limit` whose words begin with those of the query and up to `limit` others. They live
    /// until the next `add`.
    std::vector<std::string_view> find(const PatientQuery& query, std::size_t limit) const;

private:
    void addShortNumbers(const PatientQuery& query, std::vector<std::string_view>& found) const;
    std::string_view nextLine(std::string_view word, std::size_t& at) const;

    std::string m_text; ///< a line break behind each line
};

/// Where the word, of at least one character, first stands in the text from `from` on; npos: nowhere.
std::size_t findWord(std::string_view text, std::string_view word, std::size_t from);

} // namespace orvane
