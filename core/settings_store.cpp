#include "core/settings_store.h"

#include <charconv>
#include <fstream>
#include <stdexcept>

#include "core/assessment_files.h"
#include "core/whole_file.h"

namespace kel {

namespace {

std::string next_line(std::istream& store) {
    std::string line;
    if (!std::getline(store, line)) throw std::runtime_error("a line of the settings store is missing");
    if (!line.empty() && line.back() == '\r') line.pop_back();
    return line;
}

int next_integer(std::istream& store) {
    const std::string line = next_line(store);
    const auto start = std::min(line.find_first_not_of(" \t"), line.size());
    int value = 0;
    const auto [end, error] = std::from_chars(line.data() + start, line.data() + line.size(), value);
    if (error != std::errc{}) throw std::runtime_error("a line of the settings store is no number");
    return value;
}

// One line holds one path. A path that would not fit into a line, or would be taken for something else,
// stands in quotes with its line breaks spelled out.
bool needs_quotes(const std::string& path) {
    return path == "none" || path.front() == '"' || path.find_first_of("\r\n") != std::string::npos;
}

std::string slot_line(const std::string& path) {
    if (path.empty()) return "none";
    if (!needs_quotes(path)) return path;
    std::string line = "\"";
    for (const char c : path) {
        if (c == '\n')
            line += "\\n";
        else if (c == '\r')
            line += "\\r";
        else if (c == '\\')
            line += "\\\\";
        else
            line += c;
    }
    return line + '"';
}

std::string slot_path(const std::string& line) {
    if (line == "none") return {};
    if (line.empty() || line.front() != '"') return line;
    std::string path;
    for (std::size_t i = 1; i + 1 < line.size(); ++i) {
        if (line[i] == '\\' && i + 2 < line.size()) {
            ++i;
            path += line[i] == 'n' ? '\n' : line[i] == 'r' ? '\r' : line[i];
        } else {
            path += line[i];
        }
    }
    return path;
}

std::string next_slot(std::istream& store) {
    std::string path = slot_path(next_line(store));
    if (!path.empty() && check_assessment_file(path) == 0) path.clear();
    return path;
}

void read_lines(application_state& state, std::istream& store) {
    state.no_link_prompt = next_integer(store);
    state.no_related_prompt = next_integer(store);
    state.slot_selected = next_integer(store);
    state.slot_current = next_slot(store);
    // A link cannot outlive the file it belongs to.
    const bool linked = !state.slot_current.empty();
    state.slot_prev1 = next_slot(store);
    state.slot_prev2 = next_slot(store);
    if (!linked) {
        state.slot_prev1.clear();
        state.slot_prev2.clear();
    }
}

void forget_all(application_state& state) {
    for (std::string* path : {&state.assess_file, &state.prev1_file, &state.prev2_file, &state.slot_current,
                              &state.slot_prev1, &state.slot_prev2})
        path->clear();
    state.no_link_prompt = 0;
    state.no_related_prompt = 0;
}

}  // namespace

void set_working_files(application_state& state) {
    switch (state.slot_selected) {
        case 1:
            state.assess_file = state.slot_current;
            state.prev1_file = state.slot_prev1;
            state.prev2_file = state.slot_prev2;
            break;
        case 2:
            state.assess_file = state.slot_prev1;
            state.prev1_file = state.slot_prev2;
            state.prev2_file.clear();
            break;
        case 3:
            state.assess_file = state.slot_prev2;
            state.prev1_file.clear();
            state.prev2_file.clear();
            break;
        default:
            break;
    }
}

void read_store(application_state& state) {
    const std::string before = state.assess_file;
    try {
        std::ifstream store(state.places.settings_store(), std::ios::binary);
        read_lines(state, store);
        set_working_files(state);
    } catch (const std::exception&) {
        forget_all(state);
    }
    if (state.assess_file != before) ++state.assessment;
}

void write_store(const application_state& state) {
    const auto slot = [](const std::string& path) { return slot_line(path) + "\n"; };
    const auto number = [](int value) { return std::to_string(value) + "\n"; };
    write_whole_file(state.places.settings_store(),
                     number(state.no_link_prompt) + number(state.no_related_prompt) +
                         number(state.slot_selected) + slot(state.slot_current) + slot(state.slot_prev1) +
                         slot(state.slot_prev2),
                     "the settings");
}

}  // namespace kel
