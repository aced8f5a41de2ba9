#pragma once

#include "forms/Ui.h"

#include <QIODevice>
#include <deque>

namespace orvane {

/// Writes the lines of a script run in order, one a line, in UTF-8. After the first failure it writes nothing more.
class EventLog {
public:
    explicit EventLog(QIODevice& output) : m_output(output) {}

    void write(const QString& line);
    void box(Icon icon, const QString& title, const QString& text); ///< also kept for takeBox
    /// The oldest box text not yet taken; empty when there is none.
    std::optional<QString> takeBox();

    void setLine(int line) { m_line = line; } ///< of the script, for fail()
    int line() const { return m_line; }
    void fail(const QString& reason); ///< "FAIL line N: reason", once
    bool hasFailed() const { return m_failed; }

    /// A text in double quotes, with \", \\, \n and \uXXXX, as scripts write it.
    static QString quoted(const QString& text);
    /// A value that goes out unquoted: kept on its line, line breaks as \n, tabs as \t, control characters as \uXXXX.
    static QString oneLine(const QString& text);

private:
    QIODevice& m_output;
    std::deque<QString> m_boxes;
    int m_line = 0;
    bool m_failed = false;
};

} // namespace orvane
