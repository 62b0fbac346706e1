// What the module writes into the file, and what it takes from another one.
#include "core/file_choice.h"
#include "grass/grass_messages.h"
#include "grass/grass_module.h"
#include "rules/recommendations.h"

namespace kel {

namespace text = grass_messages;

std::optional<save_target> grass_module::chosen_target() {
    const std::string chosen = choose_file_to_save(state_, person_, text::save_title);
    if (chosen.empty()) return std::nullopt;
    if (!state_.prev1_file.empty() && same_file(chosen, state_.prev1_file)) {
        person_.tell(text::last_years_file);
        return std::nullopt;
    }
    if (same_file(chosen, state_.assess_file)) return save_target{state_.assess_file, {}};
    return save_target{chosen, state_.assess_file};
}

bool grass_module::save(const std::optional<save_target>& target,
                        const std::function<void(const database&)>& write) {
    if (!target) return false;
    module_save file(state_, person_, loaded_, *target);
    if (!file) return false;
    write(file.db());
    file.commit();
    history_.forget_steps();
    return true;
}

namespace {

// Which columns of the table a page saves. What is not stored is nobody's.
bool is_of_site_page(int column) {
    return column <= site_column::area || column == site_column::stocked_field;
}
bool is_of_stocking_page(int column) {
    return column >= site_column::area || column == site_column::soil || column == site_column::site_class ||
           column == site_column::use;
}

// The table as it is saved once the columns of its own have been: the others are those of before.
text_grid with_own_columns(const text_grid& before, const text_grid& now, bool (*own)(int column)) {
    text_grid saved = now;
    for (int row = 0; row < now.row_count(); ++row) {
        const std::string& field = now.cell(row, site_column::field);
        const bool stays = row < before.row_count() && before.cell(row, site_column::field) == field;
        const int stood = stays ? row : before.find(site_column::field, field);
        for (int c = 1; c < now.column_count(); ++c) {
            if (own(c)) continue;
            std::string text = stood < 0 ? std::string{} : before.cell(stood, c);
            if (text != now.cell(row, c)) saved.set_cell(row, c, std::move(text));
        }
    }
    return saved;
}

}  // namespace

void grass_module::set_site_saved(bool (*own)(int column)) {
    history_.set_saved(farm_.site, with_own_columns(history_.saved(farm_.site), farm_.site, own));
}

bool grass_module::cmdSite_save() {
    const bool saved =
        save(file_to_save(state_, person_), [this](const database& db) { save_site(db, farm_.site); });
    if (saved) set_site_saved(is_of_site_page);
    return saved;
}

bool grass_module::cmdLU_save() {
    const bool saved = save(chosen_target(), [this](const database& db) {
        save_livestock(db, farm_.livestock);
        save_stocking(db, farm_.stocking);
    });
    if (!saved) return false;
    take_saved_livestock();
    history_.set_saved(farm_.livestock, farm_.livestock);
    set_site_saved(is_of_stocking_page);
    return true;
}

bool grass_module::cmdGrass_SU_save() {
    const bool saved =
        save(chosen_target(), [this](const database& db) { save_stocking(db, farm_.stocking); });
    if (saved) set_site_saved(is_of_stocking_page);
    return saved;
}

bool grass_module::cmdGrass_rec_save() {
    const bool saved =
        save(chosen_target(), [this](const database& db) { save_silage_rates(db, silage_.plan()); });
    if (!saved) return false;
    silage_.keep_rates();
    history_.forget_steps();
    return true;
}

void grass_module::save_rec(const text_grid& results) {
    std::vector<recommendation> found;
    found.reserve(static_cast<std::size_t>(results.row_count()));
    for (int row = 0; row < results.row_count(); ++row)
        found.push_back({results.cell(row, grass_result_column::field),
                         results.cell(row, grass_result_column::to_be_applied)});
    const database db(state_.assess_file);
    save_transaction transaction(db, *state_.copies);
    save_recommendations(db, found);
    transaction.commit();
}

opening grass_module::change_database() const {
    return {stocking_box::change_database,
            text::change_database_caption,
            {},
            {{part_kind::options,
              {},
              {std::string(text::merge_choice), std::string(text::overwrite_choice),
               std::string(text::new_assessment_choice)}}}};
}

outcome grass_module::enter_change_database(const std::string& choice) {
    if (choice.empty()) return refuse(person_, text::no_value);
    if (choice == text::new_assessment_choice) {
        farm_.site = empty_site_grid();
        farm_.livestock = empty_livestock_grid();
    } else {
        const bool replace = choice == text::overwrite_choice;
        const std::string file =
            choose_file_to_open(state_, person_, replace ? text::overwrite_title : text::merge_title);
        if (file.empty()) return box_stays();
        take_from(database(file), replace);
    }
    stocking_.fill();
    silage_.clear();
    return box_closes();
}

namespace {

// The rows of `from` that `into` has no row of in its first column, or all of them in place of its own. Two
// rows of one text, as of two herds, come together.
void take_rows(text_grid& into, const text_grid& from, bool replace) {
    if (replace) {
        into = from;
        return;
    }
    const text_grid before = into;
    for (int row = 0; row < from.data_row_count(); ++row) {
        if (before.find(0, from.cell(row, 0)) >= 0) continue;
        const int at = into.row_count() - 1;
        for (int c = 0; c < into.column_count(); ++c)
            into.set_cell(at, c, from.cell(row, c));
        into.add_row();
    }
}

}  // namespace

// An empty table leaves the one here as it is, as with every import; one whose rows are all left out does
// not.
void grass_module::take_from(const database& other, bool replace) {
    load_messages told;
    const text_grid site = load_site(other, farm_.fields, told);
    const text_grid livestock = load_livestock(other);
    if (!other.open("Site").eof()) take_rows(farm_.site, site, replace);
    if (!other.open("LU").eof()) take_rows(farm_.livestock, livestock, replace);
    site_.set_site_classes();
    told.tell(person_);
}

}  // namespace kel
