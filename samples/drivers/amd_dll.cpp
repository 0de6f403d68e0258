#include "samples/drivers/amd_stand_in.h"
#include "samples/drivers/dll_main.h"

namespace StandIn {

Driving& DllDriving() { return Amd(); }

}  // namespace StandIn
