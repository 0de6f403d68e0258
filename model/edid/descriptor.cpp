#include "model/edid/descriptor.h"

namespace VNT {

bool EdidDescriptorList::Write(ByteRange range) const { return WriteFilled(range, EdidEmptyDescriptor()); }

}  // namespace VNT
