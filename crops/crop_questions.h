// What each planned crop is asked, in its order, as openings of the question box.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "core/entry.h"
#include "crops/crop_adjustments.h"

namespace kel {

enum class crop_box { none, field, planned_crop, previous_crop, manures, question };

enum class crop_question {
    potato_kind,  // gives the code
    grass_kind,   // gives the code
    delayed_sowing,
    spring_rain,
    summer_rain,
    wheat_market,
    barley_market,
    take_all,
    undersowing,
    turnip_rape,
    variety,
};

/// The questions of a crop of the planned crop list; none for a crop without.
std::span<const crop_question> questions_of(std::string_view planned_name);

/// What a row's spring rainfall cell asks.
std::span<const crop_question> questions_of_spring_rain();

/// What a vegetable may be asked besides.
std::span<const crop_question> questions_of_summer_rain();

/// Code of a crop of the planned crop list; empty for "Potatoes", whose type has to be asked, and for a name
/// that the list does not offer.
std::string_view planned_crop_code(std::string_view planned_name);
/// The name that the planned crop list has for a code; empty for none, and for sown grass, which has two.
std::string_view planned_list_name(std::string_view code);

/// The question with its instruction and answers, none chosen.
opening question_opening(crop_question question);
/// The spring rainfall question of a row's own cell, with the answer that it has.
opening spring_rain_opening(std::string_view status);
/// Status of an answer to it by its place; empty for none.
std::string_view spring_status_of(std::optional<int> choice);

// Of the questions whose answers have fixed figures, wheat market to variety.
/// Where an answer is written: its figure and, of a market, its word.
struct answer_columns {
    int figure;
    int word;  // -1: none
};
answer_columns columns_of(crop_question question);
std::span<const crop_answer> answers_to(crop_question question);

}  // namespace kel
