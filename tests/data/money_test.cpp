#include "data/words/FigToWrd.h"
#include "data/words/Money.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace orvane {

TEST(Words, AreThoseOfTheRecords) {
    const std::pair<double, const char*> cases[] = {
        {0, " Naira"},
        {2531.50, "Two Thousand, Five Hundred And Thirty One Naira and Fifty kobo only"},
        {1000000, "One Million Naira"},
        {18, "Eightteen Naira"},
        {16.17, "Sixteen Naira and Seventeen kobo only"},
        {40, "Fourty Naira"},
        {0.29, " Naira and Twenty Nine kobo only"},
        {1.15, "One Naira and Fifteen kobo only"},
        {1001, "One Thousand, One Naira"},
        {999999999999.99,
         "Nine Hundred And Ninety Nine Billion, Nine Hundred And Ninety Nine Million, Nine Hundred And Ninety Nine "
         "Thousand, Nine Hundred And Ninety Nine Naira and Ninety Nine kobo only"},
        {1000000000000.0, "***"},
        {std::nan(""), "***"},
        {std::numeric_limits<double>::infinity(), "***"},
        {-5, " Naira"}};
    for (const auto& [amount, words] : cases)
        EXPECT_EQ(figToWrd().amountToWords(amount).toStdString(), words) << amount;
}

TEST(Words, ObeyTheirOptions) {
    const struct {
        int letterCase, delimiter, padding;
        double amount;
        const char* words;
    } cases[] = {
        {1, 2, 2, 1234567, "***ONE MILLION-TWO HUNDRED AND THIRTY FOUR THOUSAND-FIVE HUNDRED AND SIXTY SEVEN NAIRA***"},
        {2, 1, 1, 2001, "*two thousand one naira*"}};
    for (const auto& one : cases) {
        figToWrd words;
        words.setLetterCase(one.letterCase);
        words.setDelimiter(one.delimiter);
        words.setPadding(one.padding);
        EXPECT_EQ(words.amountToWords(one.amount).toStdString(), one.words);
    }
}

TEST(Formats, ShowAmountsAsTheScreensDo) {
    const struct {
        double value;
        const char* format;
        const char* text;
    } cases[] = {{0, "#,###.00", ".00"},
                 {0.5, "#,###.00", ".50"},
                 {-0.5, "#,###.00", "-.50"},
                 {1234567.891, "#,###.00", "1,234,567.89"},
                 {-1234.5, "#,###.00", "-1,234.50"},
                 {-0.001, "#,###.00", ".00"},
                 {999.995, "#,###.00", "1,000.00"},
                 {0, "#,##;(#,##0)", ""},
                 {1234, "#,##;(#,##0)", "1,234"},
                 {-1234.4, "#,##;(#,##0)", "(1,234)"},
                 {1234, "0.00", "1234.00"},
                 {999999999999.99, "#,##0.00", "999,999,999,999.99"}};
    for (const auto& one : cases)
        EXPECT_EQ(formatNumber(one.value, one.format).toStdString(), one.text) << one.value << " " << one.format;
}

TEST(Amounts, AreReadOnlyFromPlainNumbers) {
    const std::pair<const char*, double> good[] = {
        {"1,234.50", 1234.5}, {" 12 ", 12}, {"-0.5", -0.5}, {".5", 0.5}, {"5.", 5}, {"12,345,678.5", 12345678.5}, {"007", 7}};
    for (const auto& [text, value] : good)
        EXPECT_EQ(parseAmount(text), value) << text;
    for (const char* text :
         {"", " ", ".", "-", "abc", "12a", "inf", "nan", "1e5", "0x10", "1.2.3", ",", "--5", "5-", "1 000", "12,", "1,2,3", "1,23", "1234,567", ",123", "0.004", "-0.0049"})
        EXPECT_EQ(parseAmount(text), std::nullopt) << text;
    EXPECT_EQ(parseAmount(QString(400, u'9')), std::nullopt) << "no amount holds it";
}

TEST(Amounts, RoundHalfAwayFromZeroOnTheDecimalText) {
    const std::pair<double, double> cases[] = {{1.005, 1.01},
                                               {2.675, 2.68},
                                               {-1.005, -1.01},
                                               {1.004999, 1.0},
                                               {0.1 + 0.2, 0.3},
                                               {99.995, 100.0},
                                               {1e12 + 0.125, 1e12 + 0.13}};
    for (const auto& [value, rounded] : cases)
        EXPECT_EQ(round2(value), rounded) << value;
}

} // namespace orvane
