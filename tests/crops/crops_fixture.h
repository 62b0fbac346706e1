// A farm of the KEL year 2024-25 opened in the crop module, with the person scripted.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "crops/crop_messages.h"
#include "crops/crop_module.h"
#include "tests/support/farm_files.h"
#include "tests/support/scripted_prompts.h"

namespace kel::test {

namespace says = crop_messages;
namespace col = crop_column;
using texts = std::vector<std::string>;

// The answers to the winter rainfall question, by their places.
inline constexpr int wet_winter = 0;
inline constexpr int dry_winter = 1;

struct opened_screens : screens {
    std::vector<std::pair<screen_id, screen_id>> in_place_of;
    void open(screen_id) override {}
    void open_in_place_of(screen_id opener, screen_id id) override { in_place_of.emplace_back(opener, id); }
    bool exists(screen_id) const override { return true; }
    bool in_view(screen_id) const override { return false; }
};

class crops_test : public farm_test {
  protected:
    /// Opens the module and confirms the winter rainfall.
    void open(const std::vector<test_field>& fields, int winter = dry_winter) {
        open_farm(fields);
        open_table(winter);
    }
    void open_table(int winter = dry_winter) {
        module.open();
        module.enter_winter_rain(winter);
    }

    static box_entry entry(const std::string& text, std::optional<date> first = {},
                           std::optional<date> second = {}) {
        return {{{.text = text}, {.day = first}, {.day = second}}};
    }
    static box_entry chosen(int place, const std::string& number = "") {
        return {{{.choice = place, .number = number}}};
    }
    outcome plan(int row, const std::string& crop) {
        return module.enter_planned_crop(row, entry(crop, make_date(31, 7, 2025), make_date(1, 10, 2024)));
    }
    outcome follow(int row, const std::string& crop) {
        return module.enter_previous_crop(row, entry(crop, make_date(31, 7, 2024)));
    }
    /// A row with field, previous and planned crop; the questions stay unanswered.
    void add_crop(int row, const std::string& field, const std::string& planned,
                  const std::string& previous) {
        EXPECT_TRUE(module.enter_field(row, field).closes);
        EXPECT_TRUE(follow(row, previous).closes);
        EXPECT_TRUE(plan(row, planned).closes);
    }

    std::string cell(int row, int column) const { return module.crops().cell(row, column); }
    texts cells(int row, int first, int last) const {
        texts found;
        for (int column = first; column <= last; ++column)
            found.push_back(cell(row, column));
        return found;
    }
    texts result(int row) const {
        texts found;
        for (int column = 0; column < module.results().column_count(); ++column)
            found.push_back(module.results().cell(row, column));
        return found;
    }

    scripted_prompts person;
    opened_screens shown;
    crop_module module{state, person, shown};
};

}  // namespace kel::test
