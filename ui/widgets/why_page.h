// The page of the panel "Why?": an account as rich text that reads from the subject down to the result. What
// comes from the farm is escaped; colours are the palette's.
#pragma once

#include <QString>
#include <string>
#include <string_view>

#include "core/explanation.h"

namespace kel {

/// `shown` is what the cell or label holds, for the note that it is older than what was entered since.
QString why_page(const explanation& why, std::string_view shown);
/// A subject and one sentence, where there is no account.
QString why_page(const std::string& subject, const QString& sentence);

}  // namespace kel
