// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/entry_list.h"

#include <gtest/gtest.h>

#include <random>

namespace vicetoll {
namespace {

using Texts = std::vector<std::string>;

TEST(Entries, AddedOnceMoreOnlyCount) {
  EntryList list;
  for (int i = 0; i < 1000; ++i) list.Append(Texts{"a", "b", "c"});
  EXPECT_EQ(list.Count(), 3000);
  EXPECT_EQ(list.HeldTexts(), 3);
  EXPECT_EQ(list.At(0), "a");
  EXPECT_EQ(list.At(2999), "c");
  EXPECT_EQ(list.At(1501), "b");
  EXPECT_EQ(list.Find("c"), 2);
}

TEST(Entries, OfOtherTextsAreHeldForThemselves) {
  EntryList list;
  list.Append(Texts{"a", "b"});
  list.Append(Texts{"a", "c"});
  list.Append(Texts{"a", "c"});
  EXPECT_EQ(list.All(), (Texts{"a", "b", "a", "c", "a", "c"}));
  EXPECT_EQ(list.HeldTexts(), 4);
  EXPECT_EQ(list.Find("c"), 3);
  EXPECT_EQ(list.Find("d"), -1);
}

TEST(Entries, AnInsertionIntoACopyChangesThatCopyAlone) {
  EntryList list;
  for (int i = 0; i < 4; ++i) list.Append(Texts{"a", "b"});
  list.Insert(3, "x");
  EXPECT_EQ(list.All(), (Texts{"a", "b", "a", "x", "b", "a", "b", "a", "b"}));
  list.Insert(0, "first");
  list.Insert(10, "last");
  EXPECT_EQ(list.At(0), "first");
  EXPECT_EQ(list.At(10), "last");
  EXPECT_EQ(list.Count(), 11);
}

TEST(Entries, NothingAddedChangesNothing) {
  EntryList list;
  list.Append(Texts{});
  EXPECT_EQ(list.Count(), 0);
  EXPECT_EQ(list, EntryList());
}

// Whatever is done, the list reads like a plain one.
TEST(Entries, ReadLikeAPlainList) {
  std::mt19937 random(15);
  const auto below = [&random](std::size_t bound) { return static_cast<int>(random() % bound); };
  const Texts runs[] = {{"a", "b", "c"}, {"b"}, {"c", "a"}};
  for (int round = 0; round < 50; ++round) {
    EntryList list;
    Texts plain;
    for (int step = 0; step < 60; ++step) {
      if (below(3) > 0) {
        const Texts& run = runs[below(std::size(runs))];
        list.Append(run);
        plain.insert(plain.end(), run.begin(), run.end());
      } else {
        const int position = below(plain.size() + 1);
        const std::string entry(1, static_cast<char>('a' + below(5)));
        list.Insert(position, entry);
        plain.insert(plain.begin() + position, entry);
      }
      ASSERT_EQ(list.All(), plain);
      ASSERT_EQ(list.Count(), static_cast<int>(plain.size()));
      const int position = below(plain.size());
      ASSERT_EQ(list.At(position), plain[position]);
      for (const char* text : {"a", "d", "e", "f"}) {
        const auto found = std::find(plain.begin(), plain.end(), text);
        ASSERT_EQ(list.Find(text), found == plain.end() ? -1 : static_cast<int>(found - plain.begin()));
      }
    }
  }
}

}  // namespace
}  // namespace vicetoll
