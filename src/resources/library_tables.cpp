#include "resources/resources.h"

namespace res {

// One table per dialog family; add a family's table here, one a line.
extern const ResourceTable kFrameResources;
extern const ResourceTable kGridResources;
extern const ResourceTable kModelResources;
extern const ResourceTable kBoundaryResources;
extern const ResourceTable kDesignResources;
extern const ResourceTable kSectionsResources;
extern const ResourceTable kResultsResources;
extern const ResourceTable kSpectraResources;
extern const ResourceTable kCaseLoadsResources;

std::span<const ResourceTable* const> LibraryResourceTables() {
  static const ResourceTable* const tables[] = {
      &kFrameResources,
      &kGridResources,
      &kModelResources,
      &kBoundaryResources,
      &kDesignResources,
      &kSectionsResources,
      &kResultsResources,
      &kSpectraResources,
      &kCaseLoadsResources,
      &GeneratedResources(),
  };
  return tables;
}

}  // namespace res
