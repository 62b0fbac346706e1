#include "core/explanation.h"

namespace kel {

void explanation::input(std::string_view name, std::string_view value, std::string_view unit,
                        std::string_view entered_in) {
    std::string text = std::string(name) + ": ";
    if (value.empty()) {
        text += "not entered";
    } else {
        text += value;
        if (!unit.empty()) text += ' ' + std::string(unit);
    }
    if (!entered_in.empty()) text += " (" + std::string(entered_in) + ')';
    add(explanation_line::kind::input, std::move(text));
}

void explanation::set_result(std::string shown, std::string_view unit) {
    result_ = std::move(shown);
    last_line_ = result_.empty() ? "The cell stays empty" : result_;
    if (!result_.empty() && !unit.empty()) last_line_ += ' ' + std::string(unit);
}

void explanation::set_missing(std::string what) {
    result_.clear();
    last_line_ = std::move(what);
}

void explanation::set_follows(std::string what) {
    result_.clear();
    last_line_ = std::move(what);
    of_entry_ = true;
}

std::string stale_note(const explanation& why, std::string_view shown) {
    if (why.of_entry() || why.result() == shown) return {};
    const auto named = [](std::string_view text) {
        return text.empty() ? std::string("nothing") : '"' + std::string(text) + '"';
    };
    return "The table shows " + named(shown) + ", worked out before something was changed; it would now be " +
           named(why.result()) + '.';
}

}  // namespace kel
