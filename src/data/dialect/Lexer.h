#pragma once

#include <QList>
#include <QString>

namespace orvane {

enum class TokenKind {
    Word,      ///< a keyword or a plain name
    Bracketed, ///< a name in brackets or double quotes; text is the bare name
    Text,      ///< a text literal; text is its content, quotes undoubled
    Number,
    Symbol, ///< an operator or a punctuation mark
};

struct Token {
    TokenKind kind = TokenKind::Symbol;
    QString text;
    bool spaceBefore = false;

    bool is(const char* word) const; ///< a word, without regard to case
    bool isSymbol(const char* symbol) const { return kind == TokenKind::Symbol && text == QLatin1StringView(symbol); }
    bool isName() const { return kind == TokenKind::Word || kind == TokenKind::Bracketed; }
};

using Tokens = QList<Token>;

/// The tokens of a T-SQL text; comments and blanks are dropped, a blank is remembered at the token behind it.
/// A number ends where a letter follows that makes no exponent ("12.5where"). Raises DataError for a text that ends
/// inside quotes, brackets or a comment, or holds U+0000 or, outside quotes, a mark that is no part of the dialect.
Tokens tokenize(const QString& tsql);

/// The index of the parenthesis that closes the one at `open`, or of the last token when there is none.
qsizetype closingParenthesis(const Tokens& tokens, qsizetype open);
/// The index of the parenthesis that opens the one at `close`, or 0 when there is none.
qsizetype openingParenthesis(const Tokens& tokens, qsizetype close);

Token wordToken(const QString& text);
Token symbolToken(const QString& text);

} // namespace orvane
