// Entry boxes made from the parts of an opening: each kind of editor, forms of several, and chains of
// questions, on a screen that has nothing but a grid.
#include <QDateEdit>
#include <QVBoxLayout>

#include "tests/ui/screen_fixture.h"
#include "ui/widgets/box_set.h"
#include "ui/widgets/module_screen.h"

namespace kel::test {

namespace {

enum class asked { none, question, form, figure };

constexpr std::array<grid_column, 2> columns{
    {{"One", "One", column_kind::entered, 20}, {"Two", "Two", column_kind::entered, 20}}};

entry_part part(part_kind kind, std::string text, std::vector<std::string> choices = {}) {
    return {.kind = kind, .text = std::move(text), .choices = std::move(choices)};
}

class asking_screen : public module_screen {
  public:
    asking_screen() : module_screen("frmAsking", "Asking") {
        cells.set_row_count(1);
        grid = new grid_view(cells, "MSFlexGridAsking", this);
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(grid);
        const auto take = [this](grid_cell, const box_entry& typed) { return taken(typed); };
        const auto transfer = [this](grid_cell, const box_entry&) { return transferred; };
        add_boxes(*grid, [this](int, int) { return first; },
                  {{asked::question, "Asking", take},
                   {asked::form, "Asking_form", take},
                   {asked::figure, "Asking_figure", take, {{"&Transfer data", "transfer", transfer}}}});
        resize(700, 600);
        show();
        activateWindow();
        grid->setFocus();
    }
    void reload() override {}

    /// Opens the box, and answers Enter with these outcomes, one after the other.
    void ask(opening shown, std::vector<outcome> answers = {box_closes()}) {
        first = std::move(shown);
        outcomes = std::move(answers);
        grid->choose_cell(0, 0);
    }
    bool box_open(const char* name) { return drive::control(this, name)->isVisible(); }
    template <class Control>
    Control* in_box(const char* name) {
        return drive::control<Control>(this, name);
    }

    text_grid cells{columns};
    grid_view* grid;
    std::vector<box_entry> entered;
    outcome transferred;

  protected:
    bool may_close() override { return true; }
    void refresh() override { grid->refresh(); }

