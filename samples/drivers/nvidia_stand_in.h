#pragma once

#include "samples/drivers/driving.h"
#include "store/nvidia_api.h"

// A stand-in for NVIDIA's driver library, driven by lines of:
//     gpu HANDLE                a physical GPU
//     display ID NAME           connected to the GPU above; without a NAME the driver knows none
//     by GPU OUTPUT             the EDID of the display above is found only by these
//     endless                   reads past the end of an EDID succeed, and the enumeration of names never ends
// The names of calls are the fields of Nvapi::Calls. An EDID is given as far as a read reaches from its offset; a claim
// for GetEdid is of the whole size.
namespace StandIn {

Driving& Nvidia();

extern "C" void* nvapi_QueryInterface(std::uint32_t id);

}  // namespace StandIn
