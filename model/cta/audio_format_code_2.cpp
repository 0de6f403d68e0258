#include "model/core/layout_made.h"
#include "model/cta/audio_format_kinds.h"

namespace VNT {

template struct TMadeKinds<decltype(CtaAudioFormatKindList), 1, 3>;

}  // namespace VNT
