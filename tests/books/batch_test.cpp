#include "books/Batch.h"
#include "support/Print.h"

#include <gtest/gtest.h>

namespace orvane {

TEST(Batch, AMonthsNameGivesItsCodeAndABatchItsNumber) {
    for (int month = 1; month <= 12; ++month)
        EXPECT_EQ(monthCode(monthName(month)).toInt(), month);
    EXPECT_EQ(batchNumber("2026", monthCode("March")), "2026/03");
    for (const char* text : {"", "march", "Marchx", "03"})
        EXPECT_EQ(monthCode(text), "") << text;
    for (const auto& [batch, value] : {std::pair("2026/03", 202603), {"", 0}, {"/03", 0}, {"2026/", 2026}})
        EXPECT_EQ(batchValue(batch), value) << batch;
}

TEST(Batch, AnInvoiceBearsThePaddedCodeOfItsClient) {
    const std::pair<qlonglong, const char*> codes[] = {{0, "0000"},        {7, "0007"},          {9999, "9999"},
                                                       {10000, "0010000"}, {1234567, "1234567"}, {91234567, "1234567"}};
    for (const auto& [code, padded] : codes)
        EXPECT_EQ(paddedClientCode(code), padded);
    EXPECT_EQ(invoiceNumber(paddedClientCode(7), "2026/03"), "0007/2026/03");
}

} // namespace orvane
