// The first page of Step 2: the dirty water answers in one of two forms.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/application_state.h"
#include "core/assessment_store.h"
#include "core/prompts.h"
#include "storage/dirty_water.h"

namespace kel {

enum class dirty_water_form { estimate, actual };

class dirty_water_page {
  public:
    dirty_water_page(application_state& state, prompts& person);

    dirty_water_form form() const { return form_; }
    const dirty_water_answers& answers() const { return answers_; }
    /// What stands above the boxes of the form shown.
    std::string instruction() const;

    /// Answers and form of [Store_in]; empty answers on the estimate form without a row.
    void load(const std::optional<dirty_water_answers>& stored);

    /// cmdStorage3_water_cows and cmdStorage3_water_actual. The boxes of the other form are emptied.
    void show_form(dirty_water_form form);
    // What the person types into a box; a change empties the boxes of the other form.
    void set_cows(const std::string& text);
    void set_pig_pens(const std::string& text);
    void set_actual(const std::string& text);

    /// cmdStorage3_water_lastyear: the answers of last year's file. Throws file_error.
    void take_last_year();

    /// Tells the first answer that is missing.
    bool complete();

  private:
    void empty_other_boxes(dirty_water_form form);
    void show_stored(const dirty_water_answers& stored);

    application_state& state_;
    prompts& person_;
    dirty_water_form form_ = dirty_water_form::estimate;
    dirty_water_answers answers_;
};

/// What is told of the first answer that is missing; null: none is.
const message* missing_answer(const dirty_water_answers& answers);

/// The answers in [Store_in]; nothing without a row.
std::optional<dirty_water_answers> read_dirty_water(const database& db);
/// Replaces the row of [Store_in]: mean rainfall in mm by month, and the answers that are not empty. Call it
/// within a save_transaction.
void write_store_in(const database& db, const monthly_values& rain_mm, const dirty_water_answers& answers);

}  // namespace kel
