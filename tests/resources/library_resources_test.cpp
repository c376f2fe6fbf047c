#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

#include "resources/resources.h"

namespace {

// Every family's strings and templates live in one chain: an id used twice would let one
// family's text or template silently shadow another's.
TEST(LibraryResources, IdsAreUniqueAndEveryStringIdExists) {
  std::map<int, std::string> strings;  // id -> table
  std::map<int, std::string> templates;
  for (const res::ResourceTable* table : res::LibraryResourceTables()) {
    for (const res::StringEntry& e : table->strings) {
      const auto [it, fresh] = strings.emplace(e.id, table->name);
      EXPECT_TRUE(fresh) << "string " << e.id << " in " << table->name << " and " << it->second;
    }
    for (const res::DialogTemplate* t : table->templates) {
      const auto [it, fresh] = templates.emplace(t->id, table->name);
      EXPECT_TRUE(fresh) << "template " << t->id << " in " << table->name << " and " << it->second;
    }
  }
  for (const res::ResourceTable* table : res::LibraryResourceTables()) {
    for (const res::DialogTemplate* t : table->templates) {
      EXPECT_TRUE(t->captionStringId == 0 || strings.count(t->captionStringId)) << "caption of template " << t->id;
      std::set<int> controls;
      for (const res::Control& c : t->controls) {
        EXPECT_TRUE(c.id == 0 || controls.insert(c.id).second) << "control " << c.id << " twice in " << t->id;
        EXPECT_TRUE(c.stringId == 0 || strings.count(c.stringId))
            << "string " << c.stringId << " of control " << c.id << " in " << t->id;
        EXPECT_TRUE(c.group == 0 || t->FindControl(c.group)) << "group " << c.group << " in " << t->id;
      }
    }
  }
}

}  // namespace
