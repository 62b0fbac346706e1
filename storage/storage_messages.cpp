#include "storage/storage_messages.h"

namespace kel::storage_messages {

std::string plan_instruction() {
    std::string text =
        "Step 3: Use the three tables below to amend the slurry production and spreading regime of the farm. "
        "The "
        "graph below will automatically update to tell you whether the storage capacity on the farm has been "
        "exceeded.";
    text.append(line_break)
        .append(
            "The slurry production table allows you to enter data on the average number of animals of each "
            "type on "
            "the slurry system. The land availability table describes the THEORETICAL availabilty of "
            "spreading land, "
            "amend this if there are field areas you know cannot be spread at certain times of year. The "
            "slurry "
            "spreading table allows you to enter data on the times you wish to apply slurry.");
    text.append(line_break)
        .append(
            "Note: This element of the software will not tell you whether the applications you wish to make "
            "will be "
            "allowable under KEL regulations, this must be assessed elsewhere in this package.");
    return text;
}

std::string estimate_instruction() {
    return "To estimate dirty water production, enter the number of dairy cows on the farm and the number of "
           "pig "
           "pens cleaned per month (average) in the box below.";
}

std::string actual_instruction() {
    std::string text = "Enter the volume of dirty water production in the box below.";
    text.append(line_break)
        .append(
            "Note: Dairy/parlour wash water that is collected separately from slurry, is not regarded as "
            "slurry under "
            "the KEL rules and need not be included.");
    return text;
}

message no_rainfall(const std::string& town) {
    const std::string named = town.empty() ? "" : " (" + town + ")";
    return {"Rainfall", "There are no rainfall figures for the nearest town of the farm" + named +
                            ". The rain that falls into the slurry stores will be taken as 0. To include it, "
                            "select the nearest town in the farm profile."};
}

message crop_type_mismatch(std::string_view first_crop, std::string_view last_second_crop) {
    return {
        "Crop type mis-match",
        "This field was not set to " + std::string(first_crop) +
            " for the second crop type entered in step 2 of last years assessment (it was " +
            std::string(last_second_crop) +
            " last year). The first crop this year should match the second crop entered last year.  Do you "
            "want to proceed anyway?",
        message_kind::question, message_buttons::yes_no};
}

message crop_mismatch(std::string_view first_crop, std::string_view calculated_crop) {
    return {"Crop mis-match",
            "The crop type you have selected (" + std::string(first_crop) +
                ") for the first crop does not match the crop you have calculated a recommendation for (" +
                std::string(calculated_crop) + ").  Do you want to proceed anyway?",
            message_kind::question, message_buttons::yes_no};
}

message imported_field_does_not_exist(const std::string& name) {
    return {"Field does not exist", "The field you are trying to load (" + name +
                                        ") does not exist in the farm profile, and will not be imported. If "
                                        "you wish to include it in the "
                                        "analysis, the profile will need to be amended!"};
}

}  // namespace kel::storage_messages
