#include "store/wmi_monitors.h"

#include "store/source.h"

namespace VNT {

namespace {

struct Step {
    WmiStep step;
    const wchar_t* failure;  // null: fails in silence
};

constexpr Step Steps[] = {
    {WmiStep::Initialize, L"CoInitializeEx failed."},
    {WmiStep::InitializeSecurity, L"CoInitializeSecurity failed."},
    {WmiStep::CreateLocator, L"CoCreateInstance failed."},
    {WmiStep::ConnectServer, L"IWbemLocator::ConnectServer(\"ROOT\\WMI\") failed."},
    {WmiStep::SetProxyBlanket, L"CoSetProxyBlanket failed."},
    {WmiStep::GetClass, L"IWbemServices::GetObjectW(\"WmiMonitorDescriptorMethods\") failed."},
    {WmiStep::GetMethod, L"WmiMonitorDescriptorMethods::GetMethod(\"WmiGetMonitorRawEEdidV1Block\") failed."},
    {WmiStep::SpawnInstance, L"WmiGetMonitorRawEEdidV1Block::SpawnInstance failed."},
    {WmiStep::ExecQuery, nullptr},
};

constexpr int BlockIds = 256;

void Connect(WmiConnection& wmi) {
    for (const Step& step : Steps) {
        if (!wmi.Do(step.step)) throw step.failure;
    }
}

void Require(bool succeeded, const wchar_t* failure) {
    if (!succeeded) throw failure;
}

// The instance ID of the device that WMI names: it adds "_" and a number.
std::wstring InstanceId(const std::wstring& instanceName) {
    return UpperAscii(instanceName.substr(0, instanceName.rfind(L'_')));
}

WmiMonitorRecord ReadMonitor(WmiConnection& wmi) {
    std::wstring name;
    Require(wmi.GetPath(), L"IWbemClassObject::Get(\"__Path\") failed.");
    Require(wmi.GetInstanceName(name), L"IWbemClassObject::Get(\"InstanceName\") failed.");
    WmiMonitorRecord record{InstanceId(name), {}};
    for (int block = 0; block < BlockIds && record.EdidData.Size() < Source::MostEdidBytes; ++block) {
        Require(wmi.PutBlockId(static_cast<std::uint8_t>(block)),
                L"WmiGetMonitorRawEEdidV1Block::Put(\"BlockId\") failed.");
        if (!wmi.ExecMethod()) break;  // how the end of the data shows
        Bytes content;
        Require(wmi.GetBlockContent(content), L"WmiGetMonitorRawEEdidV1Block::Get(\"BlockContent\") failed.");
        Source::AppendEdid(record.EdidData, content, content.Size());
    }
    return record;
}

void ReadMonitors(WmiConnection& wmi, std::vector<WmiMonitorRecord>& out) {
    for (int i = 0; i < Source::MostRecords; ++i) {
        const WmiNext next = wmi.Next();
        Require(next != WmiNext::Failed, L"IEnumWbemClassObject::Next failed.");
        if (next == WmiNext::End) return;
        out.push_back(ReadMonitor(wmi));
    }
}

}  // namespace

bool ReadWmiMonitors(WmiConnection& wmi, const std::function<void(const wchar_t*)>& showError,
                     std::vector<WmiMonitorRecord>& out) {
    out.clear();
    try {
        Connect(wmi);
        ReadMonitors(wmi, out);
        return true;
    } catch (const wchar_t* failure) {
        if (failure != nullptr) showError(failure);
        return false;
    }
}

}  // namespace VNT
