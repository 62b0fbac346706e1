// Why the cells of Step 3 are what they are: each account ends in what its cell shows.
#include "tests/manure/manure_fixture.h"
#include "tests/support/compared_cells.h"
#include "tests/support/dice.h"
#include "tests/support/sample_chain.h"

namespace kel::test {

class ManureWhySample : public sample_chain_test {
  protected:
    agreeing_person person;
    manure_module module{state, person};
};

TEST_F(ManureWhySample, EndsInEveryCalculatedCellOfTheChain) {
    int applications = 0;
    int results = 0;
    for (std::size_t year = 0; year < files.size(); ++year) {
        open_year(year);
        module.manure_load_stuff();
        applications +=
            compared_cells(module, module.applications(), 0, module.applications().data_row_count());
        ASSERT_TRUE(module.calculate());
        results += compared_cells(module, module.results(), 0, module.results().row_count());
    }
    // 69 applications with six calculated cells each; 12 fields in three years with four each.
    EXPECT_EQ(applications, 6 * 69);
    EXPECT_EQ(results, 4 * 36);
}

class ManureWhy : public manure_test {
  protected:
    explanation why(int row, int column) const {
        return module
            .why(module.applications(), static_cast<std::size_t>(row), static_cast<std::size_t>(column))
            .value();
    }
    explanation why_result(int row, int column) const {
        return module.why(module.results(), static_cast<std::size_t>(row), static_cast<std::size_t>(column))
            .value();
    }
};

TEST_F(ManureWhy, TellsThePercentageByTheLineOfItsTable) {
    open({{"Long Rig", "15", "Sandy loams"}});
    add_row(state.assess_file, "Land",
            {{"Field Area ID", "Long Rig"},
             {"Soil", "Sandy loams"},
             {"Crop", "Grass / Other"},
             {"June", "10"},
             {"October", "Closed"}});
    module.enter_field(0, "Long Rig");
    module.enter_manure(0, dairy);
    module.enter_incorporation(0, "Over 6 hours");
    person.expect(says::closed_period, answer::yes).expect(says::no_land_available, answer::yes);
    module.enter_date(0, make_date(3, 10, 2025));
    EXPECT_EQ(
        written(why(0, manure_col::percentage)),
        "Available nitrogen of Dairy slurry - high dry matter (10%) on Long Rig, 03 October 2025\n"
        "Manure, time of working in, season and, from August to January, soil decide how much of the "
        "total nitrogen the current crop can use.\n"
        "Manure: Dairy slurry - high dry matter (10%) (Step 3, Manure Type)\n"
        "Worked in: Over 6 hours (Step 3, Incorporation Time)\n"
        "Month: October (Step 3, Date Applied)\n"
        "Soil: Sandy loams (farm profile, Soil)\n"
        "\"Sandy loams\" counts as a light soil.\n"
        "Table of available nitrogen, line \"Dairy slurry - high dry matter (10%), over 6 hours\", August "
        "to October, light soils: 5 % of the total nitrogen.\n"
        "5 %");
    EXPECT_EQ(
        written(why(0, manure_col::date)),
        "Closed period for Dairy slurry - high dry matter (10%) on Long Rig, 03 October 2025\n"
        "October is closed to slurry and manures on this field: Step 2 settled that when the use of the "
        "field was entered. The whole month counts, whatever the day.\n"
        "Soil: Sandy loams (farm profile, Soil)\n"
        "Second crop: Other (Step 2, use of the field)\n"
        "On a light soil (Sands, Sandy loams and Shallow soils) the second crop decides which months are "
        "closed to slurry and manures; here: August, September and October.\n"
        "Closed periods for slurry of the KEL rules, light soils, second crop \"Other\": August, September "
        "and October.\n"
        "The application is in a closed month. The date may stay; the results name it.");

    // What the list of manures put there is not called entered, an analysis is.
    EXPECT_EQ(written(why(0, manure_col::n_content)),
              "Total nitrogen content of Dairy slurry - high dry matter (10%) on Long Rig, 03 October 2025\n"
              "List of manures, \"Dairy slurry - high dry matter (10%)\": 4.0 kg of nitrogen per cubic m.\n"
              "It came with the manure. An analysis typed here takes its place.");
    module.enter_n_content(0, "3.9");
    EXPECT_FALSE(module.why(module.applications(), 0, manure_col::n_content));

    // A new time of working in counts from the next entry on, and the account tells that the cell is older.
    module.enter_incorporation(0, "Within 6 hours");
    module.enter_date(0, make_date(3, 6, 2025));
    EXPECT_EQ(cell(0, manure_col::percentage), "0");
    module.enter_incorporation(0, "Over 6 hours");
    EXPECT_EQ(why(0, manure_col::percentage).result(), "5");
    EXPECT_NE(stale_note(why(0, manure_col::percentage), cell(0, manure_col::percentage)), "");
}

// Without a time of working in, the manure that was handled last decides.
TEST_F(ManureWhy, TellsOfALineThatIsNotTheManuresOwn) {
    open({{"Long Rig", "15"}});
    add_land("Long Rig");
    module.enter_field(0, "Long Rig");
    module.enter_manure(0, strainer);
    module.enter_date(0, make_date(3, 3, 2025));
    module.enter_field(1, "Long Rig");
    module.enter_manure(1, dairy);
    module.enter_incorporation(1, "");
    module.enter_date(1, make_date(3, 3, 2025));
    module.enter_field(0, "Long Rig");
    module.enter_field(1, "Long Rig");
    EXPECT_EQ(cell(1, manure_col::percentage), "40");
    EXPECT_EQ(why(1, manure_col::percentage).result(), "40");
    const std::string account = written(why(1, manure_col::percentage));
    EXPECT_NE(account.find("so the line of the manure handled last counts"), std::string::npos) << account;
    EXPECT_NE(account.find("line \"" + strainer + ", surface or rapid incorporation\""), std::string::npos)
        << account;
}

TEST_F(ManureWhy, ListsTheTwelveMonthsOfAFieldOverTheLimit) {
    open({{"Long Rig", "15"}, {"Brae", "9"}});
    state.prev1_file = make_farm("last.kel", {{"Long Rig", "15"}}, 2023);
    add_application(state.prev1_file, "Long Rig", "2024-03-02", "90");
    add_application(state.prev1_file, "Long Rig", "2024-03-03", "70");
    add_application(state.assess_file, "Long Rig", "2025-03-02", "110.25");
    add_application(state.assess_file, "Long Rig", "2025-02-01", "70");
    module.manure_load_stuff();
    EXPECT_FALSE(module.why("lblReductions_instruction"));
    ASSERT_TRUE(module.calculate());
    const std::string twelve_months =
        "Organic manures may bring at most 250 kg N/ha to a field in any twelve months. Each application is "
        "judged with all others up to its day.\n"
        "03 March 2024 (last year's assessment): 70 kg N/ha\n"
        "01 February 2025: 70 kg N/ha\n"
        "02 March 2025: 110.25 kg N/ha\n"
        "The twelve months that end on 02 March 2025 are the fullest: together 250.25 kg N/ha, over 250 kg "
        "N/ha, judged on 3 decimals.\n";
    EXPECT_EQ(written(why_result(0, manure_result_column::warnings)),
              "Warnings of Long Rig\n" + twelve_months + "So the line is marked.\nYes");
    EXPECT_EQ(written(module.why("lblReductions_instruction").value()),
              "Fields over the limit on organic nitrogen\n" + twelve_months +
                  "Told here of Long Rig; the warnings of each line tell of its own field.\n"
                  "Over the limit: Long Rig.");
    EXPECT_EQ(why_result(1, manure_result_column::warnings).result(), "No");
}

// The mark goes to the line of the application's number, which is another field's.
TEST_F(ManureWhy, TellsWhoseMarkStandsInTheLine) {
    open({{"Long Rig", "15"}, {"Brae", "9"}});
    add_land("Brae");
    add_application(state.assess_file, "Brae", "2025-10-01", "60");
    module.manure_load_stuff();
    ASSERT_TRUE(module.calculate());
    const explanation marked = why_result(0, manure_result_column::warnings);
    EXPECT_EQ(marked.result(), "Yes");
    EXPECT_NE(written(marked).find("Line 1 of the applications, " + dairy +
                                   " on Brae, 01 October 2025, is in a closed month."),
              std::string::npos);
    EXPECT_EQ(why_result(1, manure_result_column::warnings).result(), "No");
    EXPECT_EQ(module.why("txtReductions_warnings")->last_line(), "Applications in closed months: 1.");
}

class ManureWhyRandom : public farm_test {
  protected:
    agreeing_person person;
    manure_module module{state, person};

