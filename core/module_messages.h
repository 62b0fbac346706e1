// What the modules say in the same words.
#pragma once

#include <string>

#include "core/prompts.h"

namespace kel::module_messages {

inline const message calculation{"Calculation", "This element is calculated automatically!",
                                 message_kind::information};
inline const message cannot_delete{"Cannot Delete", "This row cannot be deleted!", message_kind::information};
inline const message close_module{"Close Module",
                                  "Are you sure you wish to close this module, unsaved data will be lost?",
                                  message_kind::question, message_buttons::yes_no};
/// Some modules speak of "the module".
inline const message close_the_module{"Close Module",
                                      "Are you sure you wish to close the module, unsaved data will be lost?",
                                      message_kind::question, message_buttons::yes_no};
inline const message no_field_id{"No Field ID", "No field ID has been entered!"};
inline const message field_in_grid{"Field already in grid",
                                   "That field has already been entered in the grid. Please select an "
                                   "alternative field or click on Cancel."};

/// A stored row whose field the farm profile no longer has.
inline message field_does_not_exist(const std::string& name) {
    return {
        "Field does not exist",
        "The field you are trying to load (" + name +
            ") does not exist in the farm profile, and will not be imported. If you wish to include it in "
            "the analysis, the profile will need to be amended before continuing!"};
}

/// After the last box that one load shows.
inline message more_messages(int count) {
    const std::string messages =
        count == 1 ? "There was 1 more message" : "There were " + std::to_string(count) + " more messages";
    return {"Further messages", messages + " about the rows of this file."};
}

}  // namespace kel::module_messages
