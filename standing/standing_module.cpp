#include "standing/standing_module.h"

#include "standing/standing_report.h"

namespace kel {

std::array<file_stamp, 3> standing_module::stamps() const {
    return {stamp_of(state_.assess_file), stamp_of(state_.prev1_file), stamp_of(state_.prev2_file)};
}

// A file that another program holds, or that changed meanwhile, is tried again at the next occasion.
void standing_module::bring_up_to_date() {
    const auto now = stamps();
    if (stamps_ == now) return;
    stamps_ = now;
    standing_.reset();
    if (state_.assess_file.empty()) return;
    if (!rain_) rain_.emplace(state_.places.climate_tables());
    standing_ = standing_of(linked_paths(state_), *rain_);
    if (!standing_->trouble.empty()) stamps_.reset();
}

void standing_module::report() {
    bring_up_to_date();
    if (standing_)
        generate_report(desk_, standing_report_file, standing_report(*standing_), screen_id::front,
                        screen_id::front);
}

}  // namespace kel
