#include "data/words/Csv.h"

#include <gtest/gtest.h>

using namespace orvane;

namespace {

/// The records as texts: the line, then fields joined by "|", a field without a value as "-"; at the end a fault's
/// line and column.
QStringList read(const QByteArray& content) {
    CsvReader reader(content);
    QStringList records;
    while (const auto record = reader.next()) {
        QStringList fields;
        for (const CsvField& field : record->fields)
            fields.append(field.isNoValue() ? "-" : field.text);
        records.append(QStringLiteral("%1:%2").arg(record->line).arg(fields.join(u'|')));
    }
    if (const auto fault = reader.fault())
        records.append(QStringLiteral("fault %1,%2").arg(fault->line).arg(fault->column));
    return records;
}

TEST(Csv, readsWhatTheFormatAllowsAndNamesTheLineAndTheColumnOfAFault) {
    struct Case {
        QByteArray content;
        QStringList records;
    };
    const Case cases[] = {
        {"", {}},
        {"\xEF\xBB\xBF", {}},
        {"\xEF\xBB\xBF"
         "a,b\r\n1,2\r\n",
         {"1:a|b", "2:1|2"}},
        {"a,b\n1,2", {"1:a|b", "2:1|2"}},
        {"a,\n,b\n", {"1:a|-", "2:-|b"}},
        {"\"\",x\n", {"1:|x"}},
        {"\"O'NEILL, \"\"JIM\"\"\",x\n", {"1:O'NEILL, \"JIM\"|x"}},
        {"\"two\r\nlines\",x\nnext,y\n", {"1:two\r\nlines|x", "3:next|y"}},
        {"\n\r\na\n\n\nb\n", {"3:a", "6:b"}},
        {"  a , b\n", {"1:  a | b"}},
        {"\xE2\x82\xA6"
         "500,\xF0\x9F\x98\x80\n",
         {"1:\u20A6500|\U0001F600"}},
        {"a\rb,c\n", {"1:a\rb|c"}},
        {"a,b\n1,\"open\nnever closed", {"1:a|b", "fault 2,2"}},
        {"a\nx\"y\n", {"1:a", "fault 2,1"}},
        {"\"a\"b\n", {"fault 1,1"}},
        {"a,b\n1,\xC3\n", {"1:a|b", "fault 2,2"}},
        {QByteArray("a,b\n1,x\0y\n", 10), {"1:a|b", "fault 2,2"}},
        {"\"1\n2\",\"3\n4\"!\n", {"fault 3,2"}},
    };
    for (const Case& c : cases)
        EXPECT_EQ(read(c.content), c.records) << c.content.toStdString();
}

} // namespace