    void enter_row(dice& random, int row, const texts& fields) {
        const manure_type& manure = random.one_of(manure_catalogue());
        module.enter_field(row, random.one_of(fields));
        module.enter_manure(row, std::string(manure.name));
        if (manure.incorporation != no_choice)
            module.enter_incorporation(
                row, std::string(random.one_in(2) ? manure.incorporation.early : manure.incorporation.late));
        module.enter_date(row, add_days(make_date(19, 12, 2024), random.below(365)));
        module.enter_area(row, random.number(9) + "1");
        module.enter_amount(row, random.number(900));
        if (random.one_in(3)) module.enter_n_content(row, random.number(20));
        module.enter_amount(row, random.number(900));
        if (random.one_in(3)) module.enter_n_content(row, random.number(20));
    }
};

TEST_F(ManureWhyRandom, EndsInEveryCalculatedCell) {
    state.manure_caller = manure_opener::front;
    constexpr int rows = 20;
    int marked = 0;
    for (unsigned seed = 1; seed <= 5; ++seed) {
        dice random(seed);
        const texts fields{"Long Rig", "East Muir", "Brae", "Haugh", "Croft", "Bog", "Knowe"};
        const texts soils{"Sands", "Peaty soils", "Sandy loams", "Humose soils"};
        std::vector<test_field> farm;
        for (const std::string& field : fields)
            farm.push_back({field, "15", random.one_of(soils)});
        open_farm(farm);
        for (const std::string& field : fields)
            add_row(state.assess_file, "Land",
                    {{"Field Area ID", field}, {"Available Field Area (ha)", "12"}, {"October", "Closed"}});
        if (seed % 2 == 0) {
            state.prev1_file = path("last.kel");
            make_farm("last.kel", {{"Brae", "15"}}, 2023);
            add_row(state.prev1_file, "Manure_applic",
                    {{"Field Area ID", "Brae"}, {"Date", "2024-11-01"}, {"Total N Applic Rate", "120"}});
        } else {
            state.prev1_file.clear();
        }
        module.manure_load_stuff();
        for (int row = 0; row < rows; ++row)
            enter_row(random, row, fields);
        EXPECT_EQ(compared_cells(module, module.applications(), 0, rows), 6 * rows);
        ASSERT_TRUE(module.calculate());
        EXPECT_EQ(compared_cells(module, module.results(), 0, static_cast<int>(fields.size())),
                  4 * static_cast<int>(fields.size()));
        for (int row = 0; row < module.results().row_count(); ++row)
            marked += module.results().cell(row, manure_result_column::warnings) == "Yes";
    }
    EXPECT_GT(marked, 3);
    EXPECT_LT(marked, 32);
}

}  // namespace kel::test
