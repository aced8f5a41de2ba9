#include "data/words/FigToWrd.h"
#include "data/words/Money.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace orvane {

TEST(Words, AreThoseOfTheRecords) {
    const struct {
        double amount;
        const char* words;
    } cases[] = {
        {0, " Naira"},
        {0.75, " Naira and Seventy Five kobo only"},
        {2531.50, "Two Thousand, Five Hundred And Thirty One Naira and Fifty kobo only"},
        {100000, "One Hundred Thousand Naira"},
        {1000000, "One Million Naira"},
        {18, "Eightteen Naira"},
        {16.17, "Sixteen Naira and Seventeen kobo only"},
        {40, "Fourty Naira"},
        {110, "One Hundred And Ten Naira"},
        {0.29, " Naira and Twenty Nine kobo only"},
        {1.15, "One Naira and Fifteen kobo only"},
        {4096.10, "Four Thousand, Ninety Six Naira and Ten kobo only"},
        {1001, "One Thousand, One Naira"},
        {999999999999.99,
         "Nine Hundred And Ninety Nine Billion, Nine Hundred And Ninety Nine Million, Nine Hundred And Ninety Nine "
         "Thousand, Nine Hundred And Ninety Nine Naira and Ninety Nine kobo only"},
        {1000000000000.0, "***"},
        {std::nan(""), "***"},
        {std::numeric_limits<double>::infinity(), "***"},
        {-5, " Naira"},
    };
    for (const auto& one : cases)
        EXPECT_EQ(figToWrd().amountToWords(one.amount).toStdString(), one.words) << one.amount;
}

TEST(Words, ObeyTheirOptions) {
    figToWrd words;
    words.setLetterCase(1);
    words.setDelimiter(2);
    words.setPadding(2);
    EXPECT_EQ(words.amountToWords(1234567),
              QStringLiteral("***ONE MILLION-TWO HUNDRED AND THIRTY FOUR THOUSAND-FIVE HUNDRED AND SIXTY "
                             "SEVEN NAIRA***"));
    words.setLetterCase(2);
    words.setDelimiter(1);
    words.setPadding(1);
    EXPECT_EQ(words.amountToWords(2001), "*two thousand one naira*");
}

TEST(Formats, ShowAmountsAsTheScreensDo) {
    const struct {
        double value;
        const char* format;
        const char* text;
    } cases[] = {
        {0, "#,###.00", ".00"},
        {0.5, "#,###.00", ".50"},
        {-0.5, "#,###.00", "-.50"},
        {999, "#,###.00", "999.00"},
        {1234567.891, "#,###.00", "1,234,567.89"},
        {-1234.5, "#,###.00", "-1,234.50"},
        {-0.001, "#,###.00", ".00"},
        {999.995, "#,###.00", "1,000.00"},
        {0, "#,##;(#,##0)", ""},
        {1234, "#,##;(#,##0)", "1,234"},
        {-1234.4, "#,##;(#,##0)", "(1,234)"},
        {0, "0.00", "0.00"},
        {1234.5, "0.00", "1234.50"},
        {0, "#,##0.00", "0.00"},
        {999999999999.99, "#,##0.00", "999,999,999,999.99"},
    };
    for (const auto& one : cases) {
        EXPECT_EQ(formatNumber(one.value, QString::fromUtf8(one.format)).toStdString(), one.text)
            << one.value << " " << one.format;
    }
}

TEST(Amounts, AreReadOnlyFromPlainNumbers) {
    const struct {
        const char* text;
        double value;
    } good[] = {{"1,234.50", 1234.5}, {" 12 ", 12}, {"-0.5", -0.5}, {".5", 0.5}, {"5.", 5}, {"1,2,3", 123}, {"007", 7}};
    for (const auto& one : good)
        EXPECT_EQ(parseAmount(QString::fromUtf8(one.text)), one.value) << one.text;
    for (const char* text :
         {"", " ", ".", "-", "abc", "12a", "inf", "nan", "1e5", "0x10", "1.2.3", ",", "--5", "5-", "1 000", "12,"})
        EXPECT_EQ(parseAmount(QString::fromUtf8(text)), std::nullopt) << text;
    EXPECT_EQ(parseAmount(QString(400, u'9')), std::nullopt) << "no amount holds it";
}

TEST(Amounts, RoundHalfAwayFromZeroOnTheDecimalText) {
    const struct {
        double value;
        double rounded;
    } cases[] = {{1.005, 1.01},   {2.675, 2.68},    {-1.005, -1.01},
                 {1.004999, 1.0}, {0.1 + 0.2, 0.3}, {1e12 + 0.125, 1e12 + 0.13},
                 {0, 0},          {99.995, 100}};
    for (const auto& one : cases)
        EXPECT_EQ(round2(one.value), one.rounded) << one.value;
}

} // namespace orvane
