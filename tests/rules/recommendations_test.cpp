#include "rules/recommendations.h"

#include "tests/support/farm_files.h"

namespace kel {

namespace {

using texts = std::vector<std::string>;

class Recommendations : public test::farm_test {};

}  // namespace

TEST_F(Recommendations, ReplaceAllRecordsOfTheirFieldsAndNoOthers) {
    open_farm({{"North", "5"}, {"South", "6"}, {"West", "7"}});
    for (const auto& [field, n] :
         {std::pair{"South", "10"}, {"Gone", "20"}, {"North", "30"}, {"South", "40"}})
        add_row(state.assess_file, "Recommendations", {{"Field Area ID", field}, {"N required", n}});
    {
        const database db(state.assess_file);
        save_transaction transaction(db);
        save_recommendations(db, {{"South", "140 - 110"}, {"", "99"}, {"West", "1"}, {"West", "2"}});
        transaction.commit();
    }
    EXPECT_EQ(column_of(state.assess_file, "Recommendations", "Field Area ID"),
              (texts{"Gone", "North", "South", "West"}));
    EXPECT_EQ(column_of(state.assess_file, "Recommendations", "N required"),
              (texts{"20", "30", "140 - 110", "2"}));
}

}  // namespace kel
