// Why a figure is what it is, in plain words. The rule that works a figure out tells it, where it does so: it
// takes an `explanation*` as its last parameter, null by default, and adds its lines beside its arithmetic,
// so that figure and account cannot part. A module hands the account of one cell or result to its screen.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kel {

struct explanation_line {
    enum class kind {
        rule,    // what holds, and why it holds here
        input,   // a figure or choice that went in, with its unit and where it was entered
        step,    // one piece of arithmetic with its rounding
        source,  // where the constants come from
    };
    kind what;
    std::string text;
    bool operator==(const explanation_line&) const = default;
};

class explanation {
  public:
    /// `subject` names the figure: "Available nitrogen of cattle slurry on Low Moss, 12 March 2026".
    explicit explanation(std::string subject) : subject_(std::move(subject)) {}

    void rule(std::string text) { add(explanation_line::kind::rule, std::move(text)); }
    /// "Area: 4.2 ha (Step 3, Area)". An empty value is told as not entered; the unit may be empty.
    void input(std::string_view name, std::string_view value, std::string_view unit,
               std::string_view entered_in);
    void step(std::string text) { add(explanation_line::kind::step, std::move(text)); }
    void source(std::string text) { add(explanation_line::kind::source, std::move(text)); }
    /// What comes out, letter by letter as its cell or label shows it once it has been worked out.
    void set_result(std::string shown, std::string_view unit);
    /// What is missing for a figure that cannot be worked out; it then has no result.
    void set_missing(std::string what);
    /// What follows from a cell that a person enters: nothing in the cell itself was worked out, so that it
    /// cannot be out of date.
    void set_follows(std::string what);

    const std::string& subject() const { return subject_; }
    const std::vector<explanation_line>& lines() const { return lines_; }
    const std::string& result() const { return result_; }
    /// The closing line: the result with its unit, what is missing, or what follows.
    const std::string& last_line() const { return last_line_; }
    /// Whether it tells what follows from an entry, and not where the cell's figure comes from.
    bool of_entry() const { return of_entry_; }

  private:
    void add(explanation_line::kind what, std::string text) { lines_.push_back({what, std::move(text)}); }

    std::string subject_;
    std::vector<explanation_line> lines_;
    std::string result_;
    std::string last_line_;
    bool of_entry_ = false;
};

/// What is told below an account whose result is not what the table shows, because something was entered
/// since it was worked out; empty where they agree, and for what follows from an entry.
std::string stale_note(const explanation& why, std::string_view shown);

}  // namespace kel
