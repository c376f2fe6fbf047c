#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

#include "resources/resources.h"

// Every family's strings and templates live in one chain: an id used twice would let one
// family's text or template silently shadow another's.
TEST(ResourceTables, IdsAreUniqueAndEveryTemplateIsConsistent) {
  std::map<int, std::string> strings, templates;  // id -> table
  for (const res::ResourceTable* table : res::LibraryResourceTables()) {
    for (const res::StringEntry& e : table->strings) {
      const auto [it, fresh] = strings.emplace(e.id, table->name);
      EXPECT_TRUE(fresh) << "string " << e.id << " in " << table->name << " and " << it->second;
      EXPECT_STRNE(e.text, "") << "string " << e.id;
    }
    for (const res::DialogTemplate* t : table->templates) {
      const auto [it, fresh] = templates.emplace(t->id, table->name);
      EXPECT_TRUE(fresh) << "template " << t->id << " in " << table->name << " and " << it->second;
    }
  }
  EXPECT_GE(templates.size(), 6u) << "the frame and units templates at least";
  for (const res::ResourceTable* table : res::LibraryResourceTables()) {
    for (const res::DialogTemplate* t : table->templates) {
      SCOPED_TRACE(std::string(table->name) + " template " + std::to_string(t->id));
      std::set<int> controls, groups;
      for (const res::Control& c : t->controls)
        if (c.kind == res::Kind::Group) groups.insert(c.id);
      for (const res::Control& c : t->controls) {
        EXPECT_TRUE(c.id == 0 || controls.insert(c.id).second) << "control " << c.id << " twice";
        EXPECT_TRUE(c.group == 0 || groups.count(c.group)) << "control " << c.id << " in unknown group " << c.group;
      }
    }
  }
}
