// The port to the person: everything the program says or asks goes through it, so that modules know no
// toolkit and tests can hand in a script of expected messages and answers.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kel {

enum class message_kind { warning, information, question, stop };
enum class message_buttons { ok, yes_no, yes_no_cancel };
enum class answer { ok, yes, no, cancel };

/// One box. An empty title shows the program's title.
struct message {
    std::string title;
    std::string text;
    message_kind kind = message_kind::warning;
    message_buttons buttons = message_buttons::ok;
    bool operator==(const message&) const = default;
};

/// One file dialog; the file name box starts empty. A dialog that saves asks before it overwrites.
struct file_request {
    std::string title;
    std::string filter;  // "KEL database (*.kel)|*.kel"; empty: a folder is asked for
    std::string folder;  // where it opens
    bool operator==(const file_request&) const = default;
};

/// A list to be read, with two lines above it (either may be empty) and OK.
struct titled_list {
    std::string heading;
    std::string note;
    std::vector<std::string> rows;
    bool operator==(const titled_list&) const = default;
};

inline constexpr std::string_view assessment_filter = "KEL database (*.kel)|*.kel";
inline constexpr std::string_view line_break = "\r\n";

class prompts {
  public:
    virtual ~prompts() = default;
    /// Shows a box with its buttons and returns the one pressed.
    virtual answer ask(const message& box) = 0;
    void tell(const message& box) { ask(box); }
    /// Returns when the list has been read.
    virtual void show_list(const titled_list& list) = 0;
    /// The path chosen, or an empty text when cancelled. A save dialog adds the extension of its filter.
    virtual std::string file_to_open(const file_request& request) = 0;
    virtual std::string file_to_save(const file_request& request) = 0;
};

}  // namespace kel
