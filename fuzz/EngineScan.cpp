#include "EngineScan.h"

namespace orvane {

namespace {

/// The index behind the closing mark of what begins at `open`, where a doubled mark stands for itself if `doubles`;
/// -1 when it is never closed. Gives the content.
qsizetype behindQuoted(const QString& text, qsizetype open, QChar mark, bool doubles, QString& content) {
    content.clear();
    for (qsizetype i = open + 1; i < text.size(); ++i) {
        if (text.at(i) != mark) {
            content += text.at(i);
        } else if (doubles && i + 1 < text.size() && text.at(i + 1) == mark) {
            content += mark;
            ++i;
        } else {
            return i + 1;
        }
    }
    return -1;
}

bool isWordPart(QChar c) {
    return c.isLetterOrNumber() || c == u'_' || c == u'$' || c == u'@' || c == u'#' || c.isSurrogate();
}

/// What opens a name, and what closes it; null for any other character.
QChar closerOfName(QChar c, Engine engine) {
    if (c == u'"')
        return u'"';
    if (c == u'[' && engine != Engine::Postgresql)
        return u']';
    return c == u'`' && engine == Engine::Sqlite ? QChar(u'`') : QChar();
}

/// Whether a literal behind this text would be read in another way than as a plain text.
bool changesLiteral(const QString& before, Engine engine) {
    if (before.isEmpty())
        return false;
    return isWordPart(before.back()) || (engine == Engine::Postgresql && before.endsWith(u"U&", Qt::CaseInsensitive));
}

} // namespace

EngineScan scanForEngine(const QString& text, Engine engine) {
    EngineScan scan;
    int depth = 0;
    QString content;
    for (qsizetype i = 0; i < text.size();) {
        const QChar c = text.at(i);
        const QStringView two = QStringView(text).mid(i, 2);
        if (c.isNull() || two == u"--" || two == u"/*") {
            scan.fault = c.isNull() ? QStringLiteral("a zero character") : QStringLiteral("a comment");
            return scan;
        }
        if (c == u'$' && engine == Engine::Postgresql && (i == 0 || !isWordPart(text.at(i - 1)))) {
            scan.fault = QStringLiteral("a dollar quote");
            return scan;
        }
        const QChar closer = closerOfName(c, engine);
        if (c == u'\'') {
            if (engine == Engine::SqlServer && scan.skeleton.endsWith(u'N'))
                scan.skeleton.chop(1);
            if (changesLiteral(scan.skeleton, engine)) {
                scan.fault = QStringLiteral("a literal behind a prefix");
                return scan;
            }
            i = behindQuoted(text, i, u'\'', true, content);
            scan.skeleton += QStringLiteral("''");
            scan.literals += content;
        } else if (!closer.isNull()) {
            const qsizetype open = i;
            // SQLite closes a bracketed name at the first bracket.
            i = behindQuoted(text, i, closer, !(closer == u']' && engine == Engine::Sqlite), content);
            scan.skeleton += text.mid(open, i < 0 ? -1 : i - open);
        } else {
            depth += c == u'(' ? 1 : c == u')' ? -1 : 0;
            scan.skeleton += c;
            ++i;
        }
        if (i < 0 || depth < 0) {
            scan.fault = i < 0 ? QStringLiteral("an open quote") : QStringLiteral("parentheses that do not match");
            return scan;
        }
    }
    if (depth != 0)
        scan.fault = QStringLiteral("parentheses that do not match");
    return scan;
}

std::optional<Pieces> splitAtLiterals(const QString& tsql) {
    Pieces pieces;
    QString between, content;
    for (qsizetype i = 0; i < tsql.size();) {
        const QStringView two = QStringView(tsql).mid(i, 2);
        const qsizetype start = i;
        if (two == u"--") {
            const qsizetype end = tsql.indexOf(u'\n', i);
            i = end < 0 ? tsql.size() : end + 1;
        } else if (two == u"/*") {
            const qsizetype end = tsql.indexOf(QStringLiteral("*/"), i + 2);
            i = end < 0 ? -1 : end + 2;
        } else if (tsql.at(i) == u'\'') {
            i = behindQuoted(tsql, i, u'\'', true, content);
            pieces.between += between;
            pieces.literals += content;
            between.clear();
            if (i < 0)
                return std::nullopt;
            continue;
        } else if (const QChar closer = closerOfName(tsql.at(i), Engine::SqlServer); !closer.isNull()) {
            i = behindQuoted(tsql, i, closer, true, content);
        } else {
            ++i;
        }
        if (i < 0)
            return std::nullopt;
        between += QStringView(tsql).mid(start, i - start);
    }
    pieces.between += between;
    return pieces;
}

} // namespace orvane
