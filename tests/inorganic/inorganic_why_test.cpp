// Why the cells of Step 4 are what they are, and which of its days are closed.
#include "tests/inorganic/inorganic_fixture.h"
#include "tests/support/compared_cells.h"
#include "tests/support/dice.h"
#include "tests/support/sample_chain.h"

namespace kel::test {

namespace {

// Every total against what its account ends in; how many there were.
int compare(const inorganic_module& module) {
    const text_grid& table = module.applications();
    for (int row = 0; row < table.data_row_count(); ++row) {
        const auto why = module.why(table, static_cast<std::size_t>(row), inorganic_column::total_n);
        EXPECT_EQ(why.value().result(), table.cell(row, inorganic_column::total_n)) << why->subject();
    }
    return table.data_row_count();
}

}  // namespace

class InorganicWhySample : public sample_chain_test {
  protected:
    agreeing_person person;
    inorganic_module module{state, person};
};

TEST_F(InorganicWhySample, EndsInEveryTotalOfTheChain) {
    int totals = 0;
    for (std::size_t year = 0; year < files.size(); ++year) {
        open_year(year);
        module.inorganic_load_stuff();
        totals += compare(module);
    }
    EXPECT_EQ(totals, 38);
}

class InorganicWhy : public inorganic_test {};

TEST_F(InorganicWhy, EndsInTheTotalOfAnyEntry) {
    open();
    dice random(4);
    for (int row = 0; row < 200; ++row) {
        module.enter_field(row, "Long Rig");
        module.enter_application(row, application{.day = make_date(1, 5, 2005),
                                                  .type = "Nitram",
                                                  .amount = random.number(800),
                                                  .content = random.number(60),
                                                  .comments = ""});
    }
    EXPECT_EQ(compare(module), 200);
    const std::size_t entry_row = 200;
    EXPECT_FALSE(module.why(module.applications(), entry_row, inorganic_column::total_n));
    EXPECT_FALSE(module.why(module.applications(), 0, inorganic_column::type));
}

TEST_F(InorganicWhy, TellsTheRateAndTheClosedDay) {
    open();
    assess("Long Rig", "Grass / Other");
    add_row(state.assess_file, "Inorganic N",
            {{"Field Area ID", "Long Rig"}, {"Date", "2005-02-15"}, {"Type", "Nitram"}, {"Amount", "100"}});
    add_row(state.assess_file, "Inorganic N",
            {{"Field Area ID", "Long Rig"}, {"Date", "2005-08-31"}, {"Amount", "33"}, {"N content", "27"}});
    module.inorganic_load_stuff();
    const auto why = [&](std::size_t row, std::size_t column) {
        return written(module.why(module.applications(), row, column).value());
    };
    EXPECT_EQ(why(0, inorganic_column::total_n),
              "Nitrogen of Nitram on Long Rig, 15 February 2005\n"
              "The nitrogen applied is the amount of fertiliser times its nitrogen content. It is a rate per "
              "hectare, although the heading says kg.\n"
              "Amount applied: 100 kg/ha (Step 4, Amount applied)\n"
              "Nitrogen content: not entered (Step 4, N content)\n"
              "The amount or the nitrogen content is not entered.");
    EXPECT_EQ(why(0, inorganic_column::day),
              "Closed period for inorganic nitrogen on Long Rig, 15 February 2005\n"
              "Zone: Strathmore and Fife KEL (farm profile, location)\n"
              "Second crop: Other (Step 2, use of the field)\n"
              "Inorganic nitrogen is closed by the calendar, whatever the soil: up to and including 15 "
              "February 2005 in this zone, and from 01 September 2005 on before this second crop.\n"
              "15 February 2005 is not after 15 February 2005: closed.\n"
              "Closed periods for fertiliser of the KEL rules: until 15 February, in the zone "
              "Moray/Aberdeenshire/Banff and Buchan KEL until 20 February; from 1 September, before grass "
              "from 15 September.\n"
              "15 February 2005 is a closed day for inorganic nitrogen on this field.");
    EXPECT_NE(why(1, inorganic_column::day).find("31 August 2005 lies between the two: open."),
              std::string::npos);
    EXPECT_NE(why(1, inorganic_column::total_n)
                  .find("33 kg/ha x 27 / 100 = 8.9 kg N/ha, rounded to 1 decimal, halves to the even digit."),
              std::string::npos);
}

}  // namespace kel::test
