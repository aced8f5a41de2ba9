#pragma once

#include "data/rows/Connection.h"
#include "patients/PatientLines.h"

namespace orvane {

/// Finds patients by any part of what is known of them: what was read into memory of all of them, and what the indexes
/// of the database say now, so that one who has been registered since is found by the head of a number or of his name.
class PatientDirectory {
public:
    /// A patient who answers a search.
    struct Found {
        PatientMatch match;
        QString number; ///< in capitals
    };
    static constexpr int mostFound = 50;

    /// Reads the next patients, a page of them, in the order of their numbers. False: there are no more for now. Who is
    /// registered later is read by a later call, if his number follows the last one. Raises DataError.
    bool readOn(Connection& connection);
    bool isWhole() const { return m_whole; } ///< every patient was read
    std::size_t bytes() const { return m_lines.bytes(); }

    /// The best first, at most mostFound. Raises DataError.
    std::vector<Found> find(Connection& connection, const QString& text) const;

private:
    PatientLines m_lines;
    QString m_last; ///< the number that was read last
    bool m_whole = false;
};

} // namespace orvane
