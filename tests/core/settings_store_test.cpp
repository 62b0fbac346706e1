#include "core/settings_store.h"

#include <filesystem>

#include "core/file_error.h"
#include "tests/support/farm_files.h"

namespace kel::test {
namespace {

class SettingsStore : public farm_test {
  protected:
    void store_holds(const std::string& text) { write_file(state.places.settings_store(), text); }
    std::string slots() const { return state.slot_current + "|" + state.slot_prev1 + "|" + state.slot_prev2; }
};

TEST_F(SettingsStore, RoundTripKeepsTheChainAndTheFlags) {
    state.slot_current = make_farm("Braes of Ärd.kel", {});
    state.slot_prev1 = make_farm("last \"year\"\\n\r\n.kel", {}, 2023);
    state.slot_selected = 2;
    state.no_related_prompt = 1;
    write_store(state);
    application_state fresh;
    fresh.places = state.places;
    read_store(fresh);
    EXPECT_EQ(fresh.assess_file, state.slot_prev1);
    EXPECT_EQ(fresh.prev1_file, "");
    EXPECT_EQ(fresh.slot_current, state.slot_current);
    EXPECT_EQ(fresh.slot_prev1, state.slot_prev1) << "a name with line breaks keeps to its line";
    EXPECT_EQ(fresh.no_related_prompt, 1);
    EXPECT_EQ(fresh.no_link_prompt, 0);
}

TEST_F(SettingsStore, AnUnreadableStoreEmptiesPathsAndFlagsInSilence) {
    for (const char* junk :
         {"", "1\n", "x\n0\n1\nnone\nnone\nnone\n", "1\n1\n1\nnone\nnone", "\xff\xfe\x00", "1\n1\n"}) {
        SCOPED_TRACE(junk);
        store_holds(junk);
        state.assess_file = state.slot_current = "left over";
        state.no_link_prompt = 1;
        read_store(state);
        EXPECT_EQ(state.assess_file, "");
        EXPECT_EQ(slots(), "||");
        EXPECT_EQ(state.no_link_prompt, 0);
    }
}

TEST_F(SettingsStore, ALinkCannotOutliveItsCurrentFile) {
    const std::string current = make_farm("current.kel", {});
    const std::string older = make_farm("older.kel", {}, 2023);
    const std::string oldest = make_farm("oldest.kel", {}, 2022);
    const std::string flags = "0\r\n0\r\n3\r\n";
    store_holds(flags + current + "\r\n" + older + "\r\n" + oldest + "\r\n");
    read_store(state);
    EXPECT_EQ(state.assess_file, oldest) << "other line ends";

    std::filesystem::remove(older);
    read_store(state);
    EXPECT_EQ(slots(), current + "||" + oldest)
        << "the oldest is judged by the current file, not by the middle one";

    std::filesystem::remove(current);
    read_store(state);
    EXPECT_EQ(slots(), "||");
    store_holds("0\n0\n1\nnone\n" + oldest + "\nnone\n");
    read_store(state);
    EXPECT_EQ(slots(), "||");
}

TEST_F(SettingsStore, NoSlotSelectedLeavesTheWorkingFilesAlone) {
    const std::string current = make_farm("current.kel", {});
    store_holds("0\n0\n0\n" + current + "\nnone\nnone\n");
    read_store(state);
    EXPECT_EQ(state.assess_file, "");
    state.assess_file = current;
    read_store(state);
    EXPECT_EQ(state.assess_file, current);
}

TEST_F(SettingsStore, AStoreThatCannotBeWrittenIsNamed) {
    std::filesystem::create_directory(state.places.settings_store());
    try {
        write_store(state);
        FAIL();
    } catch (const file_error& e) {
        EXPECT_EQ(e.file(), state.places.settings_store());
    }
}

}  // namespace
}  // namespace kel::test
