#include "store/windows/wmi.h"

#include "store/source.h"

namespace VNT {

namespace {

constexpr wchar_t ClassName[] = L"WmiMonitorDescriptorMethods";
constexpr wchar_t MethodName[] = L"WmiGetMonitorRawEEdidV1Block";

HRESULT InitializeSecurity() {
    return CoInitializeSecurity(nullptr, -1, nullptr, nullptr, RPC_C_AUTHN_LEVEL_DEFAULT, RPC_C_IMP_LEVEL_IMPERSONATE,
                                nullptr, EOAC_NONE, nullptr);
}

HRESULT SetProxyBlanket(IUnknown* proxy) {
    return CoSetProxyBlanket(proxy, RPC_C_AUTHN_WINNT, RPC_C_AUTHZ_NONE, nullptr, RPC_C_AUTHN_LEVEL_CALL,
                             RPC_C_IMP_LEVEL_IMPERSONATE, nullptr, EOAC_NONE);
}

HRESULT CreateLocator(IWbemLocator** out) {
    return CoCreateInstance(CLSID_WbemLocator, nullptr, CLSCTX_INPROC_SERVER, IID_IWbemLocator,
                            reinterpret_cast<void**>(out));
}

// The elements of an array of bytes; nothing of any other variant.
Bytes BytesOf(const VARIANT& variant) {
    SAFEARRAY* array = variant.vt == (VT_ARRAY | VT_UI1) ? variant.parray : nullptr;
    if (array == nullptr || SafeArrayGetDim(array) != 1 || SafeArrayGetElemsize(array) != 1) return {};
    void* data = nullptr;
    if (FAILED(SafeArrayAccessData(array, &data))) return {};
    const ULONG size = std::min<ULONG>(array->rgsabound[0].cElements, Source::MostEdidBytes);
    const Bytes bytes(ByteRange(static_cast<std::uint8_t*>(data), data != nullptr ? static_cast<int>(size) : 0));
    SafeArrayUnaccessData(array);
    return bytes;
}

}  // namespace

bool WindowsWmiConnection::Do(WmiStep step) {
    switch (step) {
        case WmiStep::Initialize:
            return com_.Initialize();
        case WmiStep::InitializeSecurity:
            return SUCCEEDED(InitializeSecurity());
        case WmiStep::CreateLocator:
            return locator_.Took(CreateLocator(locator_.Out()));
        case WmiStep::ConnectServer:
            return services_.Took(locator_->ConnectServer(ComText(L"ROOT\\WMI"), nullptr, nullptr, nullptr, 0, nullptr,
                                                          nullptr, services_.Out()));
        case WmiStep::SetProxyBlanket:
            return SUCCEEDED(SetProxyBlanket(services_.Get()));
        case WmiStep::GetClass:
            return class_.Took(services_->GetObject(ComText(ClassName), 0, nullptr, class_.Out(), nullptr));
        case WmiStep::GetMethod:
            return inSignature_.Took(class_->GetMethod(MethodName, 0, inSignature_.Out(), nullptr));
        case WmiStep::SpawnInstance:
            return inParameters_.Took(inSignature_->SpawnInstance(0, inParameters_.Out()));
        case WmiStep::ExecQuery:
            return monitors_.Took(services_->ExecQuery(ComText(L"WQL"),
                                                       ComText(L"SELECT * FROM WmiMonitorDescriptorMethods"),
                                                       WBEM_FLAG_FORWARD_ONLY, nullptr, monitors_.Out()));
    }
    return false;
}

WmiNext WindowsWmiConnection::Next() {
    ULONG count = 0;
    const HRESULT result = monitors_->Next(static_cast<LONG>(WBEM_INFINITE), 1, monitor_.Out(), &count);
    if (FAILED(result)) return WmiNext::Failed;
    return count != 0 && monitor_.Get() != nullptr ? WmiNext::Object : WmiNext::End;
}

bool WindowsWmiConnection::GetText(const wchar_t* property, std::wstring& out) const {
    ComVariant variant;
    if (FAILED(monitor_->Get(property, 0, &variant, nullptr, nullptr))) return false;
    if (variant.Get().vt != VT_BSTR || variant.Get().bstrVal == nullptr) return false;
    out.assign(variant.Get().bstrVal, SysStringLen(variant.Get().bstrVal));
    return true;
}

bool WindowsWmiConnection::GetPath() { return GetText(L"__Path", path_); }

bool WindowsWmiConnection::GetInstanceName(std::wstring& out) { return GetText(L"InstanceName", out); }

bool WindowsWmiConnection::PutBlockId(std::uint8_t block) {
    VARIANT value = {};
    value.vt = VT_UI1;
    value.bVal = block;
    return SUCCEEDED(inParameters_->Put(L"BlockId", 0, &value, 0));
}

bool WindowsWmiConnection::ExecMethod() {
    return outParameters_.Took(services_->ExecMethod(ComText(path_.c_str()), ComText(MethodName), 0, nullptr,
                                                     inParameters_.Get(), outParameters_.Out(), nullptr));
}

bool WindowsWmiConnection::GetBlockContent(Bytes& out) {
    ComVariant variant;
    if (FAILED(outParameters_->Get(L"BlockContent", 0, &variant, nullptr, nullptr))) return false;
    out = BytesOf(variant.Get());
    return true;
}

}  // namespace VNT
