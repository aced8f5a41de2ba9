#include "data/words/Csv.h"

#include <gtest/gtest.h>

using namespace orvane;

namespace {

/// The records as texts: fields joined by "|", a field without a value as "-".
QStringList read(const QByteArray& content, std::optional<CsvFault>* fault = nullptr) {
    CsvReader reader(content);
    QStringList records;
    while (const auto record = reader.next()) {
        QStringList fields;
        for (const CsvField& field : record->fields)
            fields.append(field.isNoValue() ? "-" : field.text);
        records.append(QStringLiteral("%1:%2").arg(record->line).arg(fields.join(u'|')));
    }
    if (fault)
        *fault = reader.fault();
    else
        EXPECT_FALSE(reader.fault()) << content.toStdString();
    return records;
}

TEST(Csv, readsWhatTheFormatAllows) {
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
    };
    for (const Case& c : cases)
        EXPECT_EQ(read(c.content), c.records) << c.content.toStdString();
}

TEST(Csv, namesTheLineAndTheColumnOfAFault) {
    struct Case {
        QByteArray content;
        int recordsBefore, line, column;
    };
    const Case cases[] = {
        {"a,b\n1,\"open\nnever closed", 1, 2, 2},
        {"a\nx\"y\n", 1, 2, 1},
        {"\"a\"b\n", 0, 1, 1},
        {"a,b\n1,2\n\xFF\xFE,3\n", 2, 3, 1},
        {"a,b\n1,\xC3\n", 1, 2, 2},
        {QByteArray("a,b\n1,x\0y\n", 10), 1, 2, 2},
        {"\"1\n2\",\"3\n4\"!\n", 0, 3, 2},
    };
    for (const Case& c : cases) {
        std::optional<CsvFault> fault;
        EXPECT_EQ(read(c.content, &fault).size(), c.recordsBefore) << c.content.toStdString();
        ASSERT_TRUE(fault) << c.content.toStdString();
        EXPECT_EQ(fault->line, c.line) << c.content.toStdString();
        EXPECT_EQ(fault->column, c.column) << c.content.toStdString();
    }
}

} // namespace
