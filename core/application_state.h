// The one program-wide record: what is open, where it lies and who called whom. It is made in main and handed
// by reference to everything that needs it.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/dates.h"
#include "core/earlier_copies.h"
#include "core/installation.h"
#include "core/open_mark.h"
#include "core/screens.h"

namespace kel {

/// Module from which the years dialog was opened; it is reloaded after OK.
enum class picker_module {
    front = 0,
    land = 1,
    storage = 2,
    manure = 3,
    inorganic = 4,
    crops = 5,
    grass = 6,
    straw = 7,
    record = 8,
    profile = 9,
};

/// Who opened the manure applications: the assessments screen, or the crops or the grassland module for the
/// crop now grown or for the one before it.
enum class manure_opener { front, new_crop, old_crop, new_grass, old_grass };

/// Whether the applications are those of last year's file.
bool for_previous_year(manure_opener opener);
/// The screen that the manure applications close to.
screen_id screen_of(manure_opener opener);

struct application_state {
    installation places;

    // The files worked on: this year's, the year before it, two years before it. Empty: none.
    std::string assess_file;
    std::string prev1_file;
    std::string prev2_file;
    // Moves on whenever another assessment, or another content, comes to stand behind assess_file. What a
    // screen loaded before belongs to the assessment before.
    int assessment = 0;
    std::shared_ptr<open_mark> mark = std::make_shared<open_mark>();  // on assess_file; copies share it
    std::shared_ptr<earlier_copies> copies = std::make_shared<earlier_copies>();  // shared likewise

    // The linked chain, newest first, and which of them is worked on (0 none, 1 to 3).
    std::string slot_current;
    std::string slot_prev1;
    std::string slot_prev2;
    int slot_selected = 0;

    // The two option boxes of the years dialog, 0 or 1.
    int no_link_prompt = 0;
    int no_related_prompt = 0;

    std::optional<date> kel_year_start;
    std::string farm_name;
    std::string farm_zone;
    std::string farm_town;
    year_limits limits{};

    picker_module picker_caller = picker_module::front;
    screen_id viewer_back = screen_id::front;       // screen to show again when the viewer closes
    std::string last_report_path;                   // last report shown in the viewer
    std::vector<std::string> last_report_pictures;  // that it shows beside the logo, in the report folder
    manure_opener manure_caller = manure_opener::front;
    std::string last_dir;      // last folder of a file dialog; not kept between runs
    std::string last_csv_dir;  // last folder of a CSV export; not kept either

    std::string short_date_format;  // of calendars and date boxes, forced at start-up
    std::string long_date_format;
};

/// Day-first formats for every calendar and date box, whatever the machine's locale is.
void set_short_date(application_state& state);
void set_long_date(application_state& state);

// Every change of assess_file ends with one of these.
/// Marks it for other copies of the program, and says if one of them has it open.
void mark_open_file(const application_state& state, prompts& person);
/// Goes on in another file with the same rows, which the screens therefore keep.
void go_on_in(application_state& state, prompts& person, const std::string& path);
/// No assessment is open any more; the chain stays.
void close_assessment(application_state& state);

/// Folder in which an assessment file dialog opens: the last one used, or User_files.
std::string dialog_folder(const application_state& state);

}  // namespace kel
