#pragma once

#include <gtest/gtest.h>
#include <map>
#include <string>
#include <vector>

#include "samples/drivers/amd_stand_in.h"
#include "samples/drivers/driving.h"
#include "store/driver_library.h"
#include "store/gpu_display.h"

namespace VNT::Sample {

// A machine with these libraries in its system folder; each is a table of what it exports.
class StandInLibraries {
public:
    using Exports = std::map<std::string, DriverLibrary::Procedure>;

    std::map<std::wstring, Exports> libraries;
    std::vector<std::wstring> asked;  // the names that were tried
    int loaded = 0;                   // libraries that are loaded now

    LibraryLoader Loader() {
        return [this](const wchar_t* name) -> std::unique_ptr<DriverLibrary> {
            asked.emplace_back(name);
            const auto found = libraries.find(name);
            if (found == libraries.end()) return nullptr;
            return std::make_unique<Library>(*this, found->second);
        };
    }

private:
    class Library : public DriverLibrary {
    public:
        Library(StandInLibraries& all, Exports exports) : all_(all), exports_(std::move(exports)) { ++all_.loaded; }
        ~Library() override { --all_.loaded; }
        Library(const Library&) = delete;
        Library& operator=(const Library&) = delete;
        using DriverLibrary::Find;
        Procedure Find(const char* name) const override {
            const auto found = exports_.find(name);
            return found != exports_.end() ? found->second : nullptr;
        }

    private:
        StandInLibraries& all_;
        Exports exports_;
    };
};

// What the stand-in of AMD's library exports.
inline StandInLibraries::Exports AmdExports() {
    using namespace StandIn;
    const auto procedure = [](auto* function) { return reinterpret_cast<DriverLibrary::Procedure>(function); };
    return {
        {"ADL_Main_Control_Create", procedure(ADL_Main_Control_Create)},
        {"ADL_Adapter_NumberOfAdapters_Get", procedure(ADL_Adapter_NumberOfAdapters_Get)},
        {"ADL_Adapter_AdapterInfo_Get", procedure(ADL_Adapter_AdapterInfo_Get)},
        {"ADL_Display_NumberOfDisplays_Get", procedure(ADL_Display_NumberOfDisplays_Get)},
        {"ADL_Display_DisplayInfo_Get", procedure(ADL_Display_DisplayInfo_Get)},
        {"ADL_Adapter_Active_Get", procedure(ADL_Adapter_Active_Get)},
        {"ADL_Display_EdidData_Get", procedure(ADL_Display_EdidData_Get)},
        {"ADL_Display_DDCBlockAccess_Get", procedure(ADL_Display_DDCBlockAccess_Get)},
        {"ADL_Main_Control_Destroy", procedure(ADL_Main_Control_Destroy)},
    };
}

// A test of one driver's reader on its stand-in. At its end nothing may be loaded or started any more.
class DriverTest : public testing::Test {
protected:
    using Reader = bool(const LibraryLoader& load, std::vector<WindowsGpuDisplay>& out);

    DriverTest(StandIn::Driving& driving, Reader* reader) : driving_(driving), reader_(reader) {}

    void TearDown() override {
        displays_.clear();
        EXPECT_EQ(libraries_.loaded, 0);
        EXPECT_TRUE(driving_.Report().empty() || driving_.Report() == "started 0\n");
    }

    bool Read(const std::string& driving) {
        displays_.clear();
        driving_.Start(driving);
        return reader_(libraries_.Loader(), displays_);
    }

    // The displays as "NAME handle handle size", a line each.
    std::wstring Found() const {
        std::wstring text;
        for (const WindowsGpuDisplay& display : displays_) {
            const GpuDisplayRecord& record = display.GetRecord();
            text += record.DisplayName;
            for (const auto number :
                 {record.Handle1, record.Handle2, static_cast<std::uint32_t>(record.EdidData.Size())}) {
                text.append(L" ").append(std::to_wstring(number));
            }
            text += L"\n";
        }
        return text;
    }

    StandInLibraries libraries_;
    std::vector<WindowsGpuDisplay> displays_;

private:
    StandIn::Driving& driving_;
    Reader* reader_;
};

}  // namespace VNT::Sample
