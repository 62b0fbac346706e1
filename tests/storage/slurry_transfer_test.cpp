// The transfer of the slurry applications of Step 3 into the spreading table.
#include "tests/storage/storage_fixture.h"

namespace kel::test {

class SlurryTransfer : public storage_test {
  protected:
    void apply(const std::string& field, const std::string& manure, const std::string& day,
               const std::string& rate) {
        row_values row{{"Field Area ID", field}, {"Manure Type", manure}, {"Applic Rate", rate}};
        if (!day.empty()) row.emplace_back("Date", day);
        add_row(state.assess_file, "Manure_applic", row);
    }
    static constexpr const char* slurry = "Dairy slurry - medium dry matter (6%)";
    static constexpr const char* solid = "Cattle FYM stored under cover";
};

TEST_F(SlurryTransfer, DatedSlurriesAddUpByMonthAndOtherFieldsKeepTheirRates) {
    open({{"Home", "10"}, {"Brae", "5"}, {"Moor", "4"}});
    apply("Home", slurry, "2025-03-01", "20");
    apply("Home", slurry, "2025-03-31", "12.5");
    apply("Home", slurry, "2025-06-01", "1.1");  // as singles they would add up to 3.3000002
    apply("Home", slurry, "2025-06-02", "2.2");
    apply("Home", solid, "2025-04-02", "40");
    apply("Home", slurry, "", "99");
    apply("Moor", solid, "2025-04-02", "40");
    walk_to_plan();
    for (const int row : {0, 1, 2})
        ASSERT_TRUE(plan.enter_slurry_applic(row, spreading_column::december, "7").closes);
    person.expect(says::overwrite_data, answer::yes);
    plan.get_slurry_data();
    EXPECT_EQ(spreading_months(0), (texts{"0", "0", "32.5", "0", "0", "3.3", "0", "0", "0", "0", "0", "0"}));
    EXPECT_EQ(spreading_months(1)[11], "7");
    EXPECT_EQ(spreading_months(1)[2], "");
    EXPECT_EQ(spreading_months(2)[11], "0");
    EXPECT_EQ(plan.balance()->outputs[2], 325);
    EXPECT_EQ(spreading_months(4)[2], "32.5");
}

TEST_F(SlurryTransfer, ClosedMonthsAndMonthsWithoutLandAreLeftOutAndToldInThisOrder) {
    open_farm({{"Home", "10"}, {"Brae", "5"}});
    add_land({"Home", "10"}, {{"October", "Closed"}, {"Applic_October", "Closed"}, {"May", "0"}});
    add_land({"Brae", "5"}, {{"June", "0"}, {"Applic_June", "15"}});
    apply("Home", slurry, "2025-10-05", "20");
    apply("Home", slurry, "2025-05-05", "20");
    module.storage_load_stuff();
    walk_to_plan();
    person.expect(says::overwrite_data, answer::yes)
        .expect(says::closed_period_breach)
        .expect(says::land_availability_breach);
    plan.get_slurry_data();
    EXPECT_EQ(spreading_months(0)[9], "Closed");
    EXPECT_EQ(spreading_months(0)[4], "0");
    EXPECT_EQ(spreading_months(1)[5], "0");  // also a field without applications
}

TEST_F(SlurryTransfer, NothingChangesOnNoAndWithoutApplications) {
    open_plan();
    person.expect(says::overwrite_data, answer::yes).expect(says::nothing_to_transfer);
    plan.get_slurry_data();
    apply("Home", slurry, "2025-05-05", "20");
    person.expect(says::overwrite_data, answer::no);
    plan.get_slurry_data();
    apply("Home", slurry, "soon", "20");
    person.expect(says::overwrite_data, answer::yes);
    EXPECT_THROW(plan.get_slurry_data(), file_error);
    EXPECT_EQ(spreading_months(0), texts(12));
    EXPECT_FALSE(plan.changed());
}

}  // namespace kel::test
