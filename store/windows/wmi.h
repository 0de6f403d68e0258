#pragma once

#include <wbemcli.h>

#include "store/windows/com.h"
#include "store/wmi_monitors.h"

namespace VNT {

// The connection to the monitors' class of WMI. What it holds goes before COM does.
class WindowsWmiConnection : public WmiConnection {
public:
    bool Do(WmiStep step) override;
    WmiNext Next() override;
    bool GetPath() override;
    bool GetInstanceName(std::wstring& out) override;
    bool PutBlockId(std::uint8_t block) override;
    bool ExecMethod() override;
    bool GetBlockContent(Bytes& out) override;

private:
    bool GetText(const wchar_t* property, std::wstring& out) const;

    ComLibrary com_;
    ComPointer<IWbemLocator> locator_;
    ComPointer<IWbemServices> services_;
    ComPointer<IWbemClassObject> class_;
    ComPointer<IWbemClassObject> inSignature_;
    ComPointer<IWbemClassObject> inParameters_;
    ComPointer<IEnumWbemClassObject> monitors_;
    ComPointer<IWbemClassObject> monitor_;
    ComPointer<IWbemClassObject> outParameters_;
    std::wstring path_;
};

}  // namespace VNT
