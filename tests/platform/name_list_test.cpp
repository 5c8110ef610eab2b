#include "platform/name_list.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zarvo {
namespace {

std::vector<std::string> Names(const NameList& list) {
  std::vector<std::string> names;
  for (int index = 0; index < list.Count(); ++index) names.emplace_back(list.At(index));
  return names;
}

TEST(NameList, SortedInsertionPutsEqualNamesBehindEachOther) {
  NameList list;
  EXPECT_EQ(list.InsertSorted("Pengo"), 0);
  EXPECT_EQ(list.InsertSorted("amidar"), 0);
  EXPECT_EQ(list.InsertSorted("PENGO"), 2);
  EXPECT_EQ(list.InsertSorted("Frogger"), 1);
  EXPECT_THAT(Names(list), testing::ElementsAre("amidar", "Frogger", "Pengo", "PENGO"));
  EXPECT_EQ(list.Find("PENGO"), 3);
  EXPECT_EQ(list.Find("pengo"), -1);
}

TEST(NameList, SortKeepsTheOrderOfEqualNames) {
  NameList list;
  for (const char* name : {"b", "B", "a", "C", "A", ""}) list.Append(name);
  list.Sort();
  EXPECT_THAT(Names(list), testing::ElementsAre("", "a", "A", "b", "B", "C"));
  list.Remove(1);
  list.Remove(4);
  EXPECT_THAT(Names(list), testing::ElementsAre("", "A", "b", "B"));
  list.Clear();
  EXPECT_EQ(list.Count(), 0);
  list.Append("new");
  EXPECT_EQ(list.At(0), "new");
}

TEST(NameList, AFullListStaysAsItIs) {
  NameList list;
  for (int count = 0; count < 32767; ++count) list.Append("b");
  list.Append("c");
  EXPECT_EQ(list.InsertSorted("a"), -1);
  EXPECT_EQ(list.Count(), 32767);
  EXPECT_EQ(list.At(0), "b");
  EXPECT_EQ(list.At(32766), "b");
}

}  // namespace
}  // namespace zarvo
