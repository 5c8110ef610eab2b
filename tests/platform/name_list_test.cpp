#include "platform/name_list.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/in_brief.h"

namespace zarvo {
namespace {

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
  list.Append("new");
  EXPECT_THAT(Names(list), testing::ElementsAre("new"));
}

TEST(NameList, AFullListStaysAsItIs) {
  NameList list;
  for (int count = 0; count < 32767; ++count) list.Append("b");
  list.Append("c");
  EXPECT_EQ(list.InsertSorted("a"), -1);
  EXPECT_EQ(Names(list), std::vector<std::string>(32767, "b"));
}

}  // namespace
}  // namespace zarvo
