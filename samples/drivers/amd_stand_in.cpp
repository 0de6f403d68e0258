#include "samples/drivers/amd_stand_in.h"

#include <algorithm>
#include <cstring>

namespace StandIn {

namespace {

constexpr int Refused = -1;
constexpr int BlockSize = 128;
VNT::Adl::Allocate allocator = nullptr;

// Without a terminator if the text is too long for it.
template <std::size_t size>
void Fill(char (&field)[size], const std::string& text) {
    std::memset(field, 0, size);
    std::memcpy(field, text.data(), std::min(size, text.size()));
}

// The line of the first adapter of that index, or -1.
int FindAdapter(int index) {
    for (const int line : Amd().Below(-1, "adapter")) {
        if (Amd().At(line).Number(0) == index) return line;
    }
    return -1;
}

std::vector<int> DisplaysOf(int adapter) {
    const int line = FindAdapter(adapter);
    return line >= 0 ? Amd().Below(line, "display") : std::vector<int>();
}

int FindDisplay(int adapter, int display) {
    for (const int line : DisplaysOf(adapter)) {
        if (Amd().At(line).Number(0) == display) return line;
    }
    return -1;
}

}  // namespace

Driving& Amd() {
    static Driving driving;
    return driving;
}

int ADL_Main_Control_Create(VNT::Adl::Allocate allocate, int connectedOnly) {
    const int result = Amd().Enter("ADL_Main_Control_Create");
    if (result != 0 || connectedOnly != 1) return result != 0 ? result : Refused;
    allocator = allocate;
    Amd().Count("started", 1);
    return 0;
}

int ADL_Main_Control_Destroy() {
    Amd().Count("started", -1);
    return Amd().Enter("ADL_Main_Control_Destroy");
}

int ADL_Adapter_NumberOfAdapters_Get(int* count) {
    const auto truth = static_cast<long long>(Amd().Below(-1, "adapter").size());
    *count = static_cast<int>(Amd().Claim("ADL_Adapter_NumberOfAdapters_Get", truth));
    return Amd().Enter("ADL_Adapter_NumberOfAdapters_Get");
}

int ADL_Adapter_AdapterInfo_Get(VNT::Adl::AdapterInfo* out, int bytes) {
    const int result = Amd().Enter("ADL_Adapter_AdapterInfo_Get");
    if (result != 0) return result;
    const std::size_t room = static_cast<std::size_t>(bytes) / sizeof(*out);
    std::vector<int> lines = Amd().Below(-1, "adapter");
    lines.resize(std::min(lines.size(), room));
    for (const int line : lines) {
        const Line& adapter = Amd().At(line);
        out->iSize = sizeof(*out);
        out->iAdapterIndex = static_cast<int>(adapter.Number(0));
        Fill(out->strDisplayName, adapter.Text(1));
        Fill(out->strDriverPathExt, adapter.Text(2));
        ++out;
    }
    return 0;
}

int ADL_Display_NumberOfDisplays_Get(int adapter, int* count) {
    *count = static_cast<int>(DisplaysOf(adapter).size());
    return Amd().Enter("ADL_Display_NumberOfDisplays_Get");
}

int ADL_Display_DisplayInfo_Get(int adapter, int* count, VNT::Adl::DisplayInfo** out, int) {
    const std::vector<int> lines = DisplaysOf(adapter);
    *count = static_cast<int>(Amd().Claim("ADL_Display_DisplayInfo_Get", static_cast<long long>(lines.size())));
    *out = nullptr;
    const int result = Amd().Enter("ADL_Display_DisplayInfo_Get");
    if (Amd().Says("null", "ADL_Display_DisplayInfo_Get")) return result;
    // A failing call too may leave a buffer.
    auto* info =
        static_cast<VNT::Adl::DisplayInfo*>(allocator(static_cast<int>(lines.size() * sizeof(VNT::Adl::DisplayInfo))));
    *out = info;
    for (const int line : lines) {
        info->iDisplayLogicalIndex = static_cast<int>(Amd().At(line).Number(0));
        info->iDisplayLogicalAdapterIndex = static_cast<int>(Amd().At(line).Number(1));
        ++info;
    }
    return result;
}

int ADL_Adapter_Active_Get(int adapter, int* active) {
    *active = Amd().Says("inactive", std::to_string(adapter)) ? 0 : 1;
    return Amd().Enter("ADL_Adapter_Active_Get");
}

int ADL_Display_EdidData_Get(int adapter, int display, VNT::Adl::DisplayEdidData* data) {
    const int result = Amd().Enter("ADL_Display_EdidData_Get");
    const int line = FindDisplay(adapter, display);
    if (result != 0 || line < 0 || data->iSize != sizeof(*data)) return result != 0 ? result : Refused;
    const std::vector<std::uint8_t> edid = Amd().EdidBelow(line);
    const std::vector<int> first = Amd().Below(line, "first");
    const long long wanted = data->iBlockIndex == 0 && !first.empty() ? Amd().At(first[0]).Number(0) : BlockSize;
    const std::size_t size = std::min(sizeof(data->cEDIDData), static_cast<std::size_t>(wanted));
    auto start = static_cast<std::size_t>(data->iBlockIndex) * BlockSize;
    if (start >= edid.size() && !Amd().Below(-1, "endless").empty()) start = edid.size() - BlockSize;
    if (start >= edid.size()) return Refused;
    const std::size_t given = std::min(size, edid.size() - start);
    std::copy_n(edid.begin() + static_cast<std::ptrdiff_t>(start), given, data->cEDIDData);
    data->iEDIDSize = static_cast<int>(Amd().Claim("ADL_Display_EdidData_Get", static_cast<long long>(given)));
    return 0;
}

// Answers a read with the address and the numbers after it, and a write only if it reads "50 01 02".
int ADL_Display_DDCBlockAccess_Get(int adapter, int display, int option, int command, int sendSize, char* send,
                                   int* receiveSize, char* receive) {
    const int result = Amd().Enter("ADL_Display_DDCBlockAccess_Get");
    if (result != 0) return result;
    if (FindDisplay(adapter, display) < 0 || option != 0 || command != 0) return Refused;
    if (*receiveSize == 0) return sendSize == 3 && std::memcmp(send, "\x50\x01\x02", 3) == 0 ? 0 : Refused;
    if (sendSize != 1) return Refused;
    for (int i = 0; i < *receiveSize; ++i) receive[i] = static_cast<char>(send[0] + i);
    *receiveSize = static_cast<int>(Amd().Claim("ADL_Display_DDCBlockAccess_Get", *receiveSize));
    return 0;
}

}  // namespace StandIn
