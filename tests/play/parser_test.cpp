// Lines of a script, well formed and hostile; any bytes are the fuzzer's.
#include "play/EventLog.h"
#include "play/ScriptParser.h"

#include <QBuffer>

namespace orvane {
namespace {

/// The words of a line apart by "|", quoted ones in brackets; an error behind "!".
QString shape(const QByteArray& line) {
    const ScriptLine read = parseScriptLine(line);
    if (!read.error.isEmpty())
        return read.words.isEmpty() ? QLatin1Char('!') + read.error : "words and an error";
    QStringList words;
    for (const ScriptWord& word : read.words)
        words << (word.quoted ? QLatin1Char('[') + word.text + QLatin1Char(']') : word.text);
    return words.join(QLatin1Char('|'));
}

TEST(ScriptParser, ReadsWordsTextsAndComments) {
    const struct {
        QByteArray line;
        QString shape;
    } cases[] = {
        {"", ""},
        {"\r\n", ""},
        {"   \t ", ""},
        {"# a comment \"open", ""},
        {"start", "start"},
        {"\tclick  frmA.cmdB\t\r\n", "click|frmA.cmdB"},
        {"click frmA.cmdB # why", "click|frmA.cmdB"},
        {"set frmA.txtAmt(2) \"# no comment\"", "set|frmA.txtAmt(2)|[# no comment]"},
        {"pick f.c bare#sign", "pick|f.c|bare#sign"},
        {"set f.c \"\"", "set|f.c|[]"},
        {"set f.c \"say \\\"hi\\\" \\\\ \\n.\"", "set|f.c|[say \"hi\" \\ \n.]"},
        {"answer yes", "answer|yes"},
        {"answer \"yes\"", "answer|[yes]"},
        {"set f.c \"ÌYÁ 😀\"", "set|f.c|[ÌYÁ 😀]"},
        {"\xEF\xBB\xBFstart", "start"},
        {"set f.c \"open", "!a text without its closing quote"},
        {"set f.c \"open\\\"", "!a text without its closing quote"},
        {"set f.c \"a\\t\"", "!a backslash that is not followed by \", \\, n or u"},
        {"set f.c \"\\u001b[2J\\u00E9\"", "set|f.c|[\u001b[2J\u00e9]"},
        {"set f.c \"\\u0000\"", "!no character of four hexadecimal digits behind \\u"},
        {"set f.c \"\\u00xx\"", "!no character of four hexadecimal digits behind \\u"},
        {"set f.c \"\\u 12a\"", "!no character of four hexadecimal digits behind \\u"},
        {"set f.c \"a\\", "!a text without its closing quote"},
        {"set f.c \"a\"b", "!no blank behind a closing quote"},
        {"set f.c \"a\"\"b\"", "!no blank behind a closing quote"},
        {"set f.c a\"b", "!a quote inside a word"},
        {QByteArray("set f\0x", 7), "!a zero byte"},
        {"set f.c \"\xFF\"", "!bytes that are not UTF-8"},
        {"set f.c \xC3", "!bytes that are not UTF-8"},
        {"set f.c \"\xED\xA0\x80\"", "!bytes that are not UTF-8"},
        {QByteArray(maxScriptLine, 'a'), QString(maxScriptLine, QLatin1Char('a'))},
        {QByteArray(maxScriptLine + 1, 'a'), "!a line of more than 65536 bytes"},
    };
    for (const auto& one : cases)
        EXPECT_EQ(shape(one.line), one.shape) << one.line.left(60).toStdString();
}

TEST(EventLog, WritesOneLineEachAndNothingAfterAFailure) {
    QBuffer output;
    output.open(QIODevice::WriteOnly);
    EventLog log(output);
    log.box(Icon::Critical, "", "two\r\nlines \"and\" \\ more\n");
    log.box(Icon::None, " Error ", "\ttab");
    log.setLine(12);
    log.fail("because\nof this");
    log.box(Icon::Question, "", "late");
    log.fail("again");
    EXPECT_EQ(QString::fromUtf8(output.data()), "box critical \"\" \"two\\nlines \\\"and\\\" \\\\ more\\n\"\n"
                                                "box none \" Error \" \"\ttab\"\n"
                                                "FAIL line 12: because\\nof this\n");
    EXPECT_EQ(EventLog::oneLine("a\tb\nc\x1b[2J"), "a\\tb\\nc\\u001b[2J");
}

} // namespace
} // namespace orvane
