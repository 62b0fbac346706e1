#include "manure/manure_messages.h"

#include "core/module_messages.h"

namespace kel::manure_messages {

namespace {

constexpr std::string_view reduction_displayed =
    "The amount by which the crop requirement for inorganic fertiliser N can be reduced is displayed in the "
    "table below. Click on the generate Report button to produce a report on these results, or click on the "
    "Back button to continue entering data.";
constexpr std::string_view result_note =
    "Note: The below represent the extent to which N available to the planned and next crop from manures and "
    "slurries may make it possible to reduce applications of inorganic fertilizers. Care must however be "
    "taken to ensure that fertilizer applications (organic or inorganic) do not exceed the crop requirement "
    "(see the appropriate element of this module).";

}  // namespace

std::string result_instruction() {
    return std::string(reduction_displayed).append(line_break).append(line_break).append(result_note);
}

message invalid_date(const std::string& refusal) {
    return {"Invalid date", refusal};
}

message field_without_land(const std::string& field) {
    return {"Land availability for spreading",
            "The land availability for spreading has not been assessed for field " + field +
                " yet, that should be done before carrying out this assessment!"};
}

std::string limit_warning(const std::vector<std::string>& fields) {
    std::string text;
    text.append(line_break).append(line_break).append(over_limit).append(line_break).append(line_break);
    for (const std::string& field : fields)
        text.append("- ").append(field).append(line_break);
    return text.append(line_break).append(examine_applications);
}

std::string closed_warning(const std::string& manure, const std::string& field, const std::string& day) {
    return "An application of " + manure + " to " + field + " on " + day +
           " is during a closed period for this crop and soil type. You should review the manure "
           "applications to this field";
}

message imported_field_does_not_exist(const std::string& name) {
    message box = module_messages::field_does_not_exist(name);
    box.title = "field does not exist";
    return box;
}

}  // namespace kel::manure_messages
