#pragma once

#include "samples/drivers/driving.h"

namespace StandIn {

// What drives the stand-in that is built as a DLL with dll_main.cpp: it reads NAME.txt beside NAME.dll when it is
// loaded, and writes its report to NAME.report when it is unloaded. One more line is known here, and reported:
//     load LIBRARY            asks the system for that library, by the name alone
Driving& DllDriving();

}  // namespace StandIn
