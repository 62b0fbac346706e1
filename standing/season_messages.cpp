#include "standing/season_messages.h"

namespace kel::season_messages {

namespace {

std::string counted(int number, std::string_view one, std::string_view more) {
    return std::to_string(number).append(" ").append(number == 1 ? one : more);
}

}  // namespace

std::string manure_closed(const std::string& days, const std::string& soil, const std::string& crops) {
    return "Closed to slurries and manures " + days + ": " + soil + ", crops " + crops + ".";
}

std::string manure_closed_as_stored(const std::string& days) {
    return "Closed to slurries and manures " + days +
           ": as it was settled when the field's crops were entered in Step 2.";
}

std::string no_land(const std::string& days) {
    return "No land is free for slurries and manures " + days + ", as entered in Step 2.";
}

std::string fertiliser_closed(const std::string& days, const std::string& zone, const std::string& crops) {
    return "Closed to inorganic nitrogen " + days + ": " + (zone.empty() ? "" : zone + ", ") + "crops " +
           crops + ".";
}

std::string unreadable_crops(const std::string& crops) {
    return "The crops \"" + crops + "\" cannot be read. Enter the field's crops in Step 2.";
}

std::string last_year_not_counted(const std::string& trouble) {
    return "Last year's applications cannot be counted. " + trouble;
}

std::string of_unknown_fields(int applications) {
    return counted(applications, "application names a field that is", "applications name a field that is") +
           " not in the farm profile.";
}

std::string outside_year(int applications) {
    return counted(applications, "application of fertiliser has", "applications of fertiliser have") +
           " no date within the KEL year.";
}

}  // namespace kel::season_messages
