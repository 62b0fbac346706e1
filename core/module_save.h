// A module's Save: where it goes, the question over rows that others have changed, and the transaction.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/application_state.h"
#include "core/fresh_file.h"
#include "core/loaded_rows.h"
#include "core/prompts.h"

namespace kel {

struct save_target {
    std::string path;
    std::string made_from;  // the file that it begins as a copy of; empty: it is there
    std::string application_state::*worked_on = &application_state::assess_file;  // becomes its path
};

/// What every module's Save does first. With an assessment open nothing is asked. Otherwise the file chosen
/// begins as a copy of the empty assessment; nothing chosen, or last year's file, ends the save.
/// `refusal_title` is the title of the warning for last year's file.
std::optional<save_target> file_to_save(application_state& state, prompts& person,
                                        std::string_view refusal_title = "Cannot Save File");

/// Opens the file, asks if its rows have changed since the module loaded them, and holds the transaction.
/// Nothing is written unless commit is reached. A file that is new is made beside its place; commit puts it
/// there, and only then is it worked on. Throws file_error.
class module_save {
  public:
    module_save(application_state& state, prompts& person, loaded_rows& rows, const save_target& target);

    /// False: the person keeps the rows that the file holds, and there is nothing to save into.
    explicit operator bool() const { return transaction_.has_value(); }
    const database& db() const { return *db_; }
    void commit();

  private:
    void begin(const std::string& path);
    void lock();
    void put_in_place();

    save_target target_;
    application_state& state_;
    prompts& person_;
    loaded_rows& rows_;
    std::optional<fresh_file> fresh_;
    std::optional<database> db_;
    file_stamp at_start_;  // of the file as this save found it
    std::optional<save_transaction> transaction_;
};

}  // namespace kel
