#include "tools/bench/bench_applications.h"

#include "core/assessment_files.h"
#include "core/assessment_store.h"
#include "core/farm_fields.h"

namespace kel::bench {

namespace {

constexpr int applications_per_field = 10;

// The rates of every fifth field come to more than the limit within a year, those of the others do not.
struct application_rates {
    const char* amount;
    const char* rate;
    const char* total_n;
    const char* available;
    const char* available_next;
};
constexpr application_rates usual{"6", "3", "12", "2.4", "1.2"};
constexpr application_rates heavy{"15", "7.5", "30", "6", "3"};

// Slurry from February to October, when the months of the generated fields are open.
void add_application(recordset& rows, const std::string& field, date day, const application_rates& rates) {
    rows.add_new();
    rows.set("Field Area ID", field);
    rows.set("Soil", "Other mineral soils");
    rows.set("Incorporation", "Over 6 hours");
    rows.set("Manure Type", "Dairy slurry - high dry matter (10%)");
    rows.set("Date", day);
    rows.set("Area Spread", "2");
    rows.set("Amount Applied", rates.amount);
    rows.set("Applic Rate", rates.rate);
    rows.set("Total N Content", "4.0");
    rows.set("Total N Applic Rate", rates.total_n);
    rows.set("Available N", "20");
    rows.set("Available N Rate", rates.available);
    rows.set("Available N Rate Next", rates.available_next);
    rows.set("Month Applied", month_name(month_of(day)));
    rows.update();
}

}  // namespace

void write_applications(const std::string& file) {
    const date first = make_date(1, 2, year_of(read_assessment_year(file).value()) + 1);
    const database db(file);
    const auto fields = read_farm_fields(db);
    save_transaction save(db);
    db.delete_rows("Manure_applic");
    recordset rows = db.open("Manure_applic");
    for (int number = 0; number < applications_per_field; ++number)
        for (int field = 0; field < static_cast<int>(fields.size()); ++field)
            add_application(rows, fields[static_cast<std::size_t>(field)].name,
                            add_days(first, 27 * number + field % 20), field % 5 == 0 ? heavy : usual);
    save.commit();
}

}  // namespace kel::bench
