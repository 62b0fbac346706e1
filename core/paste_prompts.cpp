#include "core/paste_prompts.h"

#include <algorithm>

namespace kel {

namespace {

std::string in_one_line(std::string_view text) {
    std::string line;
    for (const char c : text) {
        const bool gap = c == '\r' || c == '\n';
        if (!gap)
            line += c;
        else if (!line.empty() && line.back() != ' ')
            line += ' ';
    }
    return line;
}

std::string_view word_of(answer given) {
    return given == answer::yes ? "Yes" : given == answer::no ? "No" : "Cancel";
}

}  // namespace

message too_much_to_paste(std::size_t cells) {
    return {"Paste",
            "These are " + std::to_string(cells) + " cells. At most " + std::to_string(most_pasted_cells) +
                " can be pasted at once, so nothing has been pasted. Please paste them in parts.",
            message_kind::information, message_buttons::ok};
}

message for_all_of_paste(message question) {
    question.text += std::string(line_break) + std::string(line_break) +
                     "The answer is taken for this question in all of this paste.";
    return question;
}

void paste_prompts::begin_paste() {
    end_paste();
    pasting_ = true;
}

void paste_prompts::end_paste() {
    pasting_ = false;
    told_.clear();
    answered_.clear();
}

answer paste_prompts::answer_for_all(const message& question) {
    const auto known =
        std::ranges::find(answered_, question, [](const auto& row) -> const message& { return row.first; });
    if (known != answered_.end()) return known->second;
    return answered_.emplace_back(question, person_.ask(for_all_of_paste(question))).second;
}

answer paste_prompts::ask(const message& box) {
    if (!pasting_) return person_.ask(box);
    if (box.buttons == message_buttons::ok) {
        told_.push_back(in_one_line(box.text));
        return answer::ok;
    }
    const answer given = answer_for_all(box);
    told_.push_back(in_one_line(box.text) + " - " + std::string(word_of(given)));
    return given;
}

void paste_prompts::show_list(const titled_list& list) {
    if (!pasting_) return person_.show_list(list);
    std::string told = list.heading + ' ' + list.note;
    for (std::size_t row = 0; row < list.rows.size(); ++row)
        told += (row == 0 ? " " : "; ") + list.rows[row];
    told_.push_back(in_one_line(told));
}

}  // namespace kel
