#include "core/farm_fields.h"

namespace kel {

std::vector<farm_field> read_farm_fields(const database& db) {
    std::vector<farm_field> fields;
    for (recordset rows = db.open("Field Data", {"Field Name", "Size", "Soil"}); !rows.eof();
         rows.move_next())
        fields.push_back({rows.text(0), rows.text(1), rows.text(2)});
    return fields;
}

std::vector<std::string> field_names(const std::vector<farm_field>& fields) {
    std::vector<std::string> names;
    names.reserve(fields.size());
    for (const farm_field& field : fields)
        names.push_back(field.name);
    return names;
}

known_fields::known_fields(const std::vector<farm_field>& fields) {
    for (const farm_field& field : fields)
        names_.insert(field.name);
}

}  // namespace kel
