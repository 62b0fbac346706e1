#include "crops/crop_questions.h"

#include <algorithm>
#include <array>

#include "crops/crop_grids.h"
#include "crops/crop_messages.h"
#include "rules/crop_catalogue.h"
#include "rules/crop_lists.h"

namespace kel {

namespace {

namespace text = crop_messages;
using enum crop_question;

struct asked_crop {
    std::string_view name;
    int count;
    std::array<crop_question, 3> questions;
};

// The crops with questions, by the names of the planned crop list. All others are asked nothing.
// clang-format off
constexpr asked_crop asked_crops[] = {
    {"Winter wheat",                                     3, {wheat_market,  take_all,       spring_rain}},
    {"Winter barley",                                    2, {barley_market, spring_rain}},
    {"Winter oilseed rape",                              1, {spring_rain}},
    {"Winter oats",                                      1, {spring_rain}},
    {"Triticale",                                        1, {spring_rain}},
    {"Spring barley (feed or high N malting)",           3, {undersowing,   delayed_sowing, spring_rain}},
    {"Spring barley (low N malting)",                    3, {undersowing,   delayed_sowing, spring_rain}},
    {"Spring oats",                                      3, {undersowing,   delayed_sowing, spring_rain}},
    {"Spring oilseed rape",                              2, {turnip_rape,   spring_rain}},
    {"Potatoes",                                         3, {potato_kind,   variety,        spring_rain}},
    {"Direct sown grass and grass/clover (spring sown)", 1, {grass_kind}},
    {"Direct sown grass and grass/clover (autumn sown)", 1, {grass_kind}},
};

// The questions whose answers have fixed figures: what is shown and where an answer is written.
struct fixed_question {
    crop_question question;
    std::string_view caption;
    std::string_view instruction;
    answer_columns columns;
    std::span<const crop_answer> (*answers)();
};
constexpr fixed_question fixed_questions[] = {
    {wheat_market,  text::wheat_market_question,  text::market_instruction,      {crop_column::market,      crop_column::notes_ww}, wheat_market_answers},
    {barley_market, text::barley_market_question, text::market_instruction,      {crop_column::market,      crop_column::notes_wb}, barley_market_answers},
    {take_all,      text::take_all_question,      text::take_all_instruction,    {crop_column::take_all,    -1},                    take_all_answers},
    {undersowing,   text::undersowing_question,   text::undersowing_instruction, {crop_column::undersowing, -1},                    undersowing_answers},
    {turnip_rape,   text::turnip_rape_question,   text::turnip_rape_instruction, {crop_column::turnip_rape, -1},                    turnip_rape_answers},
    {variety,       text::variety_question,       text::variety_instruction,     {crop_column::variety,     -1},                    variety_answers},
};

struct spring_answer {
    std::string_view text;
    std::string_view status;
};
constexpr spring_answer spring_answers[] = {
    {text::more_than_200_mm, rain_status::high},
    {text::less_than_200_mm, rain_status::low},
};
// clang-format on

opening options(std::string_view caption, std::string_view instruction, std::vector<std::string> choices,
                part_kind kind = part_kind::options) {
    return {crop_box::question,
            caption,
            instruction,
            {{.kind = kind, .text = {}, .choices = std::move(choices), .unit = {}}}};
}

const fixed_question& fixed_row(crop_question question) {
    return *std::ranges::find(fixed_questions, question, &fixed_question::question);
}

opening fixed_opening(crop_question question) {
    const fixed_question& row = fixed_row(question);
    return options(row.caption, row.instruction, choices_of(row.answers(), &crop_answer::text));
}

opening delay_opening() {
    opening shown = options(text::delay_question, text::delay_instruction,
                            {std::string(text::not_delayed), std::string(text::delayed_by)},
                            part_kind::options_with_number);
    shown.parts.front().unit = text::days;
    return shown;
}

opening spring_question_opening() {
    opening shown = options(text::spring_question, text::spring_instruction,
                            choices_of(spring_answers, &spring_answer::text));
    shown.parts.front().column = crop_column::spring_status;
    shown.parts.front().cell_texts = choices_of(spring_answers, &spring_answer::status);
    return shown;
}

}  // namespace

std::span<const crop_question> questions_of(std::string_view planned_name) {
    const auto found = std::ranges::find(asked_crops, planned_name, &asked_crop::name);
    if (found == std::end(asked_crops)) return {};
    return std::span(found->questions).first(static_cast<std::size_t>(found->count));
}

std::span<const crop_question> questions_of_spring_rain() {
    static constexpr std::array only{spring_rain};
    return only;
}

std::span<const crop_question> questions_of_summer_rain() {
    static constexpr std::array only{summer_rain};
    return only;
}

std::string_view planned_crop_code(std::string_view planned_name) {
    const auto catalogue = load_crop_catalogue();
    const auto found = std::ranges::find(catalogue, planned_name, &crop::planned_name);
    return found == catalogue.end() ? std::string_view{} : found->planned_code;
}

std::string_view planned_list_name(std::string_view code) {
    // Sown grass: the code does not say in which season.
    if (code.empty() || code == "G" || code == "G/C") return {};
    if (std::ranges::count(potato_types(), code, &potato_type::code) > 0) return "Potatoes";
    for (const std::string_view name : planned_crop_list())
        if (planned_crop_code(name) == code) return name;
    return {};
}

opening question_opening(crop_question question) {
    switch (question) {
        case potato_kind:
            return options(text::potato_caption, text::potato_instruction,
                           choices_of(potato_types(), &potato_type::name), part_kind::list);
        case grass_kind:
            return options(text::grass_question, {},
                           {std::string(text::grass), std::string(text::grass_clover)});
        case delayed_sowing:
            return delay_opening();
        case spring_rain:
            return spring_question_opening();
        case summer_rain:
            return options(text::summer_question, {}, {"Yes", "No"});
        default:
            return fixed_opening(question);
    }
}

opening spring_rain_opening(std::string_view status) {
    opening shown = question_opening(spring_rain);
    shown.caption = text::spring_caption;
    shown.instruction = text::spring_question;
    for (const spring_answer& row : spring_answers)
        if (row.status == status) shown.parts.front().text = row.text;
    return shown;
}

std::string_view spring_status_of(std::optional<int> choice) {
    return choice ? spring_answers[static_cast<std::size_t>(*choice)].status : std::string_view{};
}

answer_columns columns_of(crop_question question) {
    return fixed_row(question).columns;
}

std::span<const crop_answer> answers_to(crop_question question) {
    return fixed_row(question).answers();
}

}  // namespace kel
