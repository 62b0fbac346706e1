#include "land/stock_nitrogen.h"

#include <gtest/gtest.h>

#include "core/numbers.h"

namespace kel {

TEST(StockNitrogen, LineIsConstantTimesNumberInShortestText) {
    const struct {
        const char* type;
        float number;
        const char* total_n;
    } lines[] = {{"1 sheep", 100, "900"},
                 {"1 fattening lamb 6-12 months", 1, "3.2"},
                 {"1 fattened pig, 3.5 to 7.5 weeks (18 kg)", 350, "98"},
                 {"", 3, "0"}};
    for (const auto& [type, number, total_n] : lines)
        EXPECT_EQ(shortest_text(stock_line_nitrogen(type, number, 58).total_n_kg_per_year), total_n) << type;
}

TEST(StockNitrogen, AnythingButTheExactTextKeepsTheWorkingConstant) {
    for (const char* type : {"1 Sheep", "1 sheep ", "sheep"}) {
        EXPECT_FALSE(stock_nitrogen(type)) << type;
        EXPECT_EQ(stock_line_nitrogen(type, 3, 58).unit_n_kg_per_year, 58) << type;
    }
}

}  // namespace kel
