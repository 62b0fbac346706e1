#include "rules/closed_periods.h"

#include <gtest/gtest.h>

#include <vector>

#include "rules/crop_catalogue.h"

namespace kel {

constexpr std::string_view moray = "Moray/Aberdeenshire/Banff and Buchan KEL";
constexpr std::string_view fife = "Strathmore and Fife KEL";

TEST(ClosedPeriods, SlurryMonthsCloseBySoilAndSecondCrop) {
    const struct {
        std::string_view soil, second_crop;
        std::vector<int> months;
    } cases[] = {
        {"Sandy loams", "Grass", {10}},
        {"Shallow soils", "Autumn sown crop", {10}},
        {"Sands", "Other", {8, 9, 10}},
        {"Other mineral soils", "Other", {}},
        {"Humose soils", "Grass", {}},
        {"Peaty soils", "Other", {}},
        {"sands", "Other", {}},
        {"", "Other", {}},
        {"Sands", "", {}},
        {"Sands", "In grass", {}},  // the shown word is not the stored type
    };
    for (const auto& c : cases) {
        const auto months = closed_months(c.soil, c.second_crop);
        EXPECT_EQ(std::vector<int>(months.begin(), months.end()), c.months)
            << c.soil << ", " << c.second_crop;
    }
}

TEST(ClosedPeriods, CalendarClosesBothEndDaysByZoneAndSecondCrop) {
    const struct {
        std::string_view zone, second_crop;
        date last_closed, first_closed;
    } cases[] = {
        {moray, "Grass", make_date(20, 2, 2025), make_date(15, 9, 2025)},
        {moray, "Autumn sown crop", make_date(20, 2, 2025), make_date(1, 9, 2025)},
        {moray, "Other", make_date(20, 2, 2025), make_date(1, 9, 2025)},
        {fife, "Grass", make_date(15, 2, 2025), make_date(15, 9, 2025)},
        {fife, "Autumn sown crop", make_date(15, 2, 2025), make_date(1, 9, 2025)},
        {fife, "Other", make_date(15, 2, 2025), make_date(1, 9, 2025)},
        {"", "", make_date(15, 2, 2025), make_date(1, 9, 2025)},
    };
    for (const auto& c : cases) {
        const auto closed = [&](date d) { return closed_by_calendar(d, 2025, c.zone, c.second_crop); };
        EXPECT_TRUE(closed(c.last_closed)) << c.zone << ", " << c.second_crop;
        EXPECT_FALSE(closed(add_days(c.last_closed, 1))) << c.zone << ", " << c.second_crop;
        EXPECT_FALSE(closed(add_days(c.first_closed, -1))) << c.zone << ", " << c.second_crop;
        EXPECT_TRUE(closed(c.first_closed)) << c.zone << ", " << c.second_crop;
    }
}

TEST(ClosedPeriods, DatesOutsideTheBaseYearAreClosed) {
    for (const date d : {make_date(19, 12, 2024), make_date(1, 6, 2024), make_date(1, 6, 2026)})
        EXPECT_TRUE(closed_by_calendar(d, 2025, fife, "Grass")) << short_date_text(d);
}

TEST(ClosedPeriods, PairsOfAllTypesAreComposedAndCutBack) {
    for (const field_use& first : field_uses())
        for (const field_use& second : field_uses()) {
            const crop_pair pair{std::string(first.stored), std::string(second.stored)};
            EXPECT_EQ(split_crop_pair(compose_crop_pair(first.stored, second.stored)), pair);
        }
    EXPECT_EQ(compose_crop_pair("Grass", "Autumn sown crop"), "Grass / Autumn sown crop");
    for (const auto text : {"", "Grass", "Field not assessed"})
        EXPECT_FALSE(split_crop_pair(text)) << text;
    EXPECT_EQ(split_crop_pair("/"), crop_pair{});
}

TEST(ClosedPeriods, EveryUseIsACropTypeOfTheCatalogueAndFoundBothWays) {
    EXPECT_EQ(stored_crop_type("To be sown with an autumn sown crop"), "Autumn sown crop");
    for (const field_use& use : field_uses()) {
        EXPECT_EQ(stored_crop_type(use.shown), use.stored);
        EXPECT_EQ(shown_crop_type(use.stored), use.shown);
        EXPECT_FALSE(crop_type_members(use.stored).empty()) << use.stored;
    }
    EXPECT_FALSE(stored_crop_type(""));
    EXPECT_FALSE(shown_crop_type("In grass"));
}

}  // namespace kel
