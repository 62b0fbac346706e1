// How the panel "Why?" was left, for the next screen: as long as the program runs.
#pragma once

namespace kel {

struct why_place {
    bool open = false;
    int width_px = 0;  // 0: as wide as it comes
    int zoom = 0;      // steps of larger or smaller text
};

}  // namespace kel
