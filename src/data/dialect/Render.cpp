#include "data/dialect/Render.h"

#include "data/DataError.h"
#include "data/dialect/Catalog.h"
#include "data/dialect/Functions.h"
#include "data/dialect/Rewrite.h"

namespace orvane {

namespace {

/// Some calls write an argument twice, so that calls inside calls double and double again.
constexpr qsizetype longestStatement = 16 * 1024 * 1024;

class Renderer {
public:
    Renderer(const Tokens& tokens, Engine engine) : m_tokens(tokens), m_engine(engine) {}

    QString run(qsizetype begin, qsizetype end) {
        while (begin < end)
            begin = step(begin, end);
        return m_out;
    }

private:
    /// Writes what begins at `i` and gives the index behind it.
    qsizetype step(qsizetype i, qsizetype end) {
        const Token& token = m_tokens[i];
        if (token.is("select") && m_engine != Engine::SqlServer)
            return select(i, end);
        if (token.is("order") && i + 1 < end && m_tokens[i + 1].is("by") && m_engine == Engine::Postgresql)
            return orderBy(i, end);
        const bool opens = i + 1 < end && m_tokens[i + 1].isSymbol("(");
        if (token.kind == TokenKind::Word && opens)
            return call(i);
        if (token.isSymbol("(")) {
            const qsizetype close = closingParenthesis(m_tokens, i);
            write("(" + inner(i + 1, close) + ")", token.spaceBefore);
            return close + 1;
        }
        if (token.kind == TokenKind::Text) {
            write(textAt(i, end), token.spaceBefore);
        } else {
            write(plain(token), token.spaceBefore);
            if (token.is("end") && i > 0 && m_engine == Engine::Sqlite && m_tokens[i - 1].kind == TokenKind::Text)
                write("collate nocase", true);
        }
        return i + 1;
    }

    /// "select [distinct] [top n] ..." up to a union or the end; "top n" goes behind as "limit n".
    qsizetype select(qsizetype i, qsizetype end) {
        write("select", m_tokens[i].spaceBefore);
        ++i;
        if (i < end && m_tokens[i].is("distinct")) {
            write("distinct", true);
            ++i;
        }
        if (i + 1 >= end || !m_tokens[i].is("top"))
            return i;
        const bool parenthesised = m_tokens[i + 1].isSymbol("(");
        const Token& number = m_tokens[parenthesised ? i + 2 : i + 1];
        const qsizetype rest = parenthesised ? i + 4 : i + 2;
        if (number.kind != TokenKind::Number || (parenthesised && !m_tokens[i + 3].isSymbol(")")))
            throw DataError("A number is expected behind \"top\".");
        qsizetype last = rest;
        while (last < end && !m_tokens[last].is("union"))
            last = m_tokens[last].isSymbol("(") ? closingParenthesis(m_tokens, last) + 1 : last + 1;
        write(inner(rest, last), true);
        write("limit " + number.text, true);
        return last;
    }

    /// T-SQL sorts nulls first. PostgreSQL is told so, except for a column that is never null, whose index then serves
    /// the order.
    qsizetype orderBy(qsizetype i, qsizetype end) {
        write("order by", true);
        i += 2;
        while (i < end) {
            qsizetype itemEnd = i;
            while (itemEnd < end && !m_tokens[itemEnd].isSymbol(","))
                itemEnd = m_tokens[itemEnd].isSymbol("(") ? closingParenthesis(m_tokens, itemEnd) + 1 : itemEnd + 1;
            write(inner(i, itemEnd), true);
            const bool descending = m_tokens[itemEnd - 1].is("desc");
            const bool directed = descending || m_tokens[itemEnd - 1].is("asc");
            if (!neverNull(i, directed ? itemEnd - 1 : itemEnd))
                write(descending ? "nulls last" : "nulls first", true);
            if (itemEnd < end)
                write(",", false);
            i = itemEnd + 1;
        }
        return std::min(i, end);
    }

    bool neverNull(qsizetype begin, qsizetype end) const {
        if (end - begin != 1 || !m_tokens[begin].isName())
            return false;
        for (const QString& source : sourcesOf(m_tokens)) {
            const Table* table = Catalog::instance().table(source);
            const Column* column = table ? table->column(m_tokens[begin].text) : nullptr;
            return column && column->required;
        }
        return false;
    }

