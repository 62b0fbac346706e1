// The year of one field in the order of its days: this year's applications of manure and of inorganic
// nitrogen and those of last year that were made for this year's crop, each with the crop it went to.
#pragma once

#include <string>
#include <vector>

#include "core/dates.h"
#include "core/explanation.h"
#include "record/field_history.h"

namespace kel {

/// One application. A row without a manure is one of inorganic nitrogen; the figures of the other kind are
/// empty.
struct record_row {
    std::string crop;
    std::string date_planted;
    date day;
    std::string inorganic_type;
    std::string amount;
    std::string inorganic_n;
    std::string manure;
    std::string n_content;
    std::string rate;
    std::string manure_n;
    std::string comments;
    bool last_year = false;  // of last year's file

    bool is_manure() const { return !manure.empty(); }
    bool operator==(const record_row&) const = default;
};

struct field_record {
    std::vector<record_row> rows;
    /// The first application stored is a manure that asks for closed periods, and the field has none entered.
    bool not_assessed = false;
    /// Texts that stand in place of a date; their applications are in no row.
    std::vector<std::string> unreadable_days;
};

/// Of two rows of one day the one placed later comes first: this year's manures are placed before its
/// inorganic nitrogen, both before last year's.
field_record get_record(const field_history& field, const record_year& year);

/// Names the crop of a row of the record once more and tells why it is that one.
void name_crop(record_row& row, const field_history& field, const record_year& year, explanation* why);

}  // namespace kel
