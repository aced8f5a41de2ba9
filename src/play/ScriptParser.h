#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

namespace orvane {

/// A word of a script line: bare, or a text in double quotes.
struct ScriptWord {
    QString text;
    bool quoted = false;

    bool operator==(const ScriptWord&) const = default;
};

/// What a line of a script says; no words for an empty line or a comment.
struct ScriptLine {
    QVector<ScriptWord> words;
    QString error; ///< why the line cannot be read; empty when it can
};

/// The longest line of a script, in bytes without its line end.
constexpr qsizetype maxScriptLine = 65536;

/// Takes any bytes: one line in UTF-8, with or without its line end. Words stand apart by blanks or tabs; `#` where a
/// word could begin starts a comment; inside double quotes \", \\, \n and \uXXXX are the escapes. Raises nothing.
ScriptLine parseScriptLine(const QByteArray& line);

} // namespace orvane
