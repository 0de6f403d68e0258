#include "ui/resources.h"

#include <array>
#include <numeric>

namespace UI {

namespace {

std::array<int, static_cast<std::size_t>(Resource::Last)> counts{};

int& CountOf(Resource kind) { return counts[static_cast<std::size_t>(kind)]; }

}  // namespace

int CountLive(Resource kind) { return CountOf(kind); }

int CountLive() { return std::accumulate(counts.begin(), counts.end(), 0); }

LiveResource::LiveResource(Resource kind) : kind(kind) { ++CountOf(kind); }

LiveResource::~LiveResource() { --CountOf(kind); }

}  // namespace UI
