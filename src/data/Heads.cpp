#include "data/Heads.h"

#include "data/Catalog.h"
#include "data/Rewrite.h"

#include <QHash>

namespace orvane {

QStringList properHeads(const QStringList& names, const Tokens& statement, const QStringList& sources) {
    QHash<QString, QString> words;
    for (qsizetype i = 0; i < statement.size() && !statement[i].is("from"); ++i) {
        if (statement[i].isName()) {
            words.insert(statement[i].text.toLower(), statement[i].text);
        }
    }
    QStringList heads;
    for (const QString& name : names) {
        const auto word = words.constFind(name.toLower());
        heads += word != words.constEnd() ? *word : Catalog::instance().properCase(name, sources);
    }
    return heads;
}

QString writableTable(const Tokens& statement) {
    const QStringList sources = sourcesOf(statement);
    if (statement.isEmpty() || !statement[0].is("select") || sources.size() != 1) {
        return {};
    }
    const Table* table = Catalog::instance().table(sources.first());
    return table ? table->name : QString();
}

} // namespace orvane
