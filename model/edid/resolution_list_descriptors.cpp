#include "model/edid/resolution_list_descriptors.h"

namespace VNT {

void FillResolutionCount(TextTable& table, int count) {
    table.Set(U"{count}", count);
    table.Set(U"{counttext}", ChooseByCount(count, U"0 resolutions", U"1 resolution", U"{count} resolutions"));
}

}  // namespace VNT
