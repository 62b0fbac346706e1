// What a field's year is made of: the order of its rows, the crop beside each, and what of last year joins
// it.
#include "record/record_rows.h"

#include <gtest/gtest.h>

namespace kel {

namespace {

using texts = std::vector<std::string>;

const record_year year{make_date(19, 12, 2004), "Strathmore and Fife KEL"};

field_history assessed(const std::string& crop_pair) {
    field_history field;
    field.current.land = land_use{crop_pair, {}};
    return field;
}

manure_record slurry(const std::string& day, const std::string& total_n = "100") {
    return {day, "Cattle slurry 6% DM", "3", "33.3", total_n};
}

manure_record fym(const std::string& day) {
    return {day, "Cattle FYM stored under cover", "6", "20", "120"};
}

inorganic_record urea(const std::string& day, const std::string& total_n = "46") {
    return {day, "Urea", "100", total_n, "wet spring"};
}

// Day, crop and date planted of each row.
texts crops_of(const field_record& record) {
    texts found;
    for (const record_row& row : record.rows)
        found.push_back(short_date_text(row.day) + "|" + row.crop + "|" + row.date_planted);
    return found;
}

}  // namespace

TEST(RecordRows, CropFollowsFromTheBoundsOfTheCropsRow) {
    field_history field = assessed("Grass / Other");
    field.crop = crop_record{"WW", "SB", "2005-01-10", "2004-12-31", "2005-08-20"};
    for (const char* day : {"2005-08-20", "2004-12-30", "2005-08-19", "2004-12-31", "2005-01-01"})
        field.current.manures.push_back(slurry(day));
    EXPECT_EQ(crops_of(get_record(field, year)), (texts{
                                                     "30/12/2004|Spring barley|",
                                                     "31/12/2004||",
                                                     "01/01/2005|Winter wheat|10/01/2005",
                                                     "19/08/2005|Winter wheat|10/01/2005",
                                                     "20/08/2005| Other|",
                                                 }));
}

TEST(RecordRows, OfTheSameDayTheRowPlacedLastComesFirst) {
    field_history field = assessed("Other / Other");
    field.crop = crop_record{"WW", "", "", "2004-08-01", ""};
    field.current.manures = {slurry("2005-03-01", "1"), slurry("2005-03-01", "2"), slurry("", "3"),
                             slurry("2005-02-28", "4")};
    field.current.inorganics = {urea("2005-03-01", "5")};
    field.previous.inorganics = {urea("2004-10-01", "6"), urea("2005-03-01", "7")};
    const field_record record = get_record(field, year);
    texts order;
    for (const record_row& row : record.rows)
        order.push_back(row.inorganic_n + row.manure_n);
    EXPECT_EQ(order, (texts{"6", "4", "7", "5", "2", "1"}));
    EXPECT_EQ(record.rows[1].crop, " Other") << "no harvest ahead: every day is behind it";
}

TEST(RecordRows, OnlyTheFirstManureStoredAsksWhetherTheFieldWasAssessed) {
    field_history field;
    field.crop = crop_record{"WW", "SB", "2005-01-10", "2004-08-01", "2005-08-20"};
    field.current.manures = {slurry("2005-05-01"), fym("2005-06-01")};
    field_record record = get_record(field, year);
    EXPECT_TRUE(record.not_assessed);
    EXPECT_EQ(crops_of(record), (texts{"01/05/2005|Unknown|", "01/06/2005|Unknown|"}));

    std::swap(field.current.manures[0], field.current.manures[1]);
    record = get_record(field, year);
    EXPECT_FALSE(record.not_assessed);
    EXPECT_EQ(record.rows.front().crop, "Winter wheat");

    field.current.land = land_use{"", {}};
    std::swap(field.current.manures[0], field.current.manures[1]);
    EXPECT_TRUE(get_record(field, year).not_assessed);
    field.current.manures.clear();
    EXPECT_FALSE(get_record(field, year).not_assessed);
}

TEST(RecordRows, AGrassRowRulesOverACropsRowButForTheSowing) {
    field_history field = assessed("Grass / Grass");
    field.crop = crop_record{"WW", "SB", "2005-01-10", "2004-08-01", "2005-08-20"};
    field.grass = site_record{"Silage", "2004-10-15"};
    field.current.inorganics = {urea("2005-09-20"), urea("2005-10-15"), urea("2004-10-14")};
    EXPECT_EQ(crops_of(get_record(field, year)),
              (texts{"14/10/2004|Spring barley|", "20/09/2005|Silage|10/01/2005", "15/10/2005||"}))
        << "the pair is read for manures only";
    field.grass = site_record{"", ""};  // the season then ends on 1 November
    field.current.inorganics = {urea("2004-11-01"), urea("2004-11-02"), urea("2005-11-01")};
    EXPECT_EQ(crops_of(get_record(field, year)),
              (texts{"01/11/2004||", "02/11/2004|Winter wheat|10/01/2005", "01/11/2005||"}));
    field.grass = site_record{"Hay", "2004-02-29"};
    field.current.inorganics = {urea("2005-02-27"), urea("2005-02-28")};
    EXPECT_EQ(get_record(field, year).rows[0].crop, "Hay");
    EXPECT_EQ(get_record(field, year).rows[1].crop, "");
}

TEST(RecordRows, LastYearJoinsFromTheHarvestOn) {
    field_history field;
    field.previous.manures = {slurry("2004-09-01"), slurry("2004-08-31"), slurry("2006-01-01")};
    field.previous.inorganics = {urea("2004-08-31"), urea("2004-09-02"), urea("2005-12-18")};
    const auto last_year = [&](const std::string& crop) {
        texts found = crops_of(get_record(field, year));
        for (std::string& row : found)
            EXPECT_EQ(row.substr(11), crop) << row;
        for (std::string& row : found)
            row.resize(10);
        return found;
    };
    const texts all_from_harvest{"01/09/2004", "02/09/2004", "18/12/2005", "01/01/2006"};
    field.crop = crop_record{"WW", "SB", "2005-01-10", "2004-09-01", ""};
    EXPECT_EQ(last_year("Winter wheat|"), all_from_harvest);
    field.crop->next_crop.clear();
    EXPECT_EQ(last_year("Unknown|"), all_from_harvest);
    field.crop->next_crop = "WW";
    field.grass = site_record{"Silage", "2004-01-01"};
    EXPECT_EQ(last_year("Winter wheat|"), all_from_harvest) << "the crops row is asked first";
    field.crop.reset();
    field.grass = site_record{"Silage", "2004-09-01"};
    EXPECT_EQ(last_year("Silage|"), all_from_harvest);
    // Without a harvest the last day of the year is the bound, for inorganic nitrogen alone.
    field.grass = site_record{"Silage", ""};
    EXPECT_EQ(last_year("Silage|"), texts{"18/12/2005"});
    field.grass.reset();
    EXPECT_EQ(last_year("|"), (texts{"18/12/2005", "01/01/2006"})) << "with no crop at all for both";
}

TEST(RecordRows, AnApplicationWithAnUnreadableDateIsNamed) {
    field_history field = assessed("Other / Other");
    field.current.manures = {slurry("in spring"), slurry("31/02/2005"), slurry("2005-02-01")};
    field.crop = crop_record{"no such code", "", "soon", "last autumn", ""};
    const field_record record = get_record(field, year);
    EXPECT_EQ(record.unreadable_days, (texts{"in spring", "31/02/2005"}));
    EXPECT_EQ(crops_of(record), texts{"01/02/2005| Other|"});
    EXPECT_TRUE(get_record({}, {}).rows.empty());
}

}  // namespace kel
