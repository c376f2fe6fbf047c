#include "resources/resources.h"

#include <algorithm>
#include <mutex>

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

}  // namespace

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
