#include "data/dialect/Statement.h"

#include "data/DataError.h"
#include "data/dialect/Lexer.h"
#include "data/dialect/Rewrite.h"
#include "data/dialect/StandIn.h"
#include "data/dialect/Template.h"
#include "data/dialect/Translator.h"

#include <QCache>

namespace orvane {

namespace {

constexpr int keptStatements = 1000;

/// What is made of all statements of one form.
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

/// The pattern of a "like" decides how it is searched: one that stands apart must be back in the text.
bool hasPatternApart(const QString& form) {
    const Tokens tokens = tokenize(form);
    for (qsizetype i = 0; i + 1 < tokens.size(); ++i)
        if (tokens[i].is("like") && holdsStandIn(tokens[i + 1].text))
            return true;
    return false;
}

bool areBoundAsTheyStand(const QVariantList& values) {
    return std::all_of(
        values.begin(), values.end(),
        [](const QVariant& value) {
            return value.typeId() != QMetaType::QString || isBoundAsItStands(value.toString());
        });
}

/// Null where the statement itself must be translated, be it only for the fault to name it.
std::shared_ptr<const Kind> makeKind(const QString& form, Engine engine) {
    try {
        if (hasPatternApart(form))
            return {};
        std::optional<Template> text = Template::of(translate(form, engine), engine == Engine::SqlServer);
        return text ? std::make_shared<const Kind>(Kind{std::move(*text), std::make_shared<RowFacts>(form)}) : nullptr;
    } catch (const DataError&) {
        return {};
    }
}

std::shared_ptr<const Kind> kindOf(const QString& form, Engine engine) {
    const std::pair key(int(engine), form);
    {
        const QMutexLocker lock(&kindsMutex());
        if (const std::shared_ptr<const Kind>* known = kinds().object(key))
            return *known;
    }
    const std::shared_ptr<const Kind> kind = makeKind(form, engine);
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

bool isBoundAsItStands(QStringView text) {
    return !text.startsWith(QChar(QChar::ByteOrderMark)) && !text.startsWith(QChar(QChar::ByteOrderSwapped));
}

Statement statementOf(const SqlParts& tsql, Engine engine) {
    const std::optional<QString> form = tsql.form();
    const std::shared_ptr<const Kind> kind = form ? kindOf(*form, engine) : nullptr;
    if (!kind) {
        const QString text = tsql.text();
        return {translate(text, engine), std::make_shared<RowFacts>(text), {}, {}};
    }
    const QVariantList values = tsql.values();
    Statement statement{kind->text.filled(values), kind->facts, {}, {}};
    if (engine == Engine::Sqlite && !kind->text.marked().isNull() && areBoundAsTheyStand(values)) {
        statement.marked = kind->text.marked();
        statement.bound = kind->text.bound(values);
    }
    return statement;
}

} // namespace orvane
