#include "samples/drivers/dll_main.h"
#include "samples/drivers/nvidia_stand_in.h"

namespace StandIn {

Driving& DllDriving() { return Nvidia(); }

}  // namespace StandIn
