// The fields of the farm profile, as every module takes them from the assessment.
#pragma once

#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "core/assessment_store.h"

namespace kel {

/// The size in hectares is text as the profile has it.
struct farm_field {
    std::string name;
    std::string size;
    std::string soil;
};

/// [Field Data] in table order.
std::vector<farm_field> read_farm_fields(const database& db);

/// The names in table order, for the field lists.
std::vector<std::string> field_names(const std::vector<farm_field>& fields);

/// Whether a stored row's field is one of the farm's. Built once per load.
class known_fields {
  public:
    /// `fields` must outlive it.
    explicit known_fields(const std::vector<farm_field>& fields);
    bool contains(std::string_view name) const { return names_.contains(name); }

  private:
    std::unordered_set<std::string_view> names_;
};

}  // namespace kel
