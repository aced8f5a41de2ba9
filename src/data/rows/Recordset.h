#pragma once

#include "data/rows/Connection.h"

#include <QDate>
#include <QStringList>
#include <QVariant>

namespace orvane {

/// The rows of one statement, read whole when it is opened, or page by page. Stands on the first row.
/// Column names compare without regard to case; an absent name is a DataError.
/// A recordset on "select ... from T" of one table can be written: addNew/set/update adds a row to T, set/update on a
/// row that was read changes it. An update names the key and the old values of the columns that it changes; when no row
/// is touched it raises "Row cannot be located for updating. Some values may have been changed since it was last read."
class Recordset {
public:
    Recordset(Connection& connection, const Sql& sql);
    Recordset(Connection& connection, const SqlParts& tsql); ///< for the data layer itself
    Recordset();                                             ///< no columns, no rows
    ~Recordset();
    Recordset(Recordset&&) noexcept;
    Recordset& operator=(Recordset&&) noexcept;
    Recordset(const Recordset&); ///< shares the rows read; a copy is for reading
    Recordset& operator=(const Recordset&);
    /// The same rows for reading, with a position of its own: who shows them does not move who walks through them.
    Recordset detached() const;
    /// For a list that may be long: reads no row yet, and reads on as rows are asked for. `rowsRead` and `readMore` ask
    /// for no others; `count`, and `find` without a hit, for all of them. Holds the connection until the last row was
    /// read. Cannot be written; a fault of the engine may come from any call that reads on. It comes again whenever
    /// rows behind it are asked for; only `readMore` tells it once.
    static Recordset paged(Connection connection, const Sql& sql);
    int rowsRead() const; ///< the rows that are here
    bool isWhole() const; ///< all are here
    void readMore(int rows) const;
    bool has(int row) const;

    bool eof() const; ///< past the last row, or there is none
    void moveFirst();
    void moveNext();
    int count() const;
    int row() const;
    void moveTo(int row);
    /// Moves to the first row from here whose column equals the value (text: without regard to case); false and eof
    /// when none does.
    bool find(const QString& column, const QString& value);

    QStringList columns() const; ///< names as the statement and the schema write them
    QVariant value(const QString& column) const;
    QVariant value(int column) const;
    QString text(const QString& column) const; ///< null as ""
    QString text(int column) const;
    double number(const QString& column) const;     ///< null as 0; a text that is no number is a DataError
    qlonglong integer(const QString& column) const; ///< null as 0
    QDate date(const QString& column) const;        ///< null as the empty date; the date part of a date-time
    QDateTime dateTime(const QString& column) const;
    bool isNull(const QString& column) const;

    void addNew();
    /// Null variants, empty QDate and empty QDateTime become null. NaN, infinities, numbers from 1e13 on (either sign),
    /// U+0000, lone surrogates and a text for a number column that is no number raise DataError naming the column.
    void set(const QString& column, const QVariant& value);
    void update();

private:
    struct Private;
    int columnIndex(const QString& column) const;
    std::shared_ptr<Private> d;
};

} // namespace orvane
