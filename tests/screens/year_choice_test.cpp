#include "screens/year_choice.h"

#include <gtest/gtest.h>

namespace quorvane {
namespace {

using Years = std::vector<int>;

TEST(YearChoiceTest, OffersStoredYearsAndTheLoadedOne) {
  EXPECT_EQ(YearsToShow({2400, 2402}, 2401), (Years{2400, 2401, 2402}));
  EXPECT_EQ(YearsToShow({2400, 2402}, 2402), (Years{2400, 2402}));
  EXPECT_EQ(YearsToShow({}, 2400), Years{2400});
  EXPECT_EQ(YearsToShow({2400}, 0), Years{2400});
}

TEST(YearChoiceTest, ComparesWithTheLastYearUnlessAnotherIsChosen) {
  const Years before = YearsBefore({2400, 2405, 2406, 2410}, 2406);
  EXPECT_EQ(before, (Years{2400, 2405}));
  EXPECT_EQ(ComparedYear(before, 0), 2405);
  EXPECT_EQ(ComparedYear(before, 2400), 2400);
  EXPECT_EQ(ComparedYear(before, 2410), 2405);
  EXPECT_EQ(ComparedYear({}, 2400), 0);
  EXPECT_EQ(RememberedChoice(before, 2405), 0);
  EXPECT_EQ(RememberedChoice(before, 2400), 2400);
}

}  // namespace
}  // namespace quorvane
