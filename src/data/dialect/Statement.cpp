#include "data/dialect/Statement.h"

#include "data/DataError.h"
#include "data/dialect/Lexer.h"
#include "data/dialect/Rewrite.h"
#include "data/dialect/Skeleton.h"
#include "data/dialect/Translator.h"

#include <QCache>

namespace orvane {

namespace {

constexpr int keptStatements = 1000;

/// What is made of all statements of one skeleton.
struct Kind {
    Template text;
    std::shared_ptr<const RowFacts> facts;
};

using Kinds = QCache<std::pair<int, QString>, std::shared_ptr<const Kind>>;

QMutex& kindsMutex() {
    static QMutex mutex;
    return mutex;
}

Kinds& kinds() {
    static Kinds kept(keptStatements);
    return kept;
}

/// What the pattern of a "like" is decides how it is searched, so such a statement is translated with its values.
bool looksAtValues(const QString& tsql) {
    const Tokens tokens = tokenize(tsql);
    return std::any_of(tokens.begin(), tokens.end(), [](const Token& token) { return token.is("like"); });
}

/// Null where the statement itself must be translated, be it only for the fault to name it.
std::shared_ptr<const Kind> makeKind(const QString& skeleton, Engine engine) {
    try {
        if (looksAtValues(skeleton))
            return {};
        std::optional<Template> text = Template::of(translate(skeleton, engine), engine == Engine::SqlServer);
        return text ? std::make_shared<const Kind>(Kind{std::move(*text), std::make_shared<RowFacts>(skeleton)})
                    : nullptr;
    } catch (const DataError&) {
        return {};
    }
}

std::shared_ptr<const Kind> kindOf(const QString& skeleton, Engine engine) {
    const std::pair key(int(engine), skeleton);
    {
        const QMutexLocker lock(&kindsMutex());
        if (const std::shared_ptr<const Kind>* known = kinds().object(key))
            return *known;
    }
    const std::shared_ptr<const Kind> kind = makeKind(skeleton, engine);
    if (!kind)
        return {};
    const QMutexLocker lock(&kindsMutex());
    kinds().insert(key, new std::shared_ptr<const Kind>(kind));
    return kind;
}

} // namespace

RowFacts::RowFacts(const QString& tsql) {
    const Tokens tokens = tokenize(tsql);
    m_sources = sourcesOf(tokens);
    m_isSelect = !tokens.isEmpty() && tokens[0].is("select");
    for (qsizetype i = 0; i < tokens.size() && !tokens[i].is("from"); ++i)
        if (tokens[i].isName())
            m_words.insert(tokens[i].text.toLower(), tokens[i].text);
}

QStringList RowFacts::heads(const QStringList& names) const {
    {
        const QMutexLocker lock(&m_mutex);
        if (names == m_names)
            return m_heads;
    }
    const QStringList heads = properHeads(names);
    const QMutexLocker lock(&m_mutex);
    m_names = names;
    m_heads = heads;
    return heads;
}

QStringList RowFacts::properHeads(const QStringList& names) const {
    QStringList heads;
    for (const QString& name : names) {
        const auto word = m_words.constFind(name.toLower());
        heads += word != m_words.constEnd() ? *word : Catalog::instance().properCase(name, m_sources);
    }
    return heads;
}

const Table* RowFacts::writableTable(const QString& database) const {
    return m_isSelect && m_sources.size() == 1 ? Catalog::instance().table(m_sources.first(), database) : nullptr;
}

Statement statementOf(const QString& tsql, Engine engine) {
    const std::optional<Skeleton> skeleton = skeletonOf(tsql);
    const std::shared_ptr<const Kind> kind = skeleton ? kindOf(skeleton->text, engine) : nullptr;
    if (!kind)
        return {translate(tsql, engine), std::make_shared<RowFacts>(tsql), {}, {}};
    Statement statement{kind->text.filled(skeleton->values), kind->facts, {}, {}};
    if (engine == Engine::Sqlite && !kind->text.marked().isNull()) {
        statement.marked = kind->text.marked();
        statement.bound = kind->text.bound(skeleton->values);
    }
    return statement;
}

} // namespace orvane
