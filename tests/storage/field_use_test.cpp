// A field's use: what it is held against, in which order, and what it makes of the field's months.
#include "core/block_entry.h"
#include "tests/storage/storage_fixture.h"

namespace kel::test {

class FieldUse : public storage_test {
  protected:
    static constexpr const char* grass = "In grass";
    static constexpr const char* autumn = "To be sown with an autumn sown crop";
    static constexpr const char* other = "Other";

    bool enter(const char* first, const char* second, date harvest = make_date(10, 8, 2025)) {
        return plan.enter_field_use(0, first, second, harvest).closes;
    }
    void set_last_year(const std::string& pair) {
        link_last_year({{"Home", "10"}});
        add_row(state.prev1_file, "Land", {{"Field Area ID", "Home"}, {"Crop", pair}});
    }
    std::string pair() const { return plan.land().cell(0, plan_column::crop); }
};

TEST_F(FieldUse, LandIsFreeAfterTheHarvestAndSensitiveSoilsCloseMonths) {
    const struct {
        const char* soil;
        const char* first;
        const char* second;
        date harvest;
        const char* land;  // x: closed
    } cases[] = {
        {"Peaty soils", other, other, make_date(10, 8, 2025), "0 0 0 0 0 0 0 0 10 10 10 10"},
        {"Sandy loams", other, other, make_date(31, 1, 2025), "0 10 10 10 10 10 10 x x x 10 10"},
        {"Sands", autumn, grass, make_date(1, 2, 2025), "0 0 10 10 10 10 10 10 10 x 10 10"},
        {"Shallow soils", grass, autumn, make_date(18, 12, 2025), "10 10 10 10 10 10 10 10 10 x 10 10"},
        {"Humose soils", grass, grass, make_date(1, 6, 2025), "10 10 10 10 10 10 10 10 10 10 10 10"},
        // The month counts, not the year: the first days of the KEL year lie in December.
        {"Sands", other, other, make_date(20, 12, 2024), "0 0 0 0 0 0 0 x x x 0 0"},
    };
    for (const auto& c : cases) {
        open_plan(c.soil);
        ASSERT_TRUE(enter(c.first, c.second, c.harvest));
        std::string land;
        for (const std::string& month : land_months(0))
            land += (land.empty() ? "" : " ") + (month == "Closed" ? "x" : month);
        EXPECT_EQ(land, c.land) << c.soil << ": " << pair();
    }
}

TEST_F(FieldUse, EnteredAgainOpensTheMonthsClosedBeforeAlsoInTheFile) {
    open_plan("Sandy loams");
    ASSERT_TRUE(plan.enter_slurry_applic(0, spreading_column::january, "20").closes);
    ASSERT_TRUE(enter(other, other, make_date(31, 1, 2025)));
    ASSERT_TRUE(module.save_storage());
    EXPECT_EQ(stored("Land", "Applic_August"), texts{"Closed"});
    ASSERT_TRUE(enter(other, grass, make_date(31, 1, 2025)));
    EXPECT_EQ(pair(), "Other / Grass");
    EXPECT_EQ(land_months(0)[7], "10");
    EXPECT_EQ(spreading_months(0), (texts{"20", "", "", "", "", "", "", "", "", "Closed", "", ""}));
    ASSERT_TRUE(module.save_storage());
    EXPECT_EQ(stored("Land", "August"), texts{"10"});
    EXPECT_EQ(stored("Land", "Applic_August"), texts{""});
    EXPECT_EQ(stored("Land", "Applic_October"), texts{"Closed"});
    const opening shown = plan.click_land(0, plan_column::crop);
    EXPECT_EQ(shown.parts.at(0).text, other);
    EXPECT_EQ(shown.parts.at(1).text, grass);
}

TEST_F(FieldUse, HarvestIsOfferedAtTheUsualDayAndThenAsItWasEnteredLast) {
    open_plan("Sands");
    const auto offered = [this] { return plan.click_land(0, plan_column::crop).parts.at(2).text; };
    EXPECT_EQ(offered(), "31/08/2025");
    EXPECT_EQ(offered(), "31/08/2025") << "a box that was left without an entry";
    ASSERT_TRUE(enter(other, other, make_date(20, 12, 2024)));
    EXPECT_EQ(offered(), "20/12/2024");
    state.limits = year_limits_of(make_date(19, 12, 2025));
    EXPECT_EQ(offered(), "31/08/2026");
}

TEST_F(FieldUse, ACopiedPairGoesBackIntoItsCell) {
    open({{"Home", "10", "Sands"}, {"Far", "5", "Sands"}});
    walk_to_plan();
    const cell_entry enter_use = [this](grid_cell at, const box_entry& put) {
        return plan.enter_field_use(at.row, put.text(0), put.text(1), put.day(2).value());
    };
    paste_prompts port(person);
    const entry_target target{plan.land(),
                              [this](int row, int column) { return plan.click_land(row, column); },
                              [&](box_id) { return &enter_use; }};
    std::vector<pasted_note> notes;
    person.expect(says::no_second_crop);
    enter_block(target, port, {{"Grass / Autumn sown crop"}, {"Other"}}, {0, plan_column::crop}, notes);
    EXPECT_EQ(pair(), "Grass / Autumn sown crop");
    EXPECT_EQ(plan.land().cell(1, plan_column::crop), "");
    EXPECT_EQ(notes.size(), 1U);
}

TEST_F(FieldUse, CropsAndHarvestAreTestedFirst) {
    open_plan("Sands");
    set_last_year("Grass / Grass");
    using namespace storage_messages;
    expect_in_order({no_first_crop, no_second_crop, invalid_harvest_date, invalid_harvest_date});
    EXPECT_FALSE(enter("", ""));
    EXPECT_FALSE(enter(other, ""));
    EXPECT_FALSE(enter(other, other, make_date(18, 12, 2024)));
    EXPECT_FALSE(enter(other, other, make_date(19, 12, 2025)));
    EXPECT_EQ(pair(), "");
    EXPECT_TRUE(enter(grass, grass, make_date(19, 12, 2024)));
    EXPECT_TRUE(enter(grass, grass, make_date(18, 12, 2025)));
}

TEST_F(FieldUse, LastYearsSecondCropIsAskedAboutBeforeTheCalculatedOne) {
    open_plan("Sands");
    set_last_year("Other / Grass");
    add_row(state.assess_file, "Site", {{"Field Area ID", "Home"}});
    const message last_year = says::crop_type_mismatch("Other", "Grass");
    const message calculated = says::crop_mismatch("Other", "Grass");
    person.expect(last_year, answer::no);
    EXPECT_FALSE(enter(other, other));
    person.expect(last_year, answer::yes).expect(says::review_last_year).expect(calculated, answer::no);
    EXPECT_FALSE(enter(other, other));
    EXPECT_EQ(pair(), "");
    person.expect(last_year, answer::yes)
        .expect(says::review_last_year)
        .expect(calculated, answer::yes)
        .expect(says::review_recommendation);
    EXPECT_TRUE(enter(other, other));
    EXPECT_EQ(pair(), "Other / Other");
    EXPECT_TRUE(enter(grass, other));
}

TEST_F(FieldUse, FieldThatWasNotAssessedLastYearIsTold) {
    open_plan("Sands");
    set_last_year("");
    person.expect(says::no_crop_last_year);
    EXPECT_TRUE(enter(other, other));
    database(state.prev1_file).delete_rows("Land");
    EXPECT_TRUE(enter(other, other));
}

TEST_F(FieldUse, CalculatedCropMustBeOfTheFirstCropsType) {
    const struct {
        const char* code;
        const char* fitting;
        const char* name;
    } cases[] = {{"SB (low N)", other, "Spring barley (low N malting)"},
                 {"WW", autumn, "Winter wheat"},
                 {"???", nullptr, "Unknown"}};
    open_plan("Peaty soils");
    for (const auto& c : cases) {
        database(state.assess_file).delete_rows("Crops");
        add_row(state.assess_file, "Crops", {{"Field Area ID", "Home"}, {"Next Crop", c.code}});
        for (const char* first : {autumn, other}) {
            const bool fits = c.fitting && std::string(first) == c.fitting;
            const char* stored_type = first == autumn ? "Autumn sown crop" : "Other";
            if (!fits) person.expect(says::crop_mismatch(stored_type, c.name), answer::no);
            EXPECT_EQ(enter(first, other), fits) << c.code << " under " << first;
            person.verify_done();
        }
    }
}

}  // namespace kel::test
