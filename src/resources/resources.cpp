#include "resources/resources.h"

#include <algorithm>
#include <deque>
#include <map>

namespace res {
namespace {

struct Chain {
  std::vector<const ResourceTable*> tables;  // search order
  size_t hostCount = 0;
};

Chain& GetChain() {
  static Chain chain;
  return chain;
}

struct Generated {
  ResourceTable table{"generated", {}, {}};
  std::vector<std::unique_ptr<const DialogTemplate>> owned;
  std::vector<const DialogTemplate*> templates;
  std::deque<std::string> texts;  // stable addresses for the entries
  std::vector<StringEntry> strings;
  std::map<int, size_t> stringIndex;
  std::vector<std::string> conflicts;

  void Refresh() {
    table.strings = strings;
    table.templates = templates;
  }
};

Generated& GetGenerated() {
  static Generated generated;
  return generated;
}

}  // namespace

const ResourceTable& GeneratedResources() { return GetGenerated().table; }

void AddGeneratedTemplate(std::unique_ptr<const DialogTemplate> tmpl) {
  Generated& g = GetGenerated();
  const auto same = std::find_if(g.templates.begin(), g.templates.end(),
                                 [&](const DialogTemplate* t) { return t->id == tmpl->id; });
  if (same != g.templates.end())
    *same = tmpl.get();
  else
    g.templates.push_back(tmpl.get());
  g.owned.push_back(std::move(tmpl));
  g.Refresh();
}

void AddGeneratedString(int id, std::string text) {
  Generated& g = GetGenerated();
  // A string a family's table already holds (a grid button's "Print..." ...) is used from there.
  for (const ResourceTable* table : LibraryResourceTables()) {
    if (table == &g.table) continue;
    for (const StringEntry& e : table->strings) {
      if (e.id != id) continue;
      if (e.text != text)
        g.conflicts.push_back("string " + std::to_string(id) + ": \"" + e.text + "\" and \"" + text + "\"");
      return;
    }
  }
  if (const auto it = g.stringIndex.find(id); it != g.stringIndex.end()) {
    if (g.strings[it->second].text != text)
      g.conflicts.push_back("string " + std::to_string(id) + ": \"" + g.strings[it->second].text + "\" and \"" +
                            text + "\"");
    return;
  }
  g.texts.push_back(std::move(text));
  g.stringIndex[id] = g.strings.size();
  g.strings.push_back({id, g.texts.back().c_str()});
  g.Refresh();
}

std::span<const std::string> GeneratedStringConflicts() { return GetGenerated().conflicts; }

const Control* DialogTemplate::FindControl(int controlId) const {
  for (const Control& c : controls)
    if (c.id == controlId) return &c;
  return nullptr;
}

void LinkResourceTable(const ResourceTable& table, bool hostTable) {
  Chain& chain = GetChain();
  if (std::find(chain.tables.begin(), chain.tables.end(), &table) != chain.tables.end()) return;
  if (hostTable) {
    chain.tables.insert(chain.tables.begin() + static_cast<long>(chain.hostCount), &table);
    ++chain.hostCount;
  } else {
    chain.tables.push_back(&table);
  }
}

void UnlinkResourceTable(const ResourceTable& table) {
  Chain& chain = GetChain();
  const auto it = std::find(chain.tables.begin(), chain.tables.end(), &table);
  if (it == chain.tables.end()) return;
  if (static_cast<size_t>(it - chain.tables.begin()) < chain.hostCount) --chain.hostCount;
  chain.tables.erase(it);
}

std::optional<std::string> LoadString(int stringId) {
  for (const ResourceTable* table : GetChain().tables)
    for (const StringEntry& e : table->strings)
      if (e.id == stringId) return std::string(e.text);
  return std::nullopt;
}

std::string LoadStringOr(int stringId, std::string_view fallback) {
  auto s = LoadString(stringId);
  return s ? *s : std::string(fallback);
}

const DialogTemplate* FindTemplate(int templateId) {
  for (const ResourceTable* table : GetChain().tables)
    for (const DialogTemplate* t : table->templates)
      if (t->id == templateId) return t;
  return nullptr;
}

}  // namespace res
