#include "core/left_behind.h"

#include "core/assessment_store.h"
#include "core/fresh_file.h"
#include "core/installation.h"
#include "core/super_journals.h"

namespace kel {

void clear_left_behind(const std::string& path) {
    remove_abandoned_files(folder_of(path));
    if (!has_super_journal(path)) return;
    try {
        const database db(path);
        const save_transaction no_other_save(db);
        remove_spent_super_journals(path);
    } catch (const file_error&) {
        // In use or read-only: the next one who opens it clears away.
    }
}

}  // namespace kel
