#include "books/DrugPrice.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

TEST(BaseCost, UndoesAMarkUp) {
    const struct {
        double stated, percent;
        std::optional<double> base;
    } cases[] = {{120, 20, 100}, {1000, 33, 751.88}, {2500, 0, 2500}, {0, 20, 0}, {100, -50, 200}, {120, -100, {}}};
    for (const auto& test : cases)
        EXPECT_EQ(baseCost(test.stated, test.percent), test.base) << test.stated << ' ' << test.percent;
}

} // namespace
} // namespace orvane
