// The prompts of the table: which opens, what each tests in which order, which cells follow.
#include "core/module_messages.h"
#include "tests/manure/manure_fixture.h"

namespace kel::test {

class ManureEntry : public manure_test {
  protected:
    entry_part part(int row, int column) { return module.click(row, column).parts.at(0); }
    void open_one_field() {
        open({{"Long Rig", "15", "Sandy loams"}});
        add_land("Long Rig");
    }
    void choose(int row, const std::string& manure, const std::string& time) {
        ASSERT_EQ(module.enter_manure(row, manure).next.value_or(opening()).box, manure_box::incorporation);
        ASSERT_TRUE(module.enter_incorporation(row, time).closes);
    }
};

TEST_F(ManureEntry, CellsOpenTheirBoxesOrSayWhyNot) {
    open_one_field();
    EXPECT_EQ(module.click(0, manure_col::field).box, manure_box::field);
    EXPECT_EQ(module.click(0, manure_col::incorporation).box, manure_box::manure);
    EXPECT_EQ(part(0, manure_col::date).text, "01/01/2025");
    EXPECT_EQ(module.click(0, manure_col::month), opening());
    person.expect(says::no_field_area_id).expect(says::no_manure).expect(says::no_manure);
    for (const int column : {manure_col::area, manure_col::amount, manure_col::n_content})
        EXPECT_TRUE(module.click(0, column).box.none()) << column;
    for (const int column : {1, 7, 9, 10, 11, 12}) {
        person.expect(says::calculation);
        EXPECT_TRUE(module.click(0, column).box.none()) << column;
    }
}

TEST_F(ManureEntry, UnitOfTheAmountIsThatOfTheManureHandledLast) {
    open_one_field();
    choose(0, dairy, "Over 6 hours");
    choose(1, covered_fym, "Over 24 hours");
    EXPECT_EQ(part(0, manure_col::amount).unit, "tonne");  // though the row is a slurry
    module.enter_manure(2, strainer);
    EXPECT_EQ(part(1, manure_col::amount).unit, "cubic m");
    EXPECT_EQ(part(0, manure_col::n_content).unit, "kg/tonne");
}

TEST_F(ManureEntry, FieldBringsSoilAndAvailableArea) {
    open_one_field();
    person.expect(says::no_field_id);
    EXPECT_FALSE(module.enter_field(0, "").closes);
    EXPECT_TRUE(module.enter_field(0, "Long Rig").closes);
    EXPECT_EQ(row_cells(0),
              (texts{"Long Rig", "Sandy loams", "", "", "", "10.00", "", "", "", "", "", "0", "0", ""}));
    EXPECT_EQ(module.applications().row_count(), 2);
}

TEST_F(ManureEntry, FieldWithoutLandIsAskedAboutFirst) {
    open({{"Long Rig", "15", "Sandy loams"}});
    person.expect(says::not_assessed, answer::no);
    EXPECT_TRUE(module.enter_field(0, "Long Rig").closes);
    EXPECT_EQ(row_cells(0), texts(14));
    person.expect(says::not_assessed, answer::yes).expect(says::land_not_assessed);
    EXPECT_TRUE(module.enter_field(0, "Long Rig").closes);
    EXPECT_EQ(cell(0, manure_col::field), "Long Rig");
    EXPECT_EQ(cell(0, manure_col::area), "");
}

TEST_F(ManureEntry, RowIsWorkedOutFromItsEntries) {
    open_one_field();
    module.enter_field(0, "Long Rig");
    choose(0, dairy, "Over 6 hours");
    EXPECT_TRUE(module.enter_date(0, make_date(14, 3, 2025)).closes);
    EXPECT_TRUE(module.enter_amount(0, "251").closes);
    EXPECT_EQ(row_cells(0), (texts{"Long Rig", "Sandy loams", "Over 6 hours", dairy, "14/03/2025", "10.00",
                                   "251", "25.1", "4.0", "100.4", "20", "20.08", "10.04", "March"}));
    EXPECT_TRUE(module.enter_n_content(0, "3.123456").closes);
    EXPECT_EQ(cell(0, manure_col::total_n), "78.3987456");  // more places than a single holds
    EXPECT_TRUE(module.enter_area(0, "3").closes);
    EXPECT_EQ(cell(0, manure_col::rate), "83.67");
    EXPECT_EQ(cell(0, manure_col::total_n), "261.3396");
    EXPECT_TRUE(module.enter_field(0, "Long Rig").closes);
    EXPECT_EQ(cell(0, manure_col::area), "3");  // not the default again
    EXPECT_TRUE(module.enter_area(0, "0").closes);
    EXPECT_EQ(cell(0, manure_col::rate), "");
}

TEST_F(ManureEntry, NewIncorporationCountsAtTheNextRecalculation) {
    open_one_field();
    module.enter_field(0, "Long Rig");
    choose(0, dairy, "Over 6 hours");
    module.enter_date(0, make_date(14, 3, 2025));
    module.enter_n_content(0, "5");
    choose(0, dairy, "Within 6 hours");
    EXPECT_EQ(cell(0, manure_col::incorporation), "Within 6 hours");
    EXPECT_EQ(cell(0, manure_col::percentage), "20");
    EXPECT_EQ(cell(0, manure_col::n_content), "4.0");  // the analysis is gone
    module.enter_amount(0, "250");
    EXPECT_EQ(cell(0, manure_col::percentage), "30");
}

TEST_F(ManureEntry, ManureMustBeOfTheListAndSeparatedSlurryAsksNothing) {
    open_one_field();
    person.expect(says::unknown_manure).expect(says::unknown_manure);
    EXPECT_FALSE(module.enter_manure(0, "").closes);
    EXPECT_FALSE(module.enter_manure(0, "Compost").closes);
    EXPECT_EQ(row_cells(0), texts(14));
    EXPECT_EQ(module.enter_manure(0, strainer), box_closes());
    EXPECT_EQ(cell(0, manure_col::incorporation), "Surface or rapid incorporation");
    EXPECT_EQ(cell(0, manure_col::n_content), "1.5");
    EXPECT_EQ(module.enter_manure(0, covered_fym).next.value().parts.at(0).choices,
              (texts{"Within 24 hours", "Over 24 hours"}));
    EXPECT_TRUE(module.enter_incorporation(0, "").closes);
    EXPECT_EQ(cell(0, manure_col::manure), covered_fym);
    EXPECT_EQ(cell(0, manure_col::incorporation), "Surface or rapid incorporation");
}

TEST_F(ManureEntry, DateLiesInTheYearOfItsFile) {
    open_one_field();
    module.enter_field(0, "Long Rig");
    choose(0, covered_fym, "Over 24 hours");
    const auto this_year = says::invalid_date("The date entered is not within the KEL year being assessed!");
    const auto last_year = says::invalid_date("The date entered is not within the previous KEL year!");
    using enum manure_opener;
    const struct {
        manure_opener opener;
        date day;
        bool taken;
    } cases[] = {
        {front, make_date(18, 12, 2024), false},    {front, make_date(19, 12, 2024), true},
        {front, make_date(18, 12, 2025), true},     {new_crop, make_date(19, 12, 2025), false},
        {old_crop, make_date(18, 12, 2023), false}, {old_crop, make_date(19, 12, 2023), true},
        {old_crop, make_date(18, 12, 2024), true},  {old_crop, make_date(19, 12, 2024), false},
    };
    for (const auto& c : cases) {
        state.manure_caller = c.opener;
        if (!c.taken) person.expect(c.opener == old_crop ? last_year : this_year);
        EXPECT_EQ(module.enter_date(0, c.day).closes, c.taken) << short_date_text(c.day);
    }
}

TEST_F(ManureEntry, ClosedMonthsAndMissingLandAreAskedAbout) {
    open_one_field();
    module.enter_field(0, "Long Rig");
    choose(0, layer, "Over 24 hours");
    const date october = make_date(3, 10, 2025);
    const date december = make_date(3, 12, 2025);
    // Outside the year nothing is asked about the land.
    person.expect(says::invalid_date("The date entered is not within the KEL year being assessed!"));
    EXPECT_FALSE(module.enter_date(0, make_date(3, 10, 2026)).closes);
    person.expect(says::closed_period, answer::no);
    EXPECT_FALSE(module.enter_date(0, october).closes);
    person.expect(says::closed_period, answer::yes).expect(says::no_land_available, answer::no);
    EXPECT_FALSE(module.enter_date(0, october).closes);
    EXPECT_EQ(cell(0, manure_col::date), "");
    person.expect(says::closed_period, answer::yes).expect(says::no_land_available, answer::yes);
    EXPECT_TRUE(module.enter_date(0, october).closes);
    person.expect(says::no_land_available, answer::yes);
    EXPECT_TRUE(module.enter_date(0, december).closes);
    person.expect(says::availability_unknown, answer::no);
    EXPECT_FALSE(module.enter_date(1, october).closes);  // a row without a field
    // The manure chosen in the list last decides, whatever the row's own is.
    choose(1, covered_fym, "Over 24 hours");
    EXPECT_TRUE(module.enter_date(0, october).closes);
}

TEST_F(ManureEntry, AreaIsTestedAgainstTheFieldsLand) {
    open({{"Long Rig", "15", "Sandy loams"}, {"East Muir", "8"}});
    add_land("Long Rig");
    module.enter_field(0, "Long Rig");
    person.expect(says::not_assessed, answer::yes);
    module.enter_field(1, "East Muir");
    person.expect(says::no_area).expect(says::no_area).expect(says::area_too_large);
    for (const char* refused : {"", ".", "10.01"})
        EXPECT_FALSE(module.enter_area(0, refused).closes) << refused;
    EXPECT_TRUE(module.enter_area(0, "10").closes);
    person.expect(says::field_without_land("East Muir"));
    EXPECT_FALSE(module.enter_area(1, "1").closes);
}

TEST_F(ManureEntry, EntryRowCannotBeErasedAndAFileThatIsGoneLeavesTheRow) {
    open_one_field();
    module.enter_field(0, "Long Rig");
    person.expect(module_messages::cannot_delete);
    EXPECT_FALSE(module.erase_row(1).closes);
    write_file(state.assess_file, "not an assessment");
    const text_grid before = module.applications();
    EXPECT_THROW(module.enter_field(1, "Long Rig"), file_error);
    EXPECT_THROW(module.enter_area(0, "2"), file_error);
    EXPECT_THROW(module.enter_date(0, make_date(3, 3, 2025)), file_error);
    EXPECT_EQ(module.applications(), before);
    EXPECT_TRUE(module.erase_row(0).closes);
    EXPECT_EQ(module.applications().row_count(), 1);
}

}  // namespace kel::test
