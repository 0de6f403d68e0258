#include "model/core/layout.h"

namespace VNT {

ItemStatus StatusOf(const FieldSource& source) {
    StatusSink sink;
    source.Tell(sink);
    return std::move(sink.status);
}

std::vector<FieldLimits> LimitsOf(const FieldSource& source) {
    LimitsSink sink;
    source.Tell(sink);
    return std::move(sink.limits);
}

ItemStatus ReachOf(const FieldSource& source, ItemStatus reach) {
    RulerSink sink(source.Available());
    sink.reach = std::move(reach);
    source.Tell(sink);
    return std::move(sink.reach);
}

int MeasureLayout(const FieldSource& source) {
    RulerSink sink(source.Available());
    source.Tell(sink);
    return sink.Bytes();
}

std::vector<ItemPart> PartsOf(const FieldSource& source) {
    PartsSink sink;
    source.Tell(sink);
    return std::move(sink.parts);
}

}  // namespace VNT
