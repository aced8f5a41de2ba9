#include "support/HostileTexts.h"

namespace orvane {

namespace {

/// 10,000 letters in no order, so that no engine can make them short.
QString longText() {
    QString text;
    for (quint32 i = 0, state = 1; i < 10000; ++i) {
        state = state * 1664525u + 1013904223u;
        text += QChar(u'A' + (state >> 16) % 26);
    }
    return text;
}

} // namespace

const QList<QString>& hostileTexts() {
    static const QList<QString> texts = {
        // quotes, comments and statements
        u"'"_qs, u"''"_qs, u"O'NEILL"_qs, u"\""_qs, u"\"\"QUOTED\"\""_qs, u"\\"_qs, u"\\' \\\" \\n"_qs, u";"_qs,
        u"--"_qs, u"/* open"_qs, u"*/"_qs, u"'; drop table hPatients; --"_qs, u"' or 1=1 --"_qs, u"go"_qs, u"\ngo\n"_qs,
        u"N'x' E'\\x' U&'\\0041'"_qs,
        // wildcards, marks and brackets
        u"%"_qs, u"_"_qs, u"["_qs, u"]"_qs, u"[^a-z]%_\\%"_qs, u"?"_qs, u":name @p1"_qs, u"$1 $$ $body$"_qs,
        u"{brackets} {0}"_qs, u"%1 %2 %s %n"_qs, u" [P/0002]#001OFL0000002"_qs,
        // numbers that are none
        u"null"_qs, u"1e999"_qs, u"NaN"_qs, u"0x10"_qs, u"-1.5e-400"_qs,
        // formulas
        u"=1+1"_qs, u"+1"_qs, u"-2"_qs, u"@SUM(A1)"_qs,
        // blanks, lines and control characters
        u"TRAILING   "_qs, u"   "_qs, u"TAB\tTAB"_qs, u"LINE\nLINE"_qs, u"LONE\rCR"_qs, u"\x01\x1b[31m\x7f"_qs,
        "NUL\0NUL",
        // letters
        u"\u202e\u05d0\u05d1\u05d2 \u0627\u0644\u0641"_qs, u"e\u0301\u0323\u0308 \ufeff\u200b"_qs,
        u"\U0001f469\u200d\U0001f469\u200d\U0001f467"_qs, u"\U0001d4b3\U00010348"_qs, u"\u0130\u0131\u00df\ufb00"_qs,
        u"HIGH"_qs + QChar(0xd83d), QChar(0xdc00) + u"LOW"_qs, longText()};
    return texts;
}

bool isStorable(const QString& text) {
    return !text.contains(QChar(u'\0')) && text.isValidUtf16();
}

} // namespace orvane
