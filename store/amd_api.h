#pragma once

// The part of AMD's display library (ADL) that is used here: structures and calls as the library has them, the same for
// 32 and 64 bit. Zero is success.
namespace VNT::Adl {

#ifdef _WIN32
#define VANTELLE_ADL_CALLBACK __stdcall
#else
#define VANTELLE_ADL_CALLBACK
#endif

struct AdapterInfo {
    int iSize;
    int iAdapterIndex;
    char strUDID[256];
    int iBusNumber;
    int iDeviceNumber;
    int iFunctionNumber;
    int iVendorID;
    char strAdapterName[256];
    char strDisplayName[256];
    int iPresent;
    int iExist;
    char strDriverPath[256];
    char strDriverPathExt[256];
    char strPNPString[256];
    int iOSDisplayIndex;
};
static_assert(sizeof(AdapterInfo) == 1572);

struct DisplayInfo {
    int iDisplayLogicalIndex;
    int iDisplayPhysicalIndex;
    int iDisplayLogicalAdapterIndex;
    int iDisplayPhysicalAdapterIndex;
    int iDisplayControllerIndex;
    char strDisplayName[256];
    char strDisplayManufacturerName[256];
    int iDisplayType;
    int iDisplayOutputType;
    int iDisplayConnector;
    int iDisplayInfoMask;
    int iDisplayInfoValue;
};
static_assert(sizeof(DisplayInfo) == 552);

struct DisplayEdidData {
    int iSize;
    int iFlag;
    int iEDIDSize;
    int iBlockIndex;
    unsigned char cEDIDData[256];
    int iReserved[4];
};
static_assert(sizeof(DisplayEdidData) == 288);

using Allocate = void*(VANTELLE_ADL_CALLBACK*)(int size);

struct Calls {
    int (*ADL_Main_Control_Create)(Allocate allocate, int connectedOnly);
    int (*ADL_Main_Control_Destroy)();
    int (*ADL_Adapter_NumberOfAdapters_Get)(int* count);
    int (*ADL_Adapter_AdapterInfo_Get)(AdapterInfo* out, int bytes);
    int (*ADL_Display_NumberOfDisplays_Get)(int adapter, int* count);
    int (*ADL_Display_DisplayInfo_Get)(int adapter, int* count, DisplayInfo** out, int forceDetect);
    int (*ADL_Adapter_Active_Get)(int adapter, int* active);
    int (*ADL_Display_EdidData_Get)(int adapter, int display, DisplayEdidData* data);
    int (*ADL_Display_DDCBlockAccess_Get)(int adapter, int display, int option, int command, int sendSize, char* send,
                                          int* receiveSize, char* receive);
};

}  // namespace VNT::Adl
