#include "data/dialect/Value.h"

#include <gtest/gtest.h>

namespace orvane {

TEST(Value, ReadsDatesAndLeavesOtherTextsAsTheyAre) {
    const struct {
        const char* text;
        const char* date; ///< as dateFromText gives it
        const char* at;   ///< as dateTimeFromText gives it
    } cases[] = {
        {"2026-03-14", "QDate 2026-03-14", "QDateTime 2026-03-14 00:00:00"},
        {"2026-03-14 09:30:05", "QDate 2026-03-14", "QDateTime 2026-03-14 09:30:05"},
        {"2026-03-14T09:30:05", "QDate 2026-03-14", "QDateTime 2026-03-14 09:30:05"},
        {"2026-03-14 09:30:05.123456", "QDate 2026-03-14", "QDateTime 2026-03-14 09:30:05"},
        {"2026-03-14 24:00:00", "QDate 2026-03-14", "QString 2026-03-14 24:00:00"},
        {"2026-03-14 09:30:xx", "QDate 2026-03-14", "QString 2026-03-14 09:30:xx"},
        {"2026-02-29", "QString 2026-02-29", "QString 2026-02-29"},
        {"2026-+3-14", "QString 2026-+3-14", "QString 2026-+3-14"},
        {"2026-03-1", "QString 2026-03-1", "QString 2026-03-1"},
        {"", "QString ", "QString "},
    };
    const auto shown = [](const QVariant& value) {
        return std::string(value.typeName()) + ' ' + valueText(value).toStdString();
    };
    for (const auto& one : cases) {
        EXPECT_EQ(shown(dateFromText(QString::fromUtf8(one.text))), one.date) << one.text;
        EXPECT_EQ(shown(dateTimeFromText(QString::fromUtf8(one.text))), one.at) << one.text;
    }
}

} // namespace orvane
