#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

// Every ids header in one translation unit: a name given two values does not compile.
#include "resources/boundary_ids.h"
#include "resources/case_loads_ids.h"
#include "resources/design_ids.h"
#include "resources/frame_ids.h"
#include "resources/geometry_ids.h"
#include "resources/grid_ids.h"
#include "resources/ids.h"
#include "resources/loads_ids.h"
#include "resources/model_ids.h"
#include "resources/resources.h"
#include "resources/results_ids.h"
#include "resources/sections_ids.h"
#include "resources/units_ids.h"

// Every family's strings and templates, and those the forms generate, live in one chain: an
// id used twice would let one text or template silently shadow another's. Control ids need
// only be unique within their dialog (the grid dialogs all have 8005 and 8042).
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
  EXPECT_EQ(std::vector<std::string>(res::GeneratedStringConflicts().begin(), res::GeneratedStringConflicts().end()),
            std::vector<std::string>{});
  EXPECT_GE(templates.size(), 6u) << "the frame and units templates at least";
  for (const res::ResourceTable* table : res::LibraryResourceTables()) {
    for (const res::DialogTemplate* t : table->templates) {
      SCOPED_TRACE(std::string(table->name) + " template " + std::to_string(t->id));
      EXPECT_TRUE(t->captionStringId == 0 || strings.count(t->captionStringId)) << "caption " << t->captionStringId;
      std::set<int> controls, groups;
      for (const res::Control& c : t->controls)
        if (c.kind == res::Kind::Group) groups.insert(c.id);
      for (const res::Control& c : t->controls) {
        EXPECT_TRUE(c.id == 0 || controls.insert(c.id).second) << "control " << c.id << " twice";
        EXPECT_TRUE(c.group == 0 || groups.count(c.group)) << "control " << c.id << " in unknown group " << c.group;
        EXPECT_TRUE(c.stringId == 0 || strings.count(c.stringId)) << "control " << c.id << " string " << c.stringId;
      }
    }
  }
}
