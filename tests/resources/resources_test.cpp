#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

#include "resources/resources.h"

namespace {

// Every string of every library table, by id, with the table that holds it.
std::map<int, std::pair<std::string, std::string>> AllStrings(std::vector<std::string>& duplicates) {
  std::map<int, std::pair<std::string, std::string>> strings;
  for (const res::ResourceTable* table : res::LibraryResourceTables())
    for (const res::StringEntry& e : table->strings)
      if (!strings.emplace(e.id, std::pair{std::string(table->name), std::string(e.text)}).second)
        duplicates.push_back(std::to_string(e.id) + " in " + table->name + " and " + strings[e.id].first);
  return strings;
}

}  // namespace

TEST(ResourceTables, StringIdsAreUniqueAcrossTables) {
  std::vector<std::string> duplicates;
  const auto strings = AllStrings(duplicates);
  EXPECT_TRUE(duplicates.empty()) << ::testing::PrintToString(duplicates);
  for (const auto& [id, entry] : strings) EXPECT_FALSE(entry.second.empty()) << "string " << id << " is empty";
}

TEST(ResourceTables, EveryTemplateIsConsistent) {
  std::vector<std::string> ignored;
  const auto strings = AllStrings(ignored);
  std::map<int, std::string> templateIds;
  int templates = 0;
  for (const res::ResourceTable* table : res::LibraryResourceTables()) {
    for (const res::DialogTemplate* t : table->templates) {
      ++templates;
      SCOPED_TRACE(std::string(table->name) + " template " + std::to_string(t->id));
      const auto [it, fresh] = templateIds.emplace(t->id, table->name);
      EXPECT_TRUE(fresh) << "template id also used in " << it->second;
      if (t->captionStringId != 0) {
        EXPECT_TRUE(strings.count(t->captionStringId)) << "caption " << t->captionStringId;
      }

      std::set<int> controls, groups;
      for (const res::Control& c : t->controls)
        if (c.kind == res::Kind::Group) groups.insert(c.id);
      for (const res::Control& c : t->controls) {
        if (c.id != 0) {
          EXPECT_TRUE(controls.insert(c.id).second) << "control id " << c.id << " twice";
        }
        if (c.stringId != 0) {
          EXPECT_TRUE(strings.count(c.stringId)) << "control " << c.id << " names string " << c.stringId;
        }
        if (c.group != 0) {
          EXPECT_TRUE(groups.count(c.group)) << "control " << c.id << " in unknown group " << c.group;
        }
        EXPECT_GE(c.rowSpan, 1);
        EXPECT_GE(c.colSpan, 1);
      }
      EXPECT_EQ(t->FindControl(0 - 12345), nullptr);
      if (!t->controls.empty()) {
        EXPECT_EQ(t->FindControl(t->controls.back().id), &t->controls.back());
      }
    }
  }
  EXPECT_GE(templates, 6) << "the frame and units templates at least";
}

TEST(ResourceChain, HostTablesComeFirstAndLeaveCleanly) {
  static const res::StringEntry library[] = {{29800, "library text"}, {29801, "only in the library"}};
  static const res::StringEntry host[] = {{29800, "host text"}};
  static const res::ResourceTable libraryTable = {"library", library, {}};
  static const res::ResourceTable hostTable = {"host", host, {}};
  res::LinkResourceTable(libraryTable, false);
  EXPECT_EQ(res::LoadString(29800), "library text");
  res::LinkResourceTable(hostTable, true);
  res::LinkResourceTable(hostTable, true);  // linking twice changes nothing
  EXPECT_EQ(res::LoadString(29800), "host text");
  EXPECT_EQ(res::LoadString(29801), "only in the library");
  EXPECT_EQ(res::LoadStringOr(29802, "fallback"), "fallback");
  EXPECT_EQ(res::LoadString(29802), std::nullopt);
  res::UnlinkResourceTable(hostTable);
  EXPECT_EQ(res::LoadString(29800), "library text");
  res::UnlinkResourceTable(libraryTable);
  res::UnlinkResourceTable(libraryTable);
  EXPECT_EQ(res::LoadString(29800), std::nullopt);
}
