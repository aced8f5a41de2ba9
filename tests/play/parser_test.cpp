// Lines of a script, well formed and hostile.
#include "play/EventLog.h"
#include "play/ScriptParser.h"

#include <QBuffer>
#include <QRandomGenerator>

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

TEST(ScriptParser, TakesAnyBytes) {
    QRandomGenerator random(20260314);
    const QByteArray alphabet("\"\\n #\t\r\nab.\xC3\xA9\xFF\0(", 17);
    for (int round = 0; round < 20000; ++round) {
        QByteArray line;
        for (int left = random.bounded(24); left > 0; --left)
            line += round % 2 ? char(random.bounded(256)) : alphabet.at(random.bounded(int(alphabet.size())));
        ASSERT_NE(shape(line), "words and an error");
    }
}

TEST(ScriptParser, ReadsBackWhatTheEventLogWrites) {
    QRandomGenerator random(7);
    const QString alphabet = "\"\\n\n#\t aÌ😀\u001b\u007f\u0085";
    for (int round = 0; round < 2000; ++round) {
        QString text;
        for (int left = random.bounded(12); left > 0; --left)
            text += alphabet.at(random.bounded(int(alphabet.size())));
        text = QString::fromUtf8(text.toUtf8()).remove(QChar::ReplacementCharacter).remove(QLatin1Char('?'));
        const ScriptLine read = parseScriptLine(EventLog::quoted(text).toUtf8());
        ASSERT_EQ(read.error, "");
        ASSERT_EQ(read.words, (QVector<ScriptWord>{{text, true}}));
    }
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
