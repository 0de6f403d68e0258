#include "store/source.h"

#include <algorithm>

namespace VNT::Source {

void AppendEdid(Bytes& edid, ByteRange buffer, std::int64_t size) {
    const std::int64_t room = MostEdidBytes - edid.Size();
    edid.Append(buffer.Peek(static_cast<int>(std::clamp<std::int64_t>(size, 0, room))));
}

}  // namespace VNT::Source
