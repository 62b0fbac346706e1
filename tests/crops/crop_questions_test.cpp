// The chain of questions of each crop, and what the answers write.
#include "crops/crop_questions.h"

#include <map>

#include "rules/crop_lists.h"
#include "tests/crops/crops_fixture.h"

namespace kel::test {

namespace {

class CropQuestions : public crops_test {
  protected:
    void SetUp() override {
        open({{"North", "5", "Sands"}}, wet_winter);
        module.enter_field(0, "North");
        follow(0, "Winter wheat");
    }
    /// The captions of the boxes that follow as the first answer is always chosen.
    texts chain(const std::string& crop) {
        texts captions;
        outcome step = plan(0, crop);
        while (step.next) {
            captions.push_back(step.next->caption);
            EXPECT_EQ(step.next->box, box_id(crop_box::question));
            step = module.enter_answer(0, chosen(0));
        }
        EXPECT_TRUE(step.closes);
        return captions;
    }
};

}  // namespace

TEST_F(CropQuestions, ComeInTheOrderOfTheCropAndEndInTheTable) {
    using namespace crop_messages;
    const auto asked = [](std::initializer_list<std::string_view> captions) {
        return texts(captions.begin(), captions.end());
    };
    const texts of_barley = asked({undersowing_question, delay_question, spring_question});
    const std::map<std::string_view, texts> questions{
        {"Winter wheat", asked({wheat_market_question, take_all_question, spring_question})},
        {"Winter barley", asked({barley_market_question, spring_question})},
        {"Winter oilseed rape", asked({spring_question})},
        {"Winter oats", asked({spring_question})},
        {"Triticale", asked({spring_question})},
        {"Spring barley (feed or high N malting)", of_barley},
        {"Spring barley (low N malting)", of_barley},
        {"Spring oats", of_barley},
        {"Spring oilseed rape", asked({turnip_rape_question, spring_question})},
        {"Potatoes", asked({potato_caption, variety_question, spring_question})},
        {"Direct sown grass and grass/clover (spring sown)", asked({grass_question})},
        {"Direct sown grass and grass/clover (autumn sown)", asked({grass_question})},
    };
    std::size_t questioned = 0;
    for (const std::string_view name : planned_crop_list()) {
        const texts found = chain(std::string(name));
        EXPECT_EQ(found, questions.contains(name) ? questions.at(name) : texts{}) << name;
        EXPECT_FALSE(cell(0, col::planned_crop).empty()) << name;
        questioned += found.empty() ? 0 : 1;
    }
    EXPECT_EQ(questioned, questions.size());
}

TEST_F(CropQuestions, AnswersWriteTheirFiguresAndWords) {
    plan(0, "Winter barley");
    module.enter_answer(0, chosen(1));
    EXPECT_EQ(cells(0, col::notes_ww, col::market), (texts{"", "malt for distilling", "-50"}));
    module.enter_answer(0, chosen(0));
    EXPECT_EQ(cells(0, col::spring_rain, col::spring_status), (texts{"15", "", "High"}));

    plan(0, "Spring barley (low N malting)");
    module.enter_answer(0, chosen(0));
    person.expect(says::no_delay_length);
    EXPECT_EQ(module.enter_answer(0, chosen(1, ".")), box_stays());
    EXPECT_TRUE(module.enter_answer(0, chosen(1, "8")).next);
    EXPECT_EQ(cells(0, col::undersowing, col::delayed_sowing), (texts{"-25", "-18"}));
    EXPECT_EQ(module.enter_answer(0, chosen(1)), box_closes());
    EXPECT_EQ(cells(0, col::spring_rain, col::spring_status), (texts{"0", "", "Low"}));

    plan(0, "Spring oilseed rape");
    module.enter_answer(0, chosen(0));
    EXPECT_EQ(cell(0, col::turnip_rape), "-20");
}

TEST_F(CropQuestions, PotatoesAndGrassGetTheirCodeOnceItIsKnown) {
    plan(0, "Carrots");
    EXPECT_EQ(plan(0, "Potatoes").next->parts.front().choices,
              (texts{"Dual purpose", "Punnets", "Seed", "Ware"}));
    EXPECT_EQ(cell(0, col::planned_crop), "C");
    person.expect(says::no_potato_type);
    EXPECT_EQ(module.enter_answer(0, box_entry{{{}}}), box_stays());
    EXPECT_TRUE(module.enter_answer(0, chosen(3)).next);
    EXPECT_EQ(cell(0, col::planned_crop), "WPOT");
    EXPECT_EQ(cell(0, col::winter_rain), "0");
    module.enter_answer(0, chosen(2));
    EXPECT_EQ(cell(0, col::variety), "-30");
    EXPECT_EQ(module.click(0, col::planned_crop).parts.front().text, "Potatoes");

    plan(0, "Direct sown grass and grass/clover (autumn sown)");
    EXPECT_EQ(module.enter_answer(0, chosen(1)), box_closes());
    EXPECT_EQ(cell(0, col::planned_crop), "G/C");
    EXPECT_EQ(module.click(0, col::planned_crop).parts.front().text, "");
}

TEST_F(CropQuestions, AQuestionWithoutAnAnswerLeavesItsCellAndGoesOn) {
    plan(0, "Winter wheat");
    const box_entry nothing{{{}}};
    EXPECT_EQ(module.enter_answer(0, nothing).next->caption, says::take_all_question);
    EXPECT_EQ(module.enter_answer(0, nothing).next->instruction, says::spring_instruction);
    EXPECT_EQ(module.enter_answer(0, nothing), box_closes());
    EXPECT_EQ(cells(0, col::notes_ww, col::take_all), (texts{"", "", "", "", "", ""}));
    // Its cell asks again, and shows the answer that it has.
    EXPECT_EQ(module.click(0, col::spring_status).instruction, says::spring_question);
    EXPECT_EQ(module.enter_answer(0, chosen(0)), box_closes());
    EXPECT_EQ(cells(0, col::spring_rain, col::spring_status), (texts{"15", "", "High"}));
    EXPECT_EQ(module.click(0, col::spring_status).parts.front().text, says::more_than_200_mm);
}

TEST_F(CropQuestions, AWetSummerAddsToAVegetableBySoil) {
    open({{"North", "5", "Sands"}, {"South", "5", "Sandy loams"}});
    add_crop(0, "North", "Carrots", "Kale");
    add_crop(1, "South", "Carrots", "Kale");
    for (const auto& [row, wet] : {std::pair{0, "15"}, {1, "10"}}) {
        EXPECT_EQ(module.ask_summer_rain().caption, says::summer_question);
        EXPECT_EQ(module.enter_answer(row, chosen(0)), box_closes());
        EXPECT_EQ(cell(row, col::market), wet);
    }
    module.ask_summer_rain();
    module.enter_answer(1, chosen(1));
    EXPECT_EQ(cell(1, col::market), "0");
}

}  // namespace kel::test
