#include "resources/resources.h"

namespace res {

// One table per dialog family; add a family's table here, one a line.
extern const ResourceTable kFrameResources;
extern const ResourceTable kGridResources;
extern const ResourceTable kModelResources;
extern const ResourceTable kDesignResources;
extern const ResourceTable kSectionsResources;
extern const ResourceTable kResultsResources;
extern const ResourceTable kSpectraResources;

std::span<const ResourceTable* const> LibraryResourceTables() {
  static const ResourceTable* const tables[] = {
      &kFrameResources,
      &kGridResources,
      &kModelResources,
      &kDesignResources,
      &kSectionsResources,
      &kResultsResources,
      &kSpectraResources,
      &GeneratedResources(),
  };
  return tables;
}

}  // namespace res
