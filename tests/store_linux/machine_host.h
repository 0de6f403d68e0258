#pragma once

#include "tests/store_linux/machine.h"

namespace VNT::Linux::Sample {

// A machine that the test keeps, for a door that wants to own one.
class MachineHost : public Host {
public:
    explicit MachineHost(Machine& machine) : machine_(machine) {}
    std::optional<std::string> Resolve(const std::string& path) const override { return machine_.Resolve(path); }
    bool IsFile(const std::string& path) const override { return machine_.IsFile(path); }
    bool IsFolder(const std::string& path) const override { return machine_.IsFolder(path); }
    std::vector<std::string> Names(const std::string& folder) const override { return machine_.Names(folder); }
    std::optional<Bytes> Read(const std::string& path, int most) const override { return machine_.Read(path, most); }
    std::error_code Write(const std::string& path, const Bytes& bytes, bool executable) override {
        return machine_.Write(path, bytes, executable);
    }
    std::error_code Remove(const std::string& path) override { return machine_.Remove(path); }
    std::error_code RemoveFolder(const std::string& path) override { return machine_.RemoveFolder(path); }
    std::error_code WriteAttribute(const std::string& path, const Bytes& bytes) override {
        return machine_.WriteAttribute(path, bytes);
    }
    bool MayWrite(const std::string& path) const override { return machine_.MayWrite(path); }
    bool MayRun() const override { return machine_.MayRun(); }
    std::error_code Run(const Command& command, int& status, std::string* output) override {
        return machine_.Run(command, status, output);
    }
    std::shared_ptr<void> Lock(const std::string& path) override { return machine_.Lock(path); }

private:
    Machine& machine_;
};

}  // namespace VNT::Linux::Sample
