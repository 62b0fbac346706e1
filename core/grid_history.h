// Undo and redo of a module's tables. The history compares them, and the few working values that belong to
// them, with what they were after the step before, and keeps only what differs: the rows that have come or
// gone, and the cells of the others.
#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "core/text_grid.h"

namespace kel {

/// One thing that a history watches.
class watched_part {
  public:
    virtual ~watched_part() = default;
    /// Puts back what stood there, and is then the way back to what stands there now.
    using change = std::function<void()>;
    /// What leads from the present to the state last known, which the present then becomes; nothing if
    /// nothing has changed.
    virtual change difference() = 0;
    /// The present becomes the state known; what was saved then is still taken for saved.
    virtual void accept() = 0;
    /// The present becomes the state known and the saved one.
    virtual void set_saved() { accept(); }
    /// False only for a table that is not as it was saved.
    virtual bool is_saved() const { return true; }
    /// The table that the part is; null for a working value.
    virtual const text_grid* table() const { return nullptr; }
};

/// Watches a table.
class watched_table : public watched_part {
  public:
    /// The table as it was loaded or last saved; for a page that saves some of the columns.
    virtual const text_grid& saved() const = 0;
    virtual void set_saved_as(text_grid saved) = 0;
};
std::unique_ptr<watched_part> watch(text_grid& grid);

template <class Value>
class watched_value : public watched_part {
  public:
    explicit watched_value(Value& value) : value_(value), known_(value) {}

    change difference() override {
        if (value_ == known_) return {};
        return [this, other = std::exchange(known_, value_)]() mutable {
            std::swap(value_, other);
            known_ = value_;
        };
    }
    void accept() override { known_ = value_; }

  private:
    Value& value_;
    Value known_;
};

template <class Value>
std::unique_ptr<watched_part> watch(Value& value) {
    return std::make_unique<watched_value<Value>>(value);
}

class grid_history {
  public:
    /// Watches these tables and working values of a module, which must outlive it.
    template <class... Parts>
    explicit grid_history(Parts&... parts) {
        (parts_.push_back(watch(parts)), ...);
    }
    grid_history(const grid_history&) = delete;
    grid_history& operator=(const grid_history&) = delete;

    /// Called after each undo and redo: works out anew what follows from the tables and is not watched.
    void on_restored(std::function<void()> restored) { restored_ = std::move(restored); }

    /// Call it after each load and save: from here on nothing can be undone, and nothing is unsaved.
    void begin_anew();
    /// From here on nothing can be undone; what is not saved stays so.
    void forget_steps();
    /// Takes the tables as they now are without a step, as after a change that is no person's: a table that
    /// was saved before it still counts as saved.
    void accept();
    /// Whether a table differs from what was loaded or last saved.
    bool unsaved() const;
    /// A watched table as it was loaded or last saved, and what it is after a save of some of its columns.
    const text_grid& saved(const text_grid& table) const { return watched(table).saved(); }
    void set_saved(const text_grid& table, text_grid saved) { watched(table).set_saved_as(std::move(saved)); }
    /// Makes one step of what has changed in the tables since the last one; false if nothing has. Working
    /// values alone make none.
    bool record();

    bool can_undo() const { return !undone_from_.empty(); }
    bool can_redo() const { return !redone_from_.empty(); }
    /// What has not been recorded is a step of its own. Returns the first table that changed, or null when
    /// there was nothing to undo.
    const text_grid* undo();
    const text_grid* redo();

    static constexpr std::size_t most_steps = 250;

  private:
    struct part_change {
        const text_grid* table;
        watched_part::change swap;
    };
    using step = std::vector<part_change>;
    step difference();
    watched_table& watched(const text_grid& table) const;
    const text_grid* swap(std::deque<step>& from, std::deque<step>& to);

    std::vector<std::unique_ptr<watched_part>> parts_;
    std::deque<step> undone_from_;  // the newest last
    std::deque<step> redone_from_;
    std::function<void()> restored_;
};

}  // namespace kel
