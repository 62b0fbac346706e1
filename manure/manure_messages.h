// Every text that the manure module says, once.
#pragma once

#include "core/prompts.h"

namespace kel::manure_messages {

inline const message invalid_application_month{"Invalid application month",
                                               "An invalid application month has been entered!",
                                               message_kind::warning, message_buttons::ok};
inline const message invalid_soil_type{"Invalid soil type", "An invalid soil type has been entered!",
                                       message_kind::warning, message_buttons::ok};

}  // namespace kel::manure_messages
