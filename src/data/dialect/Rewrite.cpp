#include "data/dialect/Rewrite.h"

#include "data/DataError.h"
#include "data/dialect/Catalog.h"

#include <QRegularExpression>

namespace orvane {

namespace {

bool isOneOf(const Token& token, std::initializer_list<const char*> words) {
    return std::any_of(
        words.begin(), words.end(), [&](const char* word) { return token.is(word); });
}

/// Far more than any statement of the system has.
constexpr qsizetype mostTokens = 20'000;

/// A word in front of a parenthesis that is no function's name.
bool isKeywordBeforeParenthesis(const Token& token) {
    return isOneOf(token, {"and",  "or",      "not",  "in",     "where", "on",       "select", "from",  "exists",
                           "when", "then",    "else", "having", "by",    "values",   "as",     "union", "all",
                           "any",  "between", "like", "set",    "case",  "distinct", "top"});
}

bool isComparison(const Token& token) {
    static const QStringList symbols = {"=", "<>", "!=", "<", ">", "<=", ">="};
    return token.kind == TokenKind::Symbol && symbols.contains(token.text);
}

} // namespace

QStringList sourcesOf(const Tokens& tokens) {
    QStringList sources;
    bool expected = false;
    for (qsizetype i = 0; i < tokens.size(); ++i) {
        const Token& token = tokens[i];
        if (expected && token.isName()) {
            sources += token.text;
            expected = false;
            // The next comma belongs to the list of sources unless a keyword ends it.
            qsizetype next = i + 1;
            while (next < tokens.size() && tokens[next].isName() &&
                   !isOneOf(tokens[next],
                            {"where", "set", "order", "group", "inner", "left", "join", "on", "union", "values"}))
                ++next;
            expected = next < tokens.size() && tokens[next].isSymbol(",");
            i = expected ? next : i;
        } else {
            expected = isOneOf(token, {"from", "join", "update", "into"});
        }
    }
    return sources;
}

qsizetype operandStart(const Tokens& tokens, qsizetype last) {
    qsizetype start = last;
    if (tokens[last].isSymbol(")")) {
        start = openingParenthesis(tokens, last);
        if (start > 0 && tokens[start - 1].kind == TokenKind::Word && !isKeywordBeforeParenthesis(tokens[start - 1]))
            --start;
    } else if (tokens[last].is("end")) {
        int depth = 1;
        while (start > 0 && depth > 0) {
            --start;
            depth += tokens[start].is("end") ? 1 : tokens[start].is("case") ? -1 : 0;
        }
    }
    while (start >= 2 && tokens[start - 1].isSymbol(".") && tokens[start - 2].isName())
        start -= 2;
    return start;
}

qsizetype operandEnd(const Tokens& tokens, qsizetype first) {
    qsizetype i = first;
    if (i < tokens.size() && (tokens[i].isSymbol("-") || tokens[i].isSymbol("+")))
        ++i;
    if (i < tokens.size() && tokens[i].is("case")) {
        int depth = 1;
        while (++i < tokens.size() && depth > 0)
            depth += tokens[i].is("case") ? 1 : tokens[i].is("end") ? -1 : 0;
        return i;
    }
    while (i + 2 < tokens.size() && tokens[i].isName() && tokens[i + 1].isSymbol("."))
        i += 2;
    if (i + 1 < tokens.size() && tokens[i].kind == TokenKind::Word && tokens[i + 1].isSymbol("("))
        ++i;
    if (i < tokens.size() && tokens[i].isSymbol("("))
        return closingParenthesis(tokens, i) + 1;
    return std::min(i + 1, tokens.size());
}

namespace {

/// The "in" of an "x in (select distinct ...)" or "x not in (select ...)" whose first word stands at `i`; -1: none
/// does.
qsizetype inOfSubquery(const Tokens& tokens, qsizetype i) {
    const bool isNegated = tokens[i].is("not");
    const qsizetype in = isNegated ? i + 1 : i;
    const bool isSubquery =
        in + 2 < tokens.size() && tokens[in].is("in") && tokens[in + 1].isSymbol("(") && tokens[in + 2].is("select");
    return isSubquery && (isNegated || tokens[in + 3].is("distinct")) ? in : -1;
}

} // namespace

void rewriteIn(Tokens& tokens) {
    for (qsizetype i = 1; i + 3 < tokens.size(); ++i) {
        const qsizetype in = inOfSubquery(tokens, i);
        if (in < 0)
            continue;
        const qsizetype start = operandStart(tokens, i - 1);
        const qsizetype close = closingParenthesis(tokens, in + 1);
        const Tokens value = tokens.mid(start, i - start);
        const qsizetype key = tokens[in + 3].is("distinct") ? in + 4 : in + 3;
        qsizetype from = key;
        while (from < close && !tokens[from].is("from"))
            from = tokens[from].isSymbol("(") ? closingParenthesis(tokens, from) + 1 : from + 1;
        const qsizetype keyEnd = from - key > 2 && tokens[from - 2].is("as") ? from - 2 : from;
        Tokens result = {symbolToken("(")};
        if (in > i) {
            result += value;
            result += tokenize(" is not null and not");
        }
        result += tokenize(" exists (select 1 from (select");
        result += tokens.mid(key, keyEnd - key);
        result += tokenize(" as orvane_key");
        result += tokens.mid(from, close - from);
        result += tokenize(") orvane_in where orvane_in.orvane_key =");
        result += value;
        result += tokenize("))");
        if (tokens.size() + result.size() > mostTokens) {
            // Each "not in" doubles the value in front of it, which may hold a "not in" of its own.
            throw DataError("The statement has too many \"not in\" inside one another.");
        }
        tokens = tokens.mid(0, start) + result + tokens.mid(close + 1);
        // What the subquery holds is looked at again: it may bear a "not in" of its own.
        i = start;
    }
}

namespace {

bool holdsText(const Tokens& tokens, qsizetype begin, qsizetype end, const QStringList& sources);

bool isTextType(const Token& token) {
    return isOneOf(token, {"varchar", "nvarchar", "char", "nchar"});
}

bool callGivesText(const Tokens& tokens, qsizetype name, qsizetype end, const QStringList& sources) {
    const Token& function = tokens[name];
    if (isOneOf(function,
                {"substring", "right", "left", "ltrim", "rtrim", "upper", "lower", "replace", "replicate", "str"}))
        return true;
    if (function.is("convert"))
        return isTextType(tokens[name + 2]);
    if (function.is("cast"))
        return std::any_of(tokens.begin() + name, tokens.begin() + end, isTextType);
    if (isOneOf(function, {"isnull", "coalesce", "nullif", "max", "min"}))
        return holdsText(tokens, name + 2, end - 1, sources);
    return false;
}

/// Whether the operand in [begin, end) is a text.
bool operandIsText(const Tokens& tokens, qsizetype begin, qsizetype end, const QStringList& sources) {
    const Token& first = tokens[begin];
    if (first.kind == TokenKind::Text)
        return true;
    if (first.isSymbol("("))
        return !tokens[begin + 1].is("select") && holdsText(tokens, begin + 1, end - 1, sources);
    if (first.is("case")) {
        for (qsizetype i = begin; i + 1 < end; ++i)
            if (isOneOf(tokens[i], {"then", "else"}) && tokens[i + 1].kind == TokenKind::Text)
                return true;
        return false;
    }
    if (first.kind == TokenKind::Word && begin + 1 < end && tokens[begin + 1].isSymbol("("))
        return callGivesText(tokens, begin, end, sources);
    if (first.isName()) {
        const Column* column = Catalog::instance().findColumn(tokens[end - 1].text, sources);
        return column && (column->kind == ColumnKind::Text || column->kind == ColumnKind::Time);
    }
    return false;
}

bool holdsText(const Tokens& tokens, qsizetype begin, qsizetype end, const QStringList& sources) {
    for (qsizetype i = begin; i < end;) {
        const qsizetype next = std::min(operandEnd(tokens, i), end);
        if (next > i && operandIsText(tokens, i, next, sources))
            return true;
        i = std::max(next, i + 1);
    }
    return false;
}

bool isBinaryPlus(const Tokens& tokens, qsizetype i) {
    if (!tokens[i].isSymbol("+") || i == 0)
        return false;
    const Token& before = tokens[i - 1];
    return before.isSymbol(")") || (before.kind != TokenKind::Symbol && !isKeywordBeforeParenthesis(before));
}

} // namespace

void rewriteTextJoins(Tokens& tokens) {
    QStringList sources;
    for (qsizetype i = 1; i + 1 < tokens.size(); ++i) {
        if (!isBinaryPlus(tokens, i))
            continue;
        if (sources.isEmpty())
            sources = sourcesOf(tokens);
        bool text = operandIsText(tokens, operandStart(tokens, i - 1), i, sources);
        QList<qsizetype> pluses = {i};
        qsizetype end = operandEnd(tokens, i + 1);
        text = text || operandIsText(tokens, i + 1, end, sources);
        while (end + 1 < tokens.size() && tokens[end].isSymbol("+")) {
            pluses += end;
            const qsizetype next = operandEnd(tokens, end + 1);
            text = text || operandIsText(tokens, end + 1, next, sources);
            end = next;
        }
        if (text)
            for (const qsizetype plus : pluses)
                tokens[plus].text = "||";
    }
}

namespace {

Token textToken(const QString& text) {
    return {TokenKind::Text, text, true};
}

qsizetype prefixLength(const QString& pattern) {
    const auto wild = [](QChar c) { return c == u'%' || c == u'_'; };
    return std::find_if(pattern.begin(), pattern.end(), wild) - pattern.begin();
}

/// What "value like pattern" or, with `no`, "value not like pattern" becomes.
Tokens likeForPostgresql(const Tokens& value, bool no, QString pattern) {
    pattern = pattern.toLower();
    const QString prefix = pattern.left(prefixLength(pattern));
    const bool settled = pattern == prefix + u'%';
    const Token open = symbolToken("("), close = symbolToken(")");
    const Token with = wordToken("and");
    Tokens test = Tokens() << wordToken(QStringLiteral("lower")) << open << value << close;
    if (no)
        test << wordToken(QStringLiteral("not"));
    test << wordToken(QStringLiteral("like")) << textToken(pattern.replace(u'\\', QStringLiteral("\\\\")));
    if (no || prefix.isEmpty())
        return test;
    // No character comes behind the last one there is. The database compares by character, in lower case.
    Tokens range = Tokens() << open << value << symbolToken(QStringLiteral(">=")) << textToken(prefix) << with << value
                            << symbolToken(QStringLiteral("<")) << textToken(prefix + QString::fromUcs4(U"\U0010FFFF"));
    if (!settled)
        range << with << test;
    return range << close;
}

} // namespace

void rewriteLikeForPostgresql(Tokens& tokens) {
    for (qsizetype i = 1; i + 1 < tokens.size(); ++i) {
        if (!tokens[i].is("like") || tokens[i + 1].kind != TokenKind::Text)
            continue;
        const bool no = tokens[i - 1].is("not");
        const qsizetype last = no ? i - 2 : i - 1;
        if (last < 0)
            continue;
        const qsizetype start = operandStart(tokens, last);
        const Tokens like = likeForPostgresql(tokens.mid(start, last + 1 - start), no, tokens[i + 1].text);
        if (tokens.size() + like.size() > mostTokens) {
            // Each "like" doubles the value in front of it, which may end in another.
            throw DataError("The statement has too many \"like\" inside one another.");
        }
        tokens = tokens.mid(0, start) + like + tokens.mid(i + 2);
        i = start + like.size() - 1;
    }
}

namespace {

const Column* columnOf(const Tokens& tokens, qsizetype last, const QStringList& sources) {
    if (last < 0 || !tokens[last].isName())
        return nullptr;
    return Catalog::instance().findColumn(tokens[last].text, sources);
}

void fitToColumn(Token& literal, ColumnKind kind) {
    static const QRegularExpression dateOnly("^\\d{4}-\\d\\d-\\d\\d$");
    static const QRegularExpression dateAndTime("^\\d{4}-\\d\\d-\\d\\d[ T]\\d");
    if (literal.kind == TokenKind::Number) {
        if (kind == ColumnKind::Text || kind == ColumnKind::Time)
            literal.kind = TokenKind::Text;
        return;
    }
    const bool isNumber = kind == ColumnKind::Number || kind == ColumnKind::Integer || kind == ColumnKind::Flag;
    const bool isDate = kind == ColumnKind::Date || kind == ColumnKind::DateTime;
    if (literal.text.trimmed().isEmpty() && (isNumber || isDate))
        literal = wordToken(isNumber ? "0" : "null");
    else if (kind == ColumnKind::Date && dateAndTime.match(literal.text).hasMatch())
        literal.text.truncate(10);
    else if (kind == ColumnKind::DateTime && dateOnly.match(literal.text).hasMatch())
        literal.text += " 00:00:00";
}

void trimCompared(Token& literal) {
    if (literal.kind == TokenKind::Text)
        while (literal.text.endsWith(u' '))
            literal.text.chop(1);
}

bool isLiteral(const Token& token) {
    return token.kind == TokenKind::Text || token.kind == TokenKind::Number;
}

/// Marks every token of the assignments of "update ... set ..." that stands directly in the list.
QList<bool> assignmentMarks(const Tokens& tokens) {
    QList<bool> marks(tokens.size(), false);
    if (tokens.isEmpty() || !tokens[0].is("update"))
        return marks;
    qsizetype i = 1;
    while (i < tokens.size() && !tokens[i].is("set"))
        ++i;
    while (++i < tokens.size() && !tokens[i].is("where"))
        if (tokens[i].isSymbol("("))
            i = closingParenthesis(tokens, i);
        else
            marks[i] = true;
    return marks;
}

} // namespace

void rewriteLiterals(Tokens& tokens) {
    const QStringList sources = sourcesOf(tokens);
    const QList<bool> assigned = assignmentMarks(tokens);
    for (qsizetype i = 0; i + 1 < tokens.size(); ++i) {
        if (isComparison(tokens[i]) && i > 0) {
            Token& right = tokens[i + 1];
            const bool wholeOperand = i + 2 >= tokens.size() || tokens[i + 2].kind != TokenKind::Symbol ||
                                      tokens[i + 2].isSymbol(")") || tokens[i + 2].isSymbol(",");
            if (!assigned[i]) {
                trimCompared(right);
                trimCompared(tokens[i - 1]);
            }
            const Column* column = columnOf(tokens, i - 1, sources);
            if (column && isLiteral(right) && wholeOperand)
                fitToColumn(right, column->kind);
        } else if (tokens[i].is("in") && i > 0 && tokens[i + 1].isSymbol("(")) {
            const Column* column = columnOf(tokens, tokens[i - 1].is("not") ? i - 2 : i - 1, sources);
            for (qsizetype k = i + 2; k < closingParenthesis(tokens, i + 1) && isLiteral(tokens[k]); k += 2) {
                trimCompared(tokens[k]);
                if (column)
                    fitToColumn(tokens[k], column->kind);
            }
        } else if (tokens[i].is("between") && i > 0 && i + 3 < tokens.size() && tokens[i + 2].is("and")) {
            const Column* column = columnOf(tokens, i - 1, sources);
            for (const qsizetype k : {i + 1, i + 3})
                if (column && isLiteral(tokens[k]))
                    fitToColumn(tokens[k], column->kind);
        }
    }
}

} // namespace orvane
