#include "data/Heads.h"

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

const Table* writableTable(const Tokens& statement, const QString& database) {
    const QStringList sources = sourcesOf(statement);
    const bool single = !statement.isEmpty() && statement[0].is("select") && sources.size() == 1;
    return single ? Catalog::instance().table(sources.first(), database) : nullptr;
}

} // namespace orvane
