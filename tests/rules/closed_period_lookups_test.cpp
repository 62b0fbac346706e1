#include "rules/closed_period_lookups.h"

#include "tests/support/farm_files.h"

namespace kel {

class ClosedPeriodLookups : public test::farm_test {
  protected:
    void SetUp() override {
        open_farm({{"Home", "10"}, {"Brae", "5"}});
        add_row(state.assess_file, "Land",
                {{"Field Area ID", "Home"},
                 {"Crop", "Grass / Other"},
                 {"September", "Closed"},
                 {"October", "Closed"},
                 {"May", "4.25"},
                 {"June", "0"}});
        add_row(state.assess_file, "Land",
                {{"Field Area ID", "Home"}, {"Crop", "Grass / Grass"}, {"May", "9"}});
        add_row(state.assess_file, "Land", {{"Field Area ID", "Brae"}});
    }

    std::string link_last_year(const std::string& pair) {
        state.prev1_file = make_farm("last.kel", {{"Home", "10"}}, 2023);
        add_row(state.prev1_file, "Land", {{"Field Area ID", "Home"}, {"Crop", pair}});
        return state.prev1_file;
    }
};

TEST_F(ClosedPeriodLookups, ManureGoesByTheMonthWhateverTheDayAndYear) {
    const database db(state.assess_file);
    for (const date d : {make_date(1, 10, 2025), make_date(31, 10, 2025), make_date(15, 10, 1999)})
        EXPECT_EQ(closed_for_manure(db, "Home", d), closed_answer::closed) << short_date_text(d);
    for (const date d :
         {make_date(31, 5, 2025), make_date(1, 6, 2025), make_date(31, 8, 2025), make_date(1, 11, 2025)})
        EXPECT_EQ(closed_for_manure(db, "Home", d), closed_answer::open) << short_date_text(d);
}

TEST_F(ClosedPeriodLookups, InorganicGoesByTheSecondCropOfTheFirstRow) {
    const database db(state.assess_file);
    const auto answer = [&](date d) { return closed_for_inorganic(db, "Home", d, state); };
    EXPECT_EQ(answer(make_date(15, 2, 2025)), closed_answer::closed);
    EXPECT_EQ(answer(make_date(16, 2, 2025)), closed_answer::open);
    EXPECT_EQ(answer(make_date(31, 8, 2025)), closed_answer::open);
    EXPECT_EQ(answer(make_date(1, 9, 2025)), closed_answer::closed);
    EXPECT_EQ(answer(make_date(19, 12, 2024)), closed_answer::closed);
    state.farm_zone = "Moray/Aberdeenshire/Banff and Buchan KEL";
    EXPECT_EQ(answer(make_date(20, 2, 2025)), closed_answer::closed);
    EXPECT_EQ(answer(make_date(21, 2, 2025)), closed_answer::open);
}

TEST_F(ClosedPeriodLookups, LastYearsFileHasItsOwnPairAndBaseYear) {
    const std::string last = link_last_year("Other / Grass");
    EXPECT_EQ(closed_for_inorganic(last, "Home", make_date(14, 9, 2024), state), closed_answer::open);
    EXPECT_EQ(closed_for_inorganic(last, "Home", make_date(15, 9, 2024), state), closed_answer::closed);
    EXPECT_EQ(closed_for_inorganic(last, "Home", make_date(15, 2, 2024), state), closed_answer::closed);
    EXPECT_EQ(closed_for_inorganic(last, "Home", make_date(1, 4, 2025), state), closed_answer::closed);
    EXPECT_EQ(closed_for_inorganic(state.assess_file, "Home", make_date(1, 4, 2025), state),
              closed_answer::open);
}

TEST_F(ClosedPeriodLookups, AFileThatIsNotWorkedOnIsOpenForInorganic) {
    const std::string other = link_last_year("Grass / Grass");
    state.prev1_file.clear();
    EXPECT_EQ(closed_for_inorganic(other, "Home", make_date(1, 1, 2024), state), closed_answer::open);
    EXPECT_EQ(closed_for_inorganic(other, "Brae", make_date(1, 1, 2024), state),
              closed_answer::field_unknown);
}

TEST_F(ClosedPeriodLookups, AFieldWithoutARowIsUnknown) {
    const database db(state.assess_file);
    const date d = make_date(1, 1, 2025);
    for (const auto field : {"Moss", "home", "Home ", ""}) {
        EXPECT_EQ(closed_for_manure(db, field, d), closed_answer::field_unknown) << field;
        EXPECT_EQ(closed_for_inorganic(db, field, d, state), closed_answer::field_unknown) << field;
        EXPECT_EQ(field_crop_pair(db, field), "Field not assessed") << field;
        EXPECT_EQ(land_area_in_month(db, field, 5), -1.0F) << field;
        EXPECT_EQ(land_cell_in_month(db, field, 5), "Field not assessed") << field;
    }
}

TEST_F(ClosedPeriodLookups, ARowWithoutAPairIsUnknownForInorganicOnly) {
    const database db(state.assess_file);
    EXPECT_EQ(field_crop_pair(db, "Brae"), "Field not assessed");
    EXPECT_EQ(closed_for_inorganic(db, "Brae", make_date(1, 1, 2025), state), closed_answer::field_unknown);
    EXPECT_EQ(closed_for_manure(db, "Brae", make_date(1, 10, 2025)), closed_answer::open);
}

TEST_F(ClosedPeriodLookups, WithoutALinkedFileThereIsNoAnswerAndAMissingFileIsAnError) {
    const date d = make_date(1, 1, 2024);
    EXPECT_EQ(closed_for_manure("", "Home", d), closed_answer::field_unknown);
    EXPECT_EQ(closed_for_inorganic("", "Home", d, state), closed_answer::field_unknown);
    EXPECT_THROW(closed_for_manure(path("gone.kel"), "Home", d), file_error);
}

TEST_F(ClosedPeriodLookups, MonthCellsAsTheyStandAndAsArea) {
    const database db(state.assess_file);
    const struct {
        int month;
        std::string_view cell;
        float area;
    } cases[] = {{5, "4.25", 4.25F}, {6, "0", 0.0F}, {7, "", 0.0F}, {9, "Closed", 0.0F}, {12, "", 0.0F}};
    for (const auto& c : cases) {
        EXPECT_EQ(land_cell_in_month(db, "Home", c.month), c.cell) << c.month;
        EXPECT_EQ(land_area_in_month(db, "Home", c.month), c.area) << c.month;
    }
    EXPECT_EQ(field_crop_pair(db, "Home"), "Grass / Other");
}

TEST(ClosedMonthAccount, TellsWhatWasSettledAndWhatHasChangedSince) {
    const auto told = [](const land_use& use, int month) {
        explanation why("");
        closed_for_manure(use, make_date(5, month, 2025), &why);
        std::string text;
        for (const explanation_line& line : why.lines())
            text += line.text + '\n';
        return text;
    };
    land_use use{"Grass / Other", {}, "Sands"};
    use.closed_months.at(9) = true;
    const auto has = [&](int month, const char* part) {
        return told(use, month).find(part) != std::string::npos;
    };
    EXPECT_TRUE(has(10, "October is closed to slurry"));
    EXPECT_FALSE(has(10, "have changed since"));
    EXPECT_TRUE(has(8, "August is not closed to slurry"));
    EXPECT_TRUE(has(8, "have changed since"));  // with this soil and crop it would be
    EXPECT_FALSE(has(7, "have changed since"));
    use.soil = "Peaty soils";
    EXPECT_TRUE(has(10, "have changed since"));
    EXPECT_TRUE(has(10, "here no month is closed"));
    use.crop_pair.clear();
    EXPECT_TRUE(has(10, "October is closed to slurry"));
    EXPECT_TRUE(has(8, "has not been entered in Step 2"));
}

}  // namespace kel
