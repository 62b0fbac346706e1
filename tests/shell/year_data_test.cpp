// What becomes of the dated tables in a new year's file; the deletion is tested with the new year itself.
#include "shell/year_data.h"

#include <stdexcept>

#include "tests/shell/shell_fixture.h"

namespace kel::test {

class YearData : public shell_test {};

TEST_F(YearData, MovedDatesKeepRowsAndEmptyCells) {
    const std::string file = make_farm("farm.kel", {});
    add_row(file, "Crops", {{"Hdate p_crop", "2024-08-20"}, {"Sowing date", "2024-10-01"}});
    add_row(file, "Crops", {{"Hdate c_crop", "2025-09-02"}});
    add_row(file, "Inorganic N", {{"Date", "2025-03-01"}});
    add_row(file, "Manure_applic", {{"Date", "2025-02-28"}, {"Area Spread", "4"}});
    add_row(file, "Site", {{"End of season date", "2025-10-31"}});
    clear_year_data(file, 2, year_data_mode::move_dates);
    EXPECT_EQ(column_of(file, "Crops", "Hdate p_crop"), (texts{"2026-08-20", ""}));
    EXPECT_EQ(column_of(file, "Crops", "Hdate c_crop"), (texts{"", "2027-09-02"}));
    EXPECT_EQ(column_of(file, "Crops", "Sowing date"), (texts{"2026-10-01", ""}));
    EXPECT_EQ(column_of(file, "Inorganic N", "Date"), texts{"2027-03-01"});
    EXPECT_EQ(column_of(file, "Manure_applic", "Date"), texts{"2027-02-28"});
    EXPECT_EQ(column_of(file, "Manure_applic", "Area Spread"), texts{"4"});
    EXPECT_EQ(column_of(file, "Site", "End of season date"), texts{"2027-10-31"});
}

TEST_F(YearData, LeapDayWithoutItsDayMovesNothingAtAll) {
    const std::string file = make_farm("farm.kel", {});
    add_row(file, "Inorganic N", {{"Date", "2025-03-01"}});
    add_row(file, "Site", {{"End of season date", "2024-02-29"}});
    EXPECT_THROW(clear_year_data(file, 1, year_data_mode::move_dates), std::invalid_argument);
    EXPECT_EQ(column_of(file, "Inorganic N", "Date"), texts{"2025-03-01"});
    clear_year_data(file, 4, year_data_mode::move_dates);
    EXPECT_EQ(column_of(file, "Site", "End of season date"), texts{"2028-02-29"});
}

}  // namespace kel::test
