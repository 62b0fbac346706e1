#include "rules/recommendations.h"

#include <string_view>
#include <unordered_map>

namespace kel {

void save_recommendations(const database& db, const std::vector<recommendation>& found) {
    std::unordered_map<std::string_view, const recommendation*> last;
    for (const recommendation& r : found)
        if (!r.field.empty()) last[r.field] = &r;
    recordset stored = db.open("Recommendations");
    const int field = stored.column("Field Area ID");
    const int required = stored.column("N required");
    for (; !stored.eof(); stored.move_next())
        if (last.contains(stored.view(field))) stored.remove();
    for (const recommendation& r : found) {
        if (r.field.empty() || last.at(r.field) != &r) continue;
        stored.add_new();
        stored.set_kept(field, r.field);
        stored.set_kept(required, r.n_required);
        stored.update();
    }
}

}  // namespace kel
