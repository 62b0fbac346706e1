// The recommendation of the stocking route: what each field feeds and the nitrogen that it needs for it, and
// the moving of feed between silage fields.
#pragma once

#include <string>
#include <vector>

#include "core/explanation.h"
#include "core/prompts.h"
#include "grass/grass_farm.h"

namespace kel {

class silage_page {
  public:
    silage_page(prompts& person, grass_farm& farm)
        : person_(person), farm_(farm), table_(empty_silage_grid()) {}

    const text_grid& table() const { return table_; }
    const silage_plan& plan() const { return plan_; }
    /// The table for the report: without rows once the site table or the stored livestock have become others
    /// than those that it was built from.
    text_grid reported() const;
    /// What the farm has, what is grazed and what is left, in a line.
    std::string summary(explanation* why = nullptr) const;
    /// Why a cell of the table is what it is: built and altered as the table in view was.
    explanation why(int row, int column) const;

    /// Builds the table from the stocking table, and names the fields without an area.
    void fill();
    void clear();

    /// Whether the two lists are open.
    bool varying() const { return varying_; }
    /// What both lists hold.
    std::vector<std::string> silage_fields() const;
    /// "Vary Silage Production Rates".
    void vary() { varying_ = true; }
    /// "Make Alteration". False, after a message, when nothing was moved.
    bool make_alteration(const std::string& decrease, const std::string& increase);
    /// "Finish Alterations".
    void finish_alterations() { varying_ = false; }

    /// The rates as they were stored.
    void keep_rates();

  private:
    bool refuse(const message& reason);
    silage_plan built_again(const silage_account& account) const;
    void name_fields_without_area();

    prompts& person_;
    grass_farm& farm_;
    silage_plan plan_;
    std::vector<stocked_field> built_from_;
    float built_for_lus_ = 0;
    // What the plan went on from, for its account: saving the rates changes the fields that it was built
    // from.
    std::vector<stocked_field> filled_from_;
    silage_working worked_with_before_{};
    struct alteration {
        std::string decrease;
        std::string increase;
    };
    std::vector<alteration> alterations_;
    std::vector<int> altered_classes_;  // of each row
    text_grid table_;
    bool varying_ = false;
};

}  // namespace kel
