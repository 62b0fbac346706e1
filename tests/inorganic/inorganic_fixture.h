// A farm opened in the inorganic module, with the person scripted.
#pragma once

#include <string>
#include <vector>

#include "inorganic/inorganic_messages.h"
#include "inorganic/inorganic_module.h"
#include "tests/support/farm_files.h"
#include "tests/support/scripted_prompts.h"

namespace kel::test {

namespace says = inorganic_messages;
namespace col = inorganic_column;
using texts = std::vector<std::string>;

/// What a person puts into the application dialog.
struct application {
    std::optional<date> day;
    std::string type;
    std::string amount;
    std::string content;
    std::string comments;
    operator box_entry() const {
        return {{{.day = day}, {.text = type}, {.text = amount}, {.text = content}, {.text = comments}}};
    }
};

class inorganic_test : public farm_test {
  protected:
    /// Opens a farm of two fields in the KEL year from 19 December 2004.
    void open() {
        open_farm({{"Long Rig", "15"}, {"East Muir", "8"}}, 2004);
        module.inorganic_load_stuff();
    }
    /// Settles the field's use for the closed periods.
    void assess(const std::string& field, const std::string& crop_pair) {
        add_row(state.assess_file, "Land", {{"Field Area ID", field}, {"Crop", crop_pair}});
    }
    texts row(int r) const {
        texts found;
        for (int c = 0; c < module.applications().column_count(); ++c)
            found.push_back(module.applications().cell(r, c));
        return found;
    }
    /// What the application dialog of a row opens with.
    texts shown(int r) {
        texts found;
        for (const entry_part& part : module.click(r, inorganic_column::type).parts)
            found.push_back(part.text);
        return found;
    }
    /// The day on which the calendar stands once this one was picked for the first row.
    std::string picked(date day) { return module.pick_date(0, day).changes.at(0).text; }
    texts stored(const std::string& column) const {
        return column_of(state.assess_file, "Inorganic N", column);
    }

    scripted_prompts person;
    inorganic_module module{state, person};
};

}  // namespace kel::test
