#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <memory>
#include <optional>

namespace orvane {

enum class ColumnKind { Text, Number, Integer, Flag, Date, DateTime, Time };

struct Column {
    QString name;
    ColumnKind kind = ColumnKind::Text;
    int length = 0; ///< characters that a text may have; 0: any number
    bool identity = false;
    bool required = false; ///< declared not null, or part of the primary key
};

struct Table {
    QString name;
    QList<Column> columns;
    QStringList columnNames;
    QStringList key; ///< the primary key's columns

    const Column* column(const QString& columnName) const; ///< null when there is none; without regard to case
};

/// What the schema files say of tables, columns and keys of both databases, read once from the program's resources.
/// Names compare without regard to case.
class Catalog {
public:
    static const Catalog& instance();

    /// The table of that name in "billing", "accounting" or "audit", else in whichever database has it; null when there
    /// is none.
    const Table* table(const QString& name, const QString& database = "billing") const;
    QList<const Table*> tables(const QString& database) const; ///< "billing", "accounting" or "audit", in file order
    QStringList views(const QString& database) const;          ///< in file order
    /// A column name as the schema writes it, for engines that fold names to lower case; unknown names come back as
    /// they are.
    QString properCase(const QString& name) const;
    /// The same within what a statement reads: the spelling of the view or table among `sources` that has the name
    /// comes first.
    QString properCase(const QString& name, const QStringList& sources) const;
    /// The column of that name in the tables among `sources`; where they do not settle it, the column of all tables, if
    /// all tables that have the name agree on its kind. Null when nothing settles it.
    const Column* findColumn(const QString& name, const QStringList& sources) const;
    /// The schema's statements in T-SQL in order of execution: tables, indexes, views, first rows.
    QStringList statements(const QString& database) const;

private:
    Catalog();
    struct Private;
    std::shared_ptr<Private> d;
};

} // namespace orvane
