// A system whose displays this program can't reach.
#include "app/system_store.h"

namespace VNT::App {

std::unique_ptr<Platform> OpenSystemStore() { return nullptr; }

}  // namespace VNT::App
