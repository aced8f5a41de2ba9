#include "data/dialect/Lexer.h"

#include "data/DataError.h"

namespace orvane {

namespace {

bool startsName(QChar c) {
    return c.isLetter() || c == u'_' || c == u'@' || c == u'#';
}

bool continuesName(QChar c) {
    return startsName(c) || c.isDigit() || c == u'$';
}

class Lexer {
public:
    explicit Lexer(const QString& text) : m_text(text) {}

    Tokens run() {
        if (m_text.contains(QChar(u'\0')))
            throw DataError("The statement holds a character that cannot be sent (U+0000).", m_text);
        while (skipBlanks(), m_at < m_text.size()) {
            m_tokens.append(next());
            m_space = false;
        }
        return m_tokens;
    }

private:
    QChar peek(qsizetype ahead = 0) const { return m_at + ahead < m_text.size() ? m_text.at(m_at + ahead) : QChar(); }

    void skipBlanks() {
        while (m_at < m_text.size()) {
            if (peek().isSpace()) {
                ++m_at;
            } else if (peek() == u'-' && peek(1) == u'-') {
                const qsizetype end = m_text.indexOf(u'\n', m_at);
                m_at = end < 0 ? m_text.size() : end + 1;
            } else if (peek() == u'/' && peek(1) == u'*') {
                const qsizetype end = m_text.indexOf("*/", m_at + 2);
                if (end < 0)
                    throw DataError("The statement ends inside a comment.", m_text);
                m_at = end + 2;
            } else {
                return;
            }
            m_space = true;
        }
    }

    Token next() {
        const QChar c = peek();
        if (c == u'\'')
            return {TokenKind::Text, quoted(u'\'', "quotes"), m_space};
        if ((c == u'N' || c == u'n') && peek(1) == u'\'') {
            ++m_at;
            return {TokenKind::Text, quoted(u'\'', "quotes"), m_space};
        }
        if (c == u'[')
            return {TokenKind::Bracketed, quoted(u']', "brackets"), m_space};
        if (c == u'"')
            return {TokenKind::Bracketed, quoted(u'"', "double quotes"), m_space};
        if (c.isDigit() || (c == u'.' && peek(1).isDigit()))
            return {TokenKind::Number, number(), m_space};
        if (startsName(c))
            return {TokenKind::Word, takeWhile(continuesName), m_space};
        return {TokenKind::Symbol, symbol(), m_space};
    }

    /// What stands up to the closing mark; a doubled mark stands for itself.
    QString quoted(QChar mark, const char* what) {
        QString content;
        for (++m_at; m_at < m_text.size(); ++m_at) {
            if (peek() != mark) {
                content += peek();
            } else if (peek(1) == mark) {
                content += mark;
                ++m_at;
            } else {
                ++m_at;
                return content;
            }
        }
        throw DataError(QStringLiteral("The statement ends inside %1.").arg(QLatin1StringView(what)), m_text);
    }

    template <typename Predicate>
    QString takeWhile(Predicate predicate) {
        const qsizetype start = m_at;
        while (m_at < m_text.size() && predicate(peek()))
            ++m_at;
        return m_text.mid(start, m_at - start);
    }

    QString number() {
        const auto digit = [](QChar c) { return c.isDigit(); };
        QString text = takeWhile(digit);
        if (peek() == u'.') {
            ++m_at;
            text += u'.' + takeWhile(digit);
        }
        const bool sign = peek(1) == u'+' || peek(1) == u'-';
        if ((peek() == u'e' || peek() == u'E') && peek(sign ? 2 : 1).isDigit()) {
            text += m_text.mid(m_at, sign ? 2 : 1);
            m_at += sign ? 2 : 1;
            text += takeWhile(digit);
        }
        return text;
    }

    /// An engine may read any other mark as one that opens a quote, and swallow the literals behind it.
    QString symbol() {
        static const QString marks = "(),.;:=<>!+-*/%&|^~";
        static const QStringList pairs = {"<>", "<=", ">=", "!=", "||"};
        if (!marks.contains(peek())) {
            throw DataError(QStringLiteral("The statement holds a mark that is no part of the dialect (U+%1).")
                                .arg(peek().unicode(), 4, 16, QLatin1Char('0')),
                            m_text);
        }
        const QString pair = m_text.mid(m_at, 2);
        const qsizetype length = pairs.contains(pair) ? 2 : 1;
        m_at += length;
        return pair.left(length);
    }

    const QString& m_text;
    qsizetype m_at = 0;
    bool m_space = false;
    Tokens m_tokens;
};

} // namespace

bool Token::is(const char* word) const {
    if (kind != TokenKind::Word)
        return false;
    // The words that are asked for are plain small letters, which differ from capitals in one bit.
    const QChar* c = text.begin();
    for (; c != text.end() && *word; ++c, ++word)
        if (char16_t(c->unicode() | 0x20) != char16_t(*word))
            return false;
    return c == text.end() && !*word;
}

Tokens tokenize(const QString& tsql) {
    return Lexer(tsql).run();
}

qsizetype closingParenthesis(const Tokens& tokens, qsizetype open) {
    int depth = 0;
    for (qsizetype i = open; i < tokens.size(); ++i) {
        depth += tokens[i].isSymbol("(") ? 1 : tokens[i].isSymbol(")") ? -1 : 0;
        if (depth == 0)
            return i;
    }
    return tokens.size() - 1;
}

qsizetype openingParenthesis(const Tokens& tokens, qsizetype close) {
    int depth = 0;
    for (qsizetype i = close; i >= 0; --i) {
        depth += tokens[i].isSymbol(")") ? 1 : tokens[i].isSymbol("(") ? -1 : 0;
        if (depth == 0)
            return i;
    }
    return 0;
}

Token wordToken(const QString& text) {
    return {TokenKind::Word, text, true};
}

Token symbolToken(const QString& text) {
    return {TokenKind::Symbol, text, true};
}

} // namespace orvane
