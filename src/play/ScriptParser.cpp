#include "play/ScriptParser.h"

#include <QStringDecoder>

namespace orvane {

namespace {

bool isBlank(QChar character) {
    return character == QLatin1Char(' ') || character == QLatin1Char('\t');
}

/// Reads the words of one line from left to right.
class LineReader {
public:
    explicit LineReader(const QString& line) : m_line(line) {}

    ScriptLine read() {
        ScriptLine result;
        while (result.error.isEmpty() && skipToWord())
            result.words.append(m_line.at(m_at) == QLatin1Char('"') ? quotedWord(result.error)
                                                                    : bareWord(result.error));
        if (!result.error.isEmpty())
            result.words.clear();
        return result;
    }

private:
    /// False at the end of the line or at a comment.
    bool skipToWord() {
        while (m_at < m_line.size() && isBlank(m_line.at(m_at)))
            ++m_at;
        return m_at < m_line.size() && m_line.at(m_at) != QLatin1Char('#');
    }

    ScriptWord bareWord(QString& error) {
        const qsizetype start = m_at;
        while (m_at < m_line.size() && !isBlank(m_line.at(m_at))) {
            if (m_line.at(m_at) == QLatin1Char('"'))
                error = "a quote inside a word";
            ++m_at;
        }
        return {m_line.mid(start, m_at - start), false};
    }

    ScriptWord quotedWord(QString& error) {
        ScriptWord word{{}, true};
        for (++m_at; m_at < m_line.size(); ++m_at) {
            const QChar character = m_line.at(m_at);
            if (character == QLatin1Char('"')) {
                ++m_at;
                if (m_at < m_line.size() && !isBlank(m_line.at(m_at)))
                    error = "no blank behind a closing quote";
                return word;
            }
            word.text += character == QLatin1Char('\\') ? escaped(error) : character;
        }
        error = "a text without its closing quote";
        return word;
    }

    /// The character that stands for a backslash and the one behind it.
    QChar escaped(QString& error) {
        ++m_at;
        const QChar character = m_at < m_line.size() ? m_line.at(m_at) : QChar();
        if (character == QLatin1Char('n'))
            return QLatin1Char('\n');
        if (character == QLatin1Char('u'))
            return codedCharacter(error);
        if (character != QLatin1Char('"') && character != QLatin1Char('\\'))
            error = "a backslash that is not followed by \", \\, n or u";
        return character;
    }

    /// The character whose code stands in four hexadecimal digits behind the u.
    QChar codedCharacter(QString& error) {
        const QString digits = m_line.mid(m_at + 1, 4);
        bool isNumber = false;
        const ushort code = digits.toUShort(&isNumber, 16);
        if (digits.size() != 4 || !isNumber || digits.front() == QLatin1Char(' ') || code == 0 ||
            QChar::isSurrogate(code))
            error = "no character of four hexadecimal digits behind \\u";
        m_at += digits.size();
        return QChar(code);
    }

    const QString& m_line;
    qsizetype m_at = 0;
};

} // namespace

ScriptLine parseScriptLine(const QByteArray& line) {
    QByteArray bytes = line;
    if (bytes.endsWith('\n'))
        bytes.chop(1);
    if (bytes.endsWith('\r'))
        bytes.chop(1);
    if (bytes.size() > maxScriptLine)
        return {{}, QStringLiteral("a line of more than %1 bytes").arg(maxScriptLine)};
    if (bytes.contains('\0'))
        return {{}, "a zero byte"};
    // Stateless: a character that is cut off at the end is an error. A byte order mark is left out.
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder.decode(bytes);
    if (decoder.hasError())
        return {{}, "bytes that are not UTF-8"};
    return LineReader(text).read();
}

} // namespace orvane
