#pragma once

#include "data/rows/Recordset.h"

#include <functional>
#include <utility>

namespace orvane {

/// Rows that a list turns into its entries as they are asked for, so that a long list shows before it was read whole.
class RowFeed {
public:
    RowFeed() = default;
    /// `add`: makes an entry of the row that the recordset stands on.
    RowFeed(const Recordset& rows, std::function<void(const Recordset&)> add)
        : m_rows(rows.detached()), m_add(std::move(add)) {}

    bool hasMore() const { return m_add && (!m_rows.isWhole() || m_rows.row() < m_rows.rowsRead()); }

    /// Adds up to so many entries. A fault of the engine is raised once and ends the list.
    void read(int rows) {
        while (rows > 0 && hasMore() && !m_rows.eof())
            for (; rows > 0 && m_rows.row() < m_rows.rowsRead(); --rows, m_rows.moveNext())
                m_add(m_rows);
        if (!hasMore())
            *this = RowFeed();
    }
    void readAll() { read(std::numeric_limits<int>::max()); }

private:
    Recordset m_rows;
    std::function<void(const Recordset&)> m_add;
};

} // namespace orvane