    qsizetype call(qsizetype i) {
        const Token& name = m_tokens[i];
        const qsizetype close = closingParenthesis(m_tokens, i + 1);
        if (name.is("cast")) {
            write(cast(i + 2, close), name.spaceBefore);
            return close + 1;
        }
        QStringList arguments;
        for (qsizetype start = i + 2; start < close;) {
            qsizetype argumentEnd = start;
            while (argumentEnd < close && !m_tokens[argumentEnd].isSymbol(",")) {
                argumentEnd = m_tokens[argumentEnd].isSymbol("(") ? closingParenthesis(m_tokens, argumentEnd) + 1
                                                                  : argumentEnd + 1;
            }
            arguments += inner(start, argumentEnd).trimmed();
            start = argumentEnd + 1;
        }
        if (const auto translated = translateCall(name.text, arguments, m_engine)) {
            write(*translated, name.spaceBefore);
        } else {
            write(name.text, name.spaceBefore);
            write("(" + inner(i + 2, close) + ")", m_tokens[i + 1].spaceBefore);
        }
        return close + 1;
    }

    QString cast(qsizetype begin, qsizetype end) {
        qsizetype as = begin;
        while (as < end && !m_tokens[as].is("as"))
            as = m_tokens[as].isSymbol("(") ? closingParenthesis(m_tokens, as) + 1 : as + 1;
        return translateCast(inner(begin, as).trimmed(), inner(as + 1, end).trimmed(), m_engine);
    }

    /// A text literal: where nothing beside it gives it a type, it is told to compare without regard to case.
    QString textAt(qsizetype i, qsizetype end) const {
        const QString text = renderText(m_tokens[i].text, m_engine);
        const bool named = i + 1 < end && m_tokens[i + 1].is("as");
        const bool branch = i > 0 && (m_tokens[i - 1].is("then") || m_tokens[i - 1].is("else"));
        const bool joined =
            (i > 0 && m_tokens[i - 1].isSymbol("||")) || (i + 1 < end && m_tokens[i + 1].isSymbol("||"));
        if (m_engine == Engine::Postgresql && (named || branch))
            return text + "::citext";
        return m_engine == Engine::Sqlite && (named || joined) ? text + " collate nocase" : text;
    }

    QString plain(const Token& token) const {
        if (token.kind == TokenKind::Bracketed)
            return renderName(token, m_engine);
        // SQL Server reads a decimal of more than 38 digits only as a float.
        if (token.kind == TokenKind::Number && m_engine == Engine::SqlServer && token.text.size() > 38)
            return token.text + "e0";
        return token.text;
    }

    QString inner(qsizetype begin, qsizetype end) const { return Renderer(m_tokens, m_engine).run(begin, end); }

    void write(const QString& text, bool space) {
        if (m_out.size() + text.size() > longestStatement)
            throw DataError("The statement becomes too long.");
        const auto binds = [](QChar c) { return c.isLetterOrNumber() || QStringView(u"_$@#'\"[").contains(c); };
        if (!m_out.isEmpty() && !text.isEmpty()) {
            const QChar last = m_out.back();
            // PostgreSQL reads U&'...' as a text with escapes in it.
            const bool runsTogether =
                (binds(last) || last == u')' || last == u']' || last == u'&') && binds(text.front());
            if (!last.isSpace() && !text.front().isSpace() && (space || runsTogether))
                m_out += u' ';
        }
        m_out += text;
    }

    const Tokens& m_tokens;
    Engine m_engine;
    QString m_out;
};

} // namespace

QString renderName(const Token& name, Engine engine) {
    if (name.kind == TokenKind::Word)
        return name.text;
    if (engine == Engine::Postgresql) {
        QString lower = name.text.toLower();
        return "\"" + lower.replace(u'"', "\"\"") + "\"";
    }
    QString text = name.text;
    // SQLite closes a name at the first bracket.
    if (engine == Engine::Sqlite && text.contains(u']'))
        return "\"" + text.replace(u'"', "\"\"") + "\"";
    return "[" + text.replace(u']', "]]") + "]";
}

QString renderText(const QString& content, Engine engine) {
    QString text = content;
    text.replace(u'\'', "''");
    const bool wide =
        engine == Engine::SqlServer && std::any_of(text.begin(), text.end(), [](QChar c) { return c.unicode() > 127; });
    return (wide ? "N'" : "'") + text + "'";
}

QString render(const Tokens& tokens, qsizetype begin, qsizetype end, Engine engine) {
    return Renderer(tokens, engine).run(begin, end);
}

} // namespace orvane
