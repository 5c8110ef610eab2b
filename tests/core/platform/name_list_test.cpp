#include "core/platform/name_list.h"

#include <gtest/gtest.h>

#include "core/platform/in_brief.h"

namespace zarvo {
namespace {

TEST(NameList, SortedInsertionPutsEqualNamesBehindEachOther) {
  NameList list;
  EXPECT_EQ(list.InsertSorted("Pengo"), 0);
  EXPECT_EQ(list.InsertSorted("amidar"), 0);
  EXPECT_EQ(list.InsertSorted("PENGO"), 2);
  EXPECT_EQ(list.InsertSorted("Frogger"), 1);
  EXPECT_EQ(Names(list), "amidar,Frogger,Pengo,PENGO,");
  EXPECT_EQ(list.Find("PENGO"), 3);
  EXPECT_EQ(list.Find("pengo"), -1);
}

TEST(NameList, SortKeepsTheOrderOfEqualNames) {
  NameList list;
  for (const char* name : {"b", "B", "a", "C", "A", ""}) list.Append(name);
  list.Sort();
  EXPECT_EQ(Names(list), ",a,A,b,B,C,");
  list.Remove(1);
  list.Remove(4);
  EXPECT_EQ(Names(list), ",A,b,B,");
  list.Clear();
  list.Append("new");
  EXPECT_EQ(Names(list), "new,");

  // Enough that the sort doesn't go by insertion, which is stable by itself.
  list.Clear();
  for (int pair = 99; pair >= 0; --pair) {
    list.Append("b" + std::to_string(pair));
    list.Append(pair % 2 == 0 ? "A" : "a");
  }
  list.Sort();
  for (int index = 0; index < 100; ++index) EXPECT_EQ(list.At(index), index % 2 == 0 ? "a" : "A");
}

TEST(NameList, AFullListStaysAsItIs) {
  NameList list;
  for (int count = 0; count < 32767; ++count) list.Append("b");
  list.Append("c");
  EXPECT_EQ(list.InsertSorted("a"), -1);
  EXPECT_EQ(list.Count(), 32767);
  EXPECT_EQ(Names(list).find_first_not_of("b,"), std::string::npos);
}

}  // namespace
}  // namespace zarvo
