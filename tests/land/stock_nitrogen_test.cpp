#include "land/stock_nitrogen.h"

#include <gtest/gtest.h>

#include "core/numbers.h"

namespace kel {

TEST(StockNitrogen, LineIsConstantTimesNumberInShortestText) {
    struct line {
        const char* type;
        const char* number;
        const char* unit_n;
        const char* total_n;
    };
    const line lines[] = {
        {"1 sheep", "100", "9", "900"},
        {"1,000 laying hens (98% occupancy)", "2.5", "660", "1650"},
        {"1 fattening lamb 6-12 months", "1", "3.2", "3.2"},
        {"1 fattened pig, 3.5 to 7.5 weeks (18 kg)", "350", "0.28", "98"},
        {"1 dairy cow (650 kg)", "0", "116", "0"},
    };
    for (const line& l : lines) {
        const stock_line n = stock_line_nitrogen(l.type, leading_single(l.number), 0);
        EXPECT_EQ(shortest_text(n.unit_n_kg_per_year), l.unit_n) << l.type;
        EXPECT_EQ(shortest_text(n.total_n_kg_per_year), l.total_n) << l.type;
    }
}

TEST(StockNitrogen, AnythingButTheExactTextKeepsTheWorkingConstantAndAnEmptyTypeHasNone) {
    for (const char* type : {"1 Sheep", "1 sheep ", "sheep", "1 llama"}) {
        EXPECT_FALSE(stock_nitrogen(type)) << type;
        EXPECT_EQ(stock_line_nitrogen(type, 3, 58).unit_n_kg_per_year, 58) << type;
        EXPECT_EQ(stock_line_nitrogen(type, 3, 58).total_n_kg_per_year, 174) << type;
    }
    EXPECT_EQ(stock_line_nitrogen("", 3, 58).unit_n_kg_per_year, 0);
    EXPECT_EQ(stock_line_nitrogen("", 3, 58).total_n_kg_per_year, 0);
}

}  // namespace kel
