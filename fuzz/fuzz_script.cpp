// Any bytes are a line of a script or refused, and what is read can be written and read again.
#include "Demand.h"
#include "play/EventLog.h"
#include "play/ScriptParser.h"

#include <QBuffer>
#include <cstdint>

namespace orvane {

namespace {

bool isOnePrintableLine(const QString& line) {
    return std::none_of(
        line.begin(), line.end(), [](QChar c) { return c != u'\t' && c.category() == QChar::Other_Control; });
}

void demandReadBack(const QVector<ScriptWord>& words) {
    QStringList texts;
    for (const ScriptWord& word : words) {
        texts += EventLog::quoted(word.text);
        demand(isOnePrintableLine(texts.last()), "a text is written on one line", texts.last());
    }
    const ScriptLine again = parseScriptLine(texts.join(u' ').toUtf8());
    // Quoting may have made the line longer than a script's longest.
    if (!again.error.isEmpty() && texts.join(u' ').toUtf8().size() > maxScriptLine)
        return;
    demand(again.error.isEmpty() && again.words.size() == words.size(), "what was read can be written", again.error);
    for (qsizetype i = 0; i < words.size(); ++i) {
        // The log knows one line end only.
        QString text = words.at(i).text;
        text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
        demand(again.words.at(i).text == text, "a text is read back", words.at(i).text);
    }
}

void fuzzLine(const QByteArray& bytes) {
    const ScriptLine line = parseScriptLine(bytes);
    demand(line.error.isEmpty() || line.words.isEmpty(), "a line is read or refused, not both", line.error);
    demand(isOnePrintableLine(line.error), "a refusal is one line", line.error);
    for (const ScriptWord& word : line.words) {
        demand(word.quoted || !word.text.isEmpty(), "a bare word is not empty");
        demand(!word.text.contains(QChar(u'\0')), "no word holds a zero character", word.text);
    }
    demandReadBack(line.words);

    QBuffer output;
    output.open(QIODevice::WriteOnly);
    EventLog log(output);
    log.fail(QStringLiteral("there is no command ") + (line.words.isEmpty() ? line.error : line.words.first().text));
    demand(isOnePrintableLine(QString::fromUtf8(output.data()).chopped(1)), "a failure is one line");
}

} // namespace

} // namespace orvane

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    QByteArray script(reinterpret_cast<const char*>(data), qsizetype(size));
    QBuffer lines(&script);
    lines.open(QIODevice::ReadOnly);
    while (!lines.atEnd())
        orvane::fuzzLine(lines.readLine(orvane::maxScriptLine + 3));
    return 0;
}
