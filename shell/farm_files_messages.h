// Every text about the recent assessments and the earlier copies.
#pragma once

#include <string>
#include <string_view>

#include "core/dates.h"
#include "core/earlier_copies.h"
#include "core/prompts.h"

namespace kel::farm_files_messages {

inline constexpr std::string_view restore_title = "Restore an earlier copy";
inline constexpr std::string_view recent_title = "Recent assessments";

/// "22/11/2026 14:32".
inline std::string moment_text(const moment& kept) {
    const std::string minute = std::to_string(kept.minute);
    const std::string hour = std::to_string(kept.hour);
    return short_date_text(kept.day) + " " + (hour.size() < 2 ? "0" : "") + hour + ":" +
           (minute.size() < 2 ? "0" : "") + minute;
}

inline message recent_gone(const std::string& path) {
    return {std::string(recent_title),
            "The assessment " + path + " is not there any more. It is taken out of the list.",
            message_kind::warning, message_buttons::ok};
}

inline message folder_not_opened(const std::string& folder) {
    return {"Open the folder", "The folder " + folder + " could not be opened.", message_kind::warning,
            message_buttons::ok};
}

inline const message unsaved_rows_go{
    "Unsaved changes",
    "A screen that is open holds changes that have not been saved. They will "
    "be lost. Do you want to proceed?",
    message_kind::warning, message_buttons::yes_no};

inline message no_copies(const std::string& folder) {
    return {std::string(restore_title),
            "There is no earlier copy yet. The first save of a day to an assessment leaves one in " + folder +
                ".",
            message_kind::information, message_buttons::ok};
}

inline message copy_damaged(const earlier_copy& copy, const std::string& trouble) {
    return {std::string(restore_title),
            "The copy of " + moment_text(copy.kept) + " cannot be put back: " + trouble +
                " Nothing has been changed.",
            message_kind::stop, message_buttons::ok};
}

inline message put_back_question(const earlier_copy& copy, const std::string& path) {
    return {std::string(restore_title),
            "The copy of " + moment_text(copy.kept) + " will be put back as " + path +
                ". What is there now is kept as another copy first. Do you want to proceed?",
            message_kind::question, message_buttons::yes_no};
}

inline message in_use_elsewhere(const std::string& path, const std::string& computer) {
    return {std::string(restore_title),
            "The assessment " + path + " is open in another copy of the program" +
                (computer.empty() ? "" : " on " + computer) +
                ". What is saved there later would go over what is put back. Do you want to proceed?",
            message_kind::warning, message_buttons::yes_no};
}

inline message present_not_kept(const std::string& trouble) {
    return {std::string(restore_title), trouble + " What is there now would be gone. Do you want to proceed?",
            message_kind::warning, message_buttons::yes_no};
}

inline message put_back(const std::string& path) {
    return {std::string(restore_title), "The copy was put back as " + path + ".", message_kind::information,
            message_buttons::ok};
}

inline message open_what_was_put_back(const std::string& path) {
    return {std::string(restore_title), "The copy was put back as " + path + ". Do you want to open it now?",
            message_kind::question, message_buttons::yes_no};
}

}  // namespace kel::farm_files_messages