  private:
    outcome taken(const box_entry& typed) {
        entered.push_back(typed);
        outcome answer = outcomes.front();
        if (outcomes.size() > 1) outcomes.erase(outcomes.begin());
        return answer;
    }
    opening first;
    std::vector<outcome> outcomes;
};

opening question(std::string_view caption, entry_part asked_part) {
    return {asked::question, caption, "State it, then click on the Enter button.", {std::move(asked_part)}};
}

}  // namespace

TEST(EntryParts, AChainOfQuestionsRunsThroughOneBoxWhateverItsKinds) {
    asking_screen screen;
    const opening delay = question(
        "Delayed?", {.kind = part_kind::options_with_number, .choices = {"No", "Yes by"}, .unit = "days"});
    const opening rain = question("Rain?", part(part_kind::drop_down, "Low", {"High", "Low"}));
    screen.ask(question("Undersown?", part(part_kind::options, "", {"Yes", "No"})),
               {leads_to(delay), leads_to(rain), box_closes()});
    ASSERT_EQ(focus_name(), "optAsking_1");
    press_key(Qt::Key_Down);
    press_key(Qt::Key_Return);
    EXPECT_EQ(screen.in_box<QLabel>("lblAsking_unit")->text(), "days");
    EXPECT_EQ(focus_name(), "optAsking_1");
    tab_to("txtAsking");
    type_text("1-2.5.");  // chooses "Yes by" by itself
    press_key(Qt::Key_Return);
    EXPECT_EQ(focus_name(), "cboAsking");
    press_key(Qt::Key_Up);
    press_key(Qt::Key_Return);
    EXPECT_FALSE(screen.box_open("fraAsking"));
    EXPECT_EQ(focus(), screen.grid);
    ASSERT_EQ(screen.entered.size(), 3U);
    EXPECT_EQ(screen.entered[0].parts, (std::vector<part_entry>{{.text = "No", .choice = 1}}));
    EXPECT_EQ(screen.entered[1].parts,
              (std::vector<part_entry>{{.text = "Yes by", .choice = 1, .number = "12.5"}}));
    EXPECT_EQ(screen.entered[2].parts, (std::vector<part_entry>{{.text = "High", .choice = 0}}));
}

TEST(EntryParts, AQuestionLeftUnansweredComesBackEmptyAndEscapeEndsTheChain) {
    asking_screen screen;
    const opening market = question("Market?", part(part_kind::options, "", {"Bread making", "Neither"}));
    screen.ask(market, {leads_to(question("Type?", part(part_kind::list, "", {"Seed", "Ware"})))});
    press_key(Qt::Key_Return);
    EXPECT_EQ(screen.entered.at(0).choice(), std::nullopt);
    EXPECT_EQ(focus_name(), "lstAsking");
    press_key(Qt::Key_Escape);
    EXPECT_FALSE(screen.box_open("fraAsking"));
    EXPECT_EQ(screen.entered.size(), 1U);
}

TEST(EntryParts, AFormKeepsItsPartsApartAndShowsWhatARefusalSetsAnew) {
    asking_screen screen;
    const auto day = [](const char* label, const char* name, const char* text) {
        return entry_part{.kind = part_kind::day, .text = text, .label = label, .name = name};
    };
    screen.ask({asked::form,
                "Crop",
                "Select it.",
                {{.kind = part_kind::list, .text = "Kale", .choices = {"Peas", "Kale"}, .label = "Crop:"},
                 day("Harvest:", "harvest", "31/07/2024"),
                 day("Sowing:", "sowing", "01/08/2024")}},
               {box_stays(2, {{2, "30/07/2024"}}), box_closes()});
    ASSERT_EQ(focus_name(), "lstAsking_form");
    press_key(Qt::Key_Return);
    EXPECT_EQ(focus()->objectName(), "dtpAsking_form_sowing");
    EXPECT_EQ(screen.in_box<QDateEdit>("dtpAsking_form_sowing")->date(), QDate(2024, 7, 30));
    EXPECT_EQ(screen.in_box<QDateEdit>("dtpAsking_form_harvest")->accessibleName(), "Harvest:");
    press_key(Qt::Key_Return);
    ASSERT_EQ(screen.entered.size(), 2U);
    EXPECT_EQ(screen.entered[0].text(0), "Kale");
    EXPECT_EQ(screen.entered[0].day(1), make_date(31, 7, 2024));
    EXPECT_EQ(screen.entered[0].day(2), make_date(1, 8, 2024));
    EXPECT_EQ(screen.entered[1].text(2), "30/07/2024");
}

TEST(EntryParts, ADateWithoutATextStaysAsItLastStood) {
    asking_screen screen;
    opening shown(asked::form, "Day", "", {part(part_kind::day, "31/08/2025")});
    screen.ask(shown);
    screen.in_box<QDateEdit>("dtpAsking_form")->setDate({2025, 9, 2});
    press_key(Qt::Key_Escape);
    shown.parts[0].text.clear();
    screen.ask(shown);
    press_key(Qt::Key_Return);
    EXPECT_EQ(screen.entered.at(0).day(), make_date(2, 9, 2025));
}

TEST(EntryParts, ATransferPutsItsFigureIntoTheBoxForThePersonToConfirm) {
    asking_screen screen;
    screen.transferred = box_stays(0, {{0, "12.35"}});
    screen.ask({asked::figure, "Manure", "", {{.kind = part_kind::number, .text = "3", .unit = "kg/ha"}}});
    click(&screen, "cmdAsking_figure_transfer");
    EXPECT_EQ(focus_name(), "txtAsking_figure");
    EXPECT_TRUE(screen.entered.empty());
    press_key(Qt::Key_Return);
    EXPECT_EQ(screen.entered.at(0).text(), "12.35");
}

TEST(EntryParts, LinesDropTheKeysThatTheirKindDoesNotTake) {
    asking_screen screen;
    const struct {
        entry_part part;
        const char* typed;
        const char* taken;
    } cases[] = {{part(part_kind::digits, ""), "1a.2-", "12"},
                 {part(part_kind::number, ""), "1..a2", "1.2"},
                 {{.kind = part_kind::text, .not_typed = "'"}, "O'Hara's 1.", "OHaras 1."}};
    for (const auto& c : cases) {
        screen.ask(question("Line", c.part));
        type_text(c.typed);
        press_key(Qt::Key_Return);
        EXPECT_EQ(screen.entered.back().text(), c.taken);
    }
}

}  // namespace kel::test
