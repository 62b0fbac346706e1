#include "crops/crop_messages.h"

#include "rules/crop_catalogue.h"

namespace kel::crop_messages {

namespace {

message mismatch(std::string text) {
    return {"Crop mis-match", std::move(text), message_kind::question, message_buttons::yes_no};
}

titled_list members_of(const std::string& type, std::string heading) {
    titled_list list{std::move(heading), {}, {}};
    for (const std::string_view name : crop_type_members(type))
        list.rows.emplace_back(name);
    return list;
}

}  // namespace

message previous_crop_mismatch(const std::string& crop, const std::string& type) {
    return mismatch("The previous crop you have selected (" + crop +
                    ") does not match the crop type entered in step 2 of last years assessment (" + type +
                    ").  Do you want to proceed anyway?");
}

message planned_crop_mismatch(const std::string& crop, const std::string& type) {
    return mismatch("The crop you have selected (" + crop +
                    ") does not match the crop type entered in step 2 (" + type +
                    ").  Do you want to proceed anyway?");
}

titled_list previous_crops_of_type(const std::string& type) {
    return members_of(type, type + " crop types include the following crops:");
}

titled_list review_last_year(const std::string& type) {
    return members_of(type,
                      "You should review step 2 in last years assessment for this field and confirm the crop "
                      "type is correct. " +
                          type + " includes: ");
}

titled_list planned_crops_of_type(const std::string& type) {
    return members_of(type, type + " crop types include the following crops: ");
}

titled_list review_this_year(const std::string& type) {
    return members_of(type, "You should review step 2 for this field and confirm the crop type is correct. " +
                                type + " includes:");
}

}  // namespace kel::crop_messages
