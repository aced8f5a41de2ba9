// How a patient answers a search, and who comes first.
#include "patients/PatientLines.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

TEST(PatientMatchTest, NumbersNamesAndTheirParts) {
    const std::string line = patientLine("00123/001", "H-77", "+234 803 123-4567", "O'Neill-Ádéyemí  bola");
    using enum PatientMatch;
    const std::pair<const char*, PatientMatch> searches[] = {{"00123/001", Number},
                                                             {" 123/001 ", Number},
                                                             {"123", Number},
                                                             {"0123", Number},
                                                             {"h-77", OtherNumber},
                                                             {"08031234567", OtherNumber},
                                                             {"0803 123", AnyPart},
                                                             {"0012", NumberHead},
                                                             {"oneill ade", NameHead},
                                                             {"BOLA O’NEILL", WordHeads},
                                                             {"adeyemi 0803", WordHeads},
                                                             {"yemi ola", AnyPart},
                                                             {"31234", AnyPart},
                                                             {"bola x", None},
                                                             {"12", AnyPart},
                                                             {" - ", None},
                                                             {"", None}};
    for (const auto& [text, match] : searches)
        EXPECT_EQ(matchOf(line, PatientQuery(text)), match) << text;
    EXPECT_EQ(matchOf(patientLine("P/0001", {}, {}, {}), PatientQuery("P")), NumberHead) << "no short number";
    EXPECT_EQ(matchOf(patientLine("A\n1\t", "B", {}, {}), PatientQuery("b")), OtherNumber) << "a line stays one line";
}

TEST(PatientLinesTest, FindsEveryWordWhereverItStands) {
    const std::string text = std::string(150, 'a') + "bab" + std::string(61, 'c') + "ba";
    for (const char* word : {"a", "b", "ba", "bab", "ab", "cb", "aab", "ba!", "c", "abc"})
        for (std::size_t from = 0; from < text.size(); ++from)
            ASSERT_EQ(findWord(text, word, from), text.find(word, from)) << word << ' ' << from;
}

TEST(PatientLinesTest, TheBetterOnesAreNotCrowdedOut) {
    PatientLines lines;
    for (int i = 1; i <= 300; ++i)
        lines.add(patientLine(QString("%1/001").arg(i, 6, 10, QChar('0')), {}, "0801234567", "BABAYO"));
    lines.add(patientLine("000999/001", {}, {}, "ADA YOMI"));
    const auto found = [&](const char* text) {
        QStringList numbers;
        for (const std::string_view line : lines.find(PatientQuery(text), 2))
            numbers << QString::fromStdString(std::string(numberIn(line))).left(6);
        return numbers.join(' ');
    };
    EXPECT_EQ(found("yo"), "000999 000001 000002");
    EXPECT_EQ(found("23"), "000023 000001 000002") << "a short number lies behind others that hold its digits";
    EXPECT_EQ(found("yomi ad"), "000999");
    EXPECT_EQ(found("BABAYO"), "000001 000002");
    EXPECT_EQ(found("zz") + found("-"), "");
}

} // namespace
} // namespace orvane
