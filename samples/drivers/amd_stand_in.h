#pragma once

#include "samples/drivers/driving.h"
#include "store/amd_api.h"

// A stand-in for AMD's driver library, driven by lines of:
//     adapter INDEX NAME PATH          as often as the driver lists one; NAME and PATH may be longer than their fields
//     inactive INDEX                   that logical adapter is not active
//     display INDEX ADAPTER            a display of the adapter above, by logical indices; ADAPTER may be negative
//     first SIZE                       bytes that the first read of the EDID above gives, up to 256 (default 128)
//     endless                          reads past the end of an EDID succeed, with its last bytes
// The names of calls are those of the library.
namespace StandIn {

Driving& Amd();

extern "C" {
int ADL_Main_Control_Create(VNT::Adl::Allocate allocate, int connectedOnly);
int ADL_Main_Control_Destroy();
int ADL_Adapter_NumberOfAdapters_Get(int* count);
int ADL_Adapter_AdapterInfo_Get(VNT::Adl::AdapterInfo* out, int bytes);
int ADL_Display_NumberOfDisplays_Get(int adapter, int* count);
int ADL_Display_DisplayInfo_Get(int adapter, int* count, VNT::Adl::DisplayInfo** out, int forceDetect);
int ADL_Adapter_Active_Get(int adapter, int* active);
int ADL_Display_EdidData_Get(int adapter, int display, VNT::Adl::DisplayEdidData* data);
int ADL_Display_DDCBlockAccess_Get(int adapter, int display, int option, int command, int sendSize, char* send,
                                   int* receiveSize, char* receive);
}

}  // namespace StandIn
