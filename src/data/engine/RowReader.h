#pragma once

#include "data/engine/Physical.h"
#include "data/engine/Rows.h"

#include <optional>

namespace orvane {

/// The rows of a query that are read page by page. Holds its connection until the last row was read: the query stays
/// open there.
class RowReader {
public:
    /// Sends the statement and reads no row yet. Raises DataError.
    RowReader(std::shared_ptr<PhysicalConnection> connection, const SqlParts& tsql);
    ~RowReader();
    RowReader(const RowReader&) = delete;
    RowReader& operator=(const RowReader&) = delete;

    QStringList heads() const;
    bool atEnd() const { return !m_query; }
    /// Appends the values of up to so many rows. Raises DataError, and is at its end, when the query fails half-way.
    /// Asked again after that, it raises the same fault: what was read is never taken for all.
    void read(Values& values, qsizetype rows);

private:
    void readPage(Values& values, qsizetype rows);
    void end() noexcept;

    std::shared_ptr<PhysicalConnection> m_connection; ///< none at the end
    std::optional<QSqlQuery> m_query;                 ///< none at the end
    std::exception_ptr m_fault;                       ///< that ended it half-way
    std::shared_ptr<const RowFacts> m_facts;
    Columns m_columns;
};

} // namespace orvane
