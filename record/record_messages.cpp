#include "record/record_messages.h"

namespace kel::record_messages {

namespace {

constexpr std::string_view review_closed_period =
    " has been made to a field that has not been assessed for closed periods. You should review the closed "
    "period "
    "in the manure storage assessment section.";

std::string breach(std::string_view applied, const std::string& day, std::string_view review) {
    return std::string("Closed Period Breach: An application of ").append(applied).append(" on ") + day +
           " is within a closed period. You should review your " + std::string(review) + ".";
}

std::string uncertain(std::string_view applied, const std::string& day) {
    return std::string("Closed Period Uncertain. The application of ").append(applied).append(" on ") + day +
           std::string(review_closed_period);
}

}  // namespace

std::string unreadable_day(const std::string& text) {
    return "An application with the date \"" + text +
           "\" is not in this record, since that cannot be read as a date. You should review the "
           "applications made "
           "to this field.";
}

std::string requirement_exceeded(const std::string& applied, const std::string& required) {
    return "Nitrogen Requirement Exceeded: The amount of inorganic N applied is more than the crop "
           "requires. " +
           applied + " kg/ha has been applied to the crop when it only requires " + required +
           " kg/ha.  You should review your applications of inorganic Nitrogen and or the requirement for "
           "the "
           "crop.";
}

std::string manure_breach(const std::string& day) {
    return breach("manure", day, "manure applications");
}

std::string manure_uncertain(const std::string& day) {
    return uncertain("manure to", day);
}

std::string inorganic_breach(const std::string& day) {
    return breach("inorganic nitrogen", day, "inorganic nitrogen applications");
}

std::string inorganic_uncertain(const std::string& day) {
    return uncertain("inorganic nitrogen", day);
}

message csv_saved(const std::string& path) {
    return {std::string(csv_title), "File saved OK to " + path, message_kind::information};
}

}  // namespace kel::record_messages
