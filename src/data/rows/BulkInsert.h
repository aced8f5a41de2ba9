#pragma once

#include "data/dialect/Catalog.h"
#include "data/rows/Connection.h"

#include <QVariant>
#include <QVector>

namespace orvane {

/// A row as names of columns and values.
using RowValues = QVector<std::pair<const char*, QVariant>>;

/// Adds many rows to one table of a database, hundreds of them in a statement, in the transaction that is open on the
/// connection. For loads of whole databases: nothing is read back, and a row is sent when its batch is full.
class BulkInsert {
public:
    BulkInsert(Connection& connection, const QString& table);
    ~BulkInsert(); ///< asserts that the last batch was sent, unless a fault is on its way
    BulkInsert(const BulkInsert&) = delete;
    BulkInsert& operator=(const BulkInsert&) = delete;

    /// The first row names the columns, by literals; every further one gives the same ones in the same order
    /// (asserted). Values obey the rules of Recordset::set. Raises DataError.
    void add(const RowValues& row);
    /// Sends what waits. Raises DataError.
    void flush();

private:
    void begin(const RowValues& first);

    Connection& m_connection;
    const Table* m_table;
    QVector<const char*> m_heads; ///< the names as the first row gave them
    QVector<Column> m_columns;
    QString m_head; ///< the statement up to its rows
    QString m_text; ///< the head and the rows that wait
    int m_waiting = 0;
};

} // namespace orvane
