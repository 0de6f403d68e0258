// A stand-in for WMI's locator, and what it leads to: the class WmiMonitorDescriptorMethods, driven by lines of:
//     monitor NAME              an active monitor, by the name that WMI gives it ("DISPLAY\...\..._0"), with its EDID
//     wrong PROPERTY            the property is not of its type
//     endless                   monitors and blocks never end
// The calls are named as the interfaces name them; "Get" and "Put" with a point and the property. A claim for
// "Get.BlockContent" is of the number of bytes in a block.

#include <algorithm>
#include <string>
#include <vector>

#include "samples/drivers/com_object.h"
#include "samples/drivers/dll_main.h"
#include "samples/drivers/wmi_interfaces.h"

namespace StandIn {

namespace {

constexpr HRESULT Refused = E_INVALIDARG;
constexpr std::size_t BlockSize = 128;
constexpr const wchar_t* Class = L"WmiMonitorDescriptorMethods";
constexpr const wchar_t* Method = L"WmiGetMonitorRawEEdidV1Block";

bool IsEndless() { return !Wmi().Below(-1, "endless").empty(); }

// What the call answers; by the way, the result's place is emptied.
template <class Interface>
HRESULT Enter(const char* call, Interface** out) {
    *out = nullptr;
    return Wmi().Enter(call);
}

// A new object as the result of the call, or null if it is told to give that.
template <class Object, class Interface, class... Arguments>
HRESULT Give(const char* call, Interface** out, Arguments... arguments) {
    const HRESULT result = Enter(call, out);
    if (SUCCEEDED(result) && !Wmi().Says("null", call)) *out = new Object(arguments...);
    return result;
}

VARIANT TextVariant(const std::string& text) {
    VARIANT variant;
    VariantInit(&variant);
    variant.vt = VT_BSTR;
    variant.bstrVal = SysAllocString(std::wstring(text.begin(), text.end()).c_str());
    return variant;
}

VARIANT BytesVariant(const std::vector<std::uint8_t>& bytes) {
    VARIANT variant;
    VariantInit(&variant);
    variant.vt = VT_ARRAY | VT_UI1;
    variant.parray = SafeArrayCreateVector(VT_UI1, 0, static_cast<ULONG>(bytes.size()));
    void* data = nullptr;
    if (SUCCEEDED(SafeArrayAccessData(variant.parray, &data))) {
        std::copy(bytes.begin(), bytes.end(), static_cast<std::uint8_t*>(data));
        SafeArrayUnaccessData(variant.parray);
    }
    return variant;
}

// Serves as each of the objects: the class, its method's parameters, a monitor, and what a method gives back.
class ClassObject : public ComObject<UnansweredWbemClassObject, IID_IWbemClassObject> {
public:
    explicit ClassObject(int monitor = -1, std::vector<std::uint8_t> block = {})
        : monitor_(monitor), block_(std::move(block)) {}

    int BlockId() const { return blockId_; }

    STDMETHODIMP GetMethod(LPCWSTR name, LONG, IWbemClassObject** in, IWbemClassObject**) override {
        if (std::wstring(name) != Method) return Refused;
        return Give<ClassObject>("GetMethod", in);
    }

    STDMETHODIMP SpawnInstance(LONG, IWbemClassObject** out) override {
        return Give<ClassObject>("SpawnInstance", out);
    }

    STDMETHODIMP Put(LPCWSTR name, LONG, VARIANT* value, CIMTYPE) override {
        const HRESULT result = Wmi().Enter("Put.BlockId");
        if (FAILED(result)) return result;
        if (std::wstring(name) != L"BlockId" || value->vt != VT_UI1) return Refused;
        blockId_ = value->bVal;
        return S_OK;
    }

    STDMETHODIMP Get(LPCWSTR name, LONG, VARIANT* out, CIMTYPE*, LONG*) override {
        const std::wstring wide(name);
        const std::string property(wide.begin(), wide.end());
        const std::string call = "Get." + property;
        const HRESULT result = Wmi().Enter(call);
        VariantInit(out);
        if (FAILED(result)) return result;
        if (property == "BlockContent") {
            *out = BytesVariant(block_);
        } else if (monitor_ >= 0) {
            *out = TextVariant(property == "__Path" ? std::to_string(monitor_) : Wmi().At(monitor_).Text(0));
        } else {
            return Refused;
        }
        if (Wmi().Says("null", call) || Wmi().Says("wrong", property)) MakeWrong(*out, Wmi().Says("null", call));
        return S_OK;
    }

private:
    // Of the same type with a null pointer, or of another type.
    static void MakeWrong(VARIANT& variant, bool null) {
        const VARTYPE type = variant.vt;
        VariantClear(&variant);
        variant.vt = null ? type : static_cast<VARTYPE>(VT_I4);
        variant.bstrVal = nullptr;
        if (!null) variant.lVal = 0x7FFFFFF0;
    }

