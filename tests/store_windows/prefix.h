#pragma once

#include <windows.h>

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "model/core/bytes.h"

// Displays of our own making in the registry of the Wine prefix that the tests run in, as Wine keeps them.
namespace VNT {

// True under Wine: nothing here may touch the registry of a real machine.
bool IsWine();

struct PrefixDisplay {
    std::wstring hardware;  // "VTA1001"
    std::wstring instance;  // "4&1&0&UID1"
    std::wstring driverKey;
    std::wstring description;
    Bytes edid;                // empty: no value
    bool refusesKeys = false;  // its key lasts until the next start only, so that no lasting one can be made below it

    std::wstring InstanceId() const { return L"DISPLAY\\" + hardware + L"\\" + instance; }
    std::wstring Path() const { return L"System\\CurrentControlSet\\Enum\\" + InstanceId(); }
    std::wstring ParametersPath() const { return Path() + L"\\Device Parameters"; }
};

// Every test begins with a prefix that has none of our displays, and leaves it so.
class PrefixTest : public testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    void Add(const PrefixDisplay& display);
    void AddOverride(const PrefixDisplay& display, const std::wstring& name, const Bytes& bytes) const;

private:
    std::vector<PrefixDisplay> displays_;
};

// All below a key of HKEY_LOCAL_MACHINE: paths, names, types and bytes, a line each.
std::string Dump(const std::wstring& path);

}  // namespace VNT
