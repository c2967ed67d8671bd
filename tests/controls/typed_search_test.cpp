// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/typed_search.h"

#include <gtest/gtest.h>

namespace vicetoll {
namespace {

using Entries = std::vector<std::string>;

const Entries kDates = {"Jun - 1995", "Jan - 2005", "Jun - 2005", "Jul - 2005", "Jun - 2031"};
const Entries kCosts = {"$0.75", "$5.00", "$7.00", "$7.25", "$7.50", "$17.50", "$75.00", "$1,250.00"};
const Entries kRates = {"-5%", "-3%", "0%", "3%", "5%", "30%", "50%"};

TEST(TypedSearch, FindsDatesByMonthAndYear) {
  EXPECT_EQ(FindTyped(kDates, "2005", -1), 1);
  EXPECT_EQ(FindTyped(kDates, "jun 2031", -1), 4);
  EXPECT_EQ(FindTyped(kDates, "JUN 2", -1), 2);
  EXPECT_EQ(FindTyped(kDates, "Jun - 20", -1), 2);
  EXPECT_EQ(FindTyped(kDates, "jul", -1), 3);
  EXPECT_EQ(FindTyped(kDates, "20", -1), 1);
  EXPECT_EQ(FindTyped(kDates, "feb", -1), -1);
  EXPECT_EQ(FindTyped(kDates, "un", -1), -1);
  EXPECT_EQ(FindTyped(kDates, "2005 jun", -1), -1);
}

TEST(TypedSearch, FindsTheAmountBeforeWhatOnlyBeginsLikeIt) {
  EXPECT_EQ(FindTyped(kCosts, "7.5", -1), 4);
  EXPECT_EQ(FindTyped(kCosts, "$7.50", -1), 4);
  EXPECT_EQ(FindTyped(kCosts, "7", -1), 2);
  EXPECT_EQ(FindTyped(kCosts, "7.2", -1), 3);
  EXPECT_EQ(FindTyped(kCosts, "75", -1), 6);
  EXPECT_EQ(FindTyped(kCosts, "1250", -1), 7);
  EXPECT_EQ(FindTyped(kCosts, "1,2", -1), 7);
  EXPECT_EQ(FindTyped(kCosts, ".75", -1), 0);
  EXPECT_EQ(FindTyped(kRates, "3", -1), 3);
  EXPECT_EQ(FindTyped(kRates, "-3", -1), 1);
}

TEST(TypedSearch, OneLetterAgainAndAgainGoesThroughItsEntries) {
  EXPECT_EQ(FindTyped(kDates, "j", 3), 0);
  EXPECT_EQ(FindTyped(kDates, "jj", 0), 1);
  EXPECT_EQ(FindTyped(kDates, "jjj", 1), 2);
  EXPECT_EQ(FindTyped(kDates, "jjjj", 4), 0);
  // Digits typed again are a number.
  EXPECT_EQ(FindTyped(kCosts, "77", 2), -1);
}

TEST(TypedSearch, FindsNothingInNothing) {
  EXPECT_EQ(FindTyped({}, "5", -1), -1);
  EXPECT_EQ(FindTyped(kDates, "", -1), -1);
  EXPECT_EQ(FindTyped(kDates, "$", -1), -1);
}

}  // namespace
}  // namespace vicetoll