    int monitor_;
    std::vector<std::uint8_t> block_;
    int blockId_ = 0;
};

class Enumerator : public ComObject<UnansweredEnumWbemClassObject, IID_IEnumWbemClassObject> {
public:
    STDMETHODIMP Next(LONG, ULONG count, IWbemClassObject** out, ULONG* returned) override {
        const std::vector<int> monitors = Wmi().Below(-1, "monitor");
        *returned = 0;
        const HRESULT result = Enter("Next", out);
        if (FAILED(result) || count != 1) return FAILED(result) ? result : Refused;
        if (monitors.empty() || (next_ >= monitors.size() && !IsEndless())) return S_FALSE;
        *returned = 1;
        if (!Wmi().Says("null", "Next")) *out = new ClassObject(monitors[std::min(next_, monitors.size() - 1)]);
        ++next_;
        return S_OK;
    }

private:
    std::size_t next_ = 0;
};

// What CoSetProxyBlanket asks of the services. Lives in them.
class Security : public IClientSecurity {
public:
    explicit Security(IUnknown& owner) : owner_(owner) {}
    STDMETHODIMP QueryInterface(REFIID iid, void** out) override { return owner_.QueryInterface(iid, out); }
    STDMETHODIMP_(ULONG) AddRef() override { return owner_.AddRef(); }
    STDMETHODIMP_(ULONG) Release() override { return owner_.Release(); }
    STDMETHODIMP QueryBlanket(IUnknown*, DWORD*, DWORD*, OLECHAR**, DWORD*, DWORD*, void**, DWORD*) override {
        return E_NOTIMPL;
    }
    STDMETHODIMP SetBlanket(IUnknown*, DWORD, DWORD, OLECHAR*, DWORD, DWORD, void*, DWORD) override {
        return Wmi().Enter("SetBlanket");
    }
    STDMETHODIMP CopyProxy(IUnknown*, IUnknown**) override { return E_NOTIMPL; }

private:
    IUnknown& owner_;
};

class Services : public ComObject<UnansweredWbemServices, IID_IWbemServices> {
public:
    STDMETHODIMP QueryInterface(REFIID iid, void** out) override {
        if (!IsEqualIID(iid, IID_IClientSecurity)) return ComObject::QueryInterface(iid, out);
        *out = &security_;
        AddRef();
        return S_OK;
    }

    STDMETHODIMP GetObject(const BSTR path, LONG, IWbemContext*, IWbemClassObject** out, IWbemCallResult**) override {
        if (std::wstring(path) != Class) return Refused;
        return Give<ClassObject>("GetObject", out);
    }

    STDMETHODIMP ExecQuery(const BSTR language, const BSTR query, LONG flags, IWbemContext*,
                           IEnumWbemClassObject** out) override {
        const std::wstring expected = std::wstring(L"SELECT * FROM ") + Class;
        if (std::wstring(language) != L"WQL" || query != expected || flags != WBEM_FLAG_FORWARD_ONLY) {
            return Refused;
        }
        return Give<Enumerator>("ExecQuery", out);
    }

    STDMETHODIMP ExecMethod(const BSTR path, const BSTR method, LONG, IWbemContext*, IWbemClassObject* in,
                            IWbemClassObject** out, IWbemCallResult**) override {
        if (std::wstring(method) != Method) return Refused;
        const std::vector<std::uint8_t> edid = Wmi().EdidBelow(_wtoi(path));
        std::size_t start = static_cast<std::size_t>(static_cast<ClassObject*>(in)->BlockId()) * BlockSize;
        if (start >= edid.size() && IsEndless()) start = 0;
        if (start >= edid.size()) {
            *out = nullptr;
            return Refused;
        }
        const auto size = static_cast<long long>(std::min(BlockSize, edid.size() - start));
        std::vector<std::uint8_t> block(edid.begin() + static_cast<std::ptrdiff_t>(start),
                                        edid.begin() + static_cast<std::ptrdiff_t>(start) + size);
        block.resize(static_cast<std::size_t>(Wmi().Claim("Get.BlockContent", size)));
        return Give<ClassObject>("ExecMethod", out, -1, block);
    }

private:
    Security security_{*this};
};

class Locator : public ComObject<IWbemLocator, IID_IWbemLocator> {
public:
    STDMETHODIMP ConnectServer(const BSTR resource, const BSTR, const BSTR, const BSTR, LONG, const BSTR, IWbemContext*,
                               IWbemServices** out) override {
        if (std::wstring(resource) != L"ROOT\\WMI") return Refused;
        return Give<Services>("ConnectServer", out);
    }
};

class Factory : public ComObject<IClassFactory, IID_IClassFactory> {
public:
    STDMETHODIMP CreateInstance(IUnknown* outer, REFIID iid, void** out) override {
        const HRESULT result = Enter("CreateInstance", out);
        if (FAILED(result) || outer != nullptr) return FAILED(result) ? result : CLASS_E_NOAGGREGATION;
        Locator* locator = new Locator();
        const HRESULT found = locator->QueryInterface(iid, out);
        locator->Release();
        return found;
    }
    STDMETHODIMP LockServer(BOOL) override { return S_OK; }
};

}  // namespace

Driving& Wmi() {
    static Driving driving;
    return driving;
}

Driving& DllDriving() { return Wmi(); }

}  // namespace StandIn

STDAPI DllGetClassObject(REFCLSID, REFIID iid, void** out) {
    auto* factory = new StandIn::Factory();
    const HRESULT result = factory->QueryInterface(iid, out);
    factory->Release();
    return result;
}

STDAPI DllCanUnloadNow() { return StandIn::Wmi().Alive("objects") == 0 ? S_OK : S_FALSE; }
