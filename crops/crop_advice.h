// From the requirement of a crop and its adjustments to the recommendation for the field: figures, texts and
// advice, in the one order in which they are worked out.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "crops/base_requirement.h"
#include "crops/crop_account.h"

namespace kel {

/// The adjustments of a row in the order of its columns.
enum class adjustment {
    market,
    undersowing,
    delayed_sowing,
    take_all,
    turnip_rape,
    manures,
    previous_manures,
    winter_rain,
    spring_rain,
    variety,  // percent; all others kg/ha
};
inline constexpr std::size_t adjustment_count = 10;

/// The cells of a row that decide its recommendation, as they stand; an empty one counts as 0.
struct crop_row {
    std::string_view crop;  // planned code
    std::string_view residue_group;
    std::string_view soil;
    std::string_view notes_ww;
    std::string_view notes_wb;
    std::array<std::string_view, adjustment_count> adjustments;

    std::string_view cell(adjustment which) const { return adjustments[static_cast<std::size_t>(which)]; }
};

/// One row of results. A range has its high figure first: "140 - 110". All but the notes in kg/ha.
struct crop_recommendation {
    std::string spring;
    std::string seedbed;
    std::string total;
    std::string requirement;
    std::string manures;
    std::string notes;
    bool operator==(const crop_recommendation&) const = default;
};

/// Works out a row. `working` holds the figures of the row before and then those of this one: a row that the
/// tables do not have goes on from them. The rainfall cells must be up to date. Tells of the figure that
/// `account` is about.
crop_recommendation recommend_row(const crop_row& row, base_requirement& working,
                                  const crop_account& account = {});

/// Low nitrogen malting barley is not grown after crops that leave much nitrogen, nor on humose and peaty
/// soils.
enum class malting_refusal { none, previous_crop, soil };
malting_refusal low_n_malting_check(const crop_row& row);

}  // namespace kel
