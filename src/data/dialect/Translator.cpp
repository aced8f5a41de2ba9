#include "data/dialect/Translator.h"

#include "data/DataError.h"
#include "data/dialect/Ddl.h"
#include "data/dialect/Lexer.h"
#include "data/dialect/Render.h"
#include "data/dialect/Rewrite.h"

namespace orvane {

namespace {

/// No statement of the system comes near it; without it one could use up the machine's stack.
constexpr int deepestNesting = 100;

void checkParentheses(const Tokens& tokens, const QString& tsql) {
    int depth = 0, deepest = 0, tops = 0;
    for (qsizetype i = 0; i < tokens.size() && depth >= 0; ++i) {
        depth += tokens[i].isSymbol("(") ? 1 : tokens[i].isSymbol(")") ? -1 : 0;
        deepest = std::max(deepest, depth);
        tops += tokens[i].is("top") ? 1 : 0;
    }
    if (depth != 0)
        throw DataError("The parentheses of the statement do not match.", tsql);
    if (deepest + tops > deepestNesting)
        throw DataError("The statement is nested too deeply.", tsql);
}

} // namespace

QString translate(const QString& tsql, Engine engine) {
    Tokens tokens = tokenize(tsql);
    checkParentheses(tokens, tsql);
    if (isDefinition(tokens))
        return translateDefinition(tokens, engine);
    if (engine != Engine::SqlServer) {
        rewriteIn(tokens);
        rewriteTextJoins(tokens);
        rewriteLiterals(tokens);
    }
    if (engine == Engine::Postgresql)
        rewriteLikeForPostgresql(tokens);
    return render(tokens, 0, tokens.size(), engine);
}

QStringList splitScript(const QString& script) {
    QStringList statements;
    QString current;
    const auto finish = [&] {
        if (!tokenize(current).isEmpty())
            statements += current.trimmed();
        current.clear();
    };
    for (const QString& line : script.split(u'\n'))
        if (line.trimmed().compare(u"go", Qt::CaseInsensitive) == 0)
            finish();
        else
            current += line + u'\n';
    finish();
    return statements;
}

} // namespace orvane
