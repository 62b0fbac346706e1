#include "standing/folder_module.h"

#include "core/file_choice.h"
#include "core/whole_file.h"
#include "standing/check_tables.h"
#include "standing/folder_messages.h"

namespace kel {

namespace text = folder_messages;

folder_module::folder_module(application_state& state, prompts& person, std::function<date()> today)
    : state_(state), person_(person), today_(std::move(today)), list_(check_columns()) {}

bool folder_module::choose_folder() {
    std::string chosen = person_.file_to_open({.title = std::string(text::title),
                                               .filter = {},
                                               .folder = folder_.empty() ? state_.last_dir : folder_});
    if (chosen.empty()) return false;
    folder_ = std::move(chosen);
    check_ = std::make_unique<folder_check>(folder_, state_.places.climate_tables());
    list_ = text_grid(check_columns());
    done_ = stopped_ = false;
    return true;
}

bool folder_module::work() {
    if (!working()) return false;
    if (check_->step()) return true;
    fill_list();
    return false;
}

void folder_module::stop() {
    if (!working()) return;
    stopped_ = true;
    check_->end();
    fill_list();
}

void folder_module::fill_list() {
    done_ = true;
    for (const checked_file& file : check_->files()) {
        const int row = list_.add_row();
        int column = 0;
        for (std::string& cell : check_cells(file, folder_))
            list_.set_cell(row, column++, std::move(cell));
    }
}

std::string folder_module::told() const {
    if (!check_) return std::string(text::nothing_yet);
    return (stopped_ ? std::string(text::stopped) : std::string()) + check_summary(check_->files());
}

std::string folder_module::file_name(std::string_view filter, std::string_view extension) {
    return with_extension(
        person_, text::title,
        person_.file_to_save(
            {.title = std::string(text::title), .filter = std::string(filter), .folder = folder_}),
        extension);
}

void folder_module::save_table() {
    const std::string path = file_name(text::table_filter, ".csv");
    if (path.empty()) return;
    write_whole_file(path, check_csv(check_->files(), folder_), "the table");
    person_.tell(text::saved(path));
}

void folder_module::save_page() {
    const std::string path = file_name(text::page_filter, ".htm");
    if (path.empty()) return;
    write_whole_file(path, check_html(check_->files(), folder_, today_()), "the page");
    person_.tell(text::saved(path));
}

}  // namespace kel
