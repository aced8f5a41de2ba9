#pragma once

#include "data/Engine.h"
#include "data/dialect/Catalog.h"
#include "data/dialect/SqlParts.h"

#include <QMutex>
#include <QString>
#include <QStringList>
#include <QVariantList>
#include <memory>

namespace orvane {

/// What a statement's text says of its rows, the same for all values in it.
class RowFacts {
public:
    /// Raises DataError for a statement that ends inside quotes, brackets or a comment.
    explicit RowFacts(const QString& tsql);

    /// The names of a result's columns as the select list writes them, then as its views and tables do.
    QStringList heads(const QStringList& names) const;
    /// The one table of a "select ... from T ..." on that database whose rows can be written; null for anything else.
    const Table* writableTable(const QString& database) const;

private:
    QStringList properHeads(const QStringList& names) const;

    QStringList m_sources;
    QHash<QString, QString> m_words; ///< names in front of "from", by their lower case
    bool m_isSelect = false;
    mutable QMutex m_mutex;
    mutable QStringList m_names, m_heads; ///< of the last result: the next one has mostly the same columns
};

/// A T-SQL statement in the words of an engine.
struct Statement {
    QString text;
    std::shared_ptr<const RowFacts> facts;
    /// On SQLite, for a query that can be compiled once for all values: its text with marks ? and what is bound to
    /// them.
    QString marked;
    QVariantList bound;
};

/// The same as translate() gives of its text. Statements that differ only in their values are translated once, and what
/// was made of them is kept, some hundreds of them. For all threads. Raises DataError as translate() does.
Statement statementOf(const SqlParts& tsql, Engine engine);

/// Whether SQLite stores the text as it stands when it is bound: it takes U+FEFF and U+FFFE at the start for the byte
/// order, drops them, and swaps the bytes of all that follows the latter.
bool isBoundAsItStands(QStringView text);

} // namespace orvane
