#pragma once

#include <filesystem>

#include "store/linux/host.h"

namespace VNT::Linux {

// The machine below `root`: "/" for the one that the program runs on. Programs work on that one alone, so below any
// other root none is run.
class SystemHost : public Host {
public:
    explicit SystemHost(std::filesystem::path root) : root_(std::move(root)) {}

    std::optional<std::string> Resolve(const std::string& path) const override;
    bool IsFile(const std::string& path) const override;
    bool IsFolder(const std::string& path) const override;
    std::vector<std::string> Names(const std::string& folder) const override;
    std::optional<Bytes> Read(const std::string& path, int most) const override;
    std::error_code Write(const std::string& path, const Bytes& bytes, bool executable) override;
    std::error_code Remove(const std::string& path) override;
    std::error_code RemoveFolder(const std::string& path) override;
    std::error_code WriteAttribute(const std::string& path, const Bytes& bytes) override;
    bool MayWrite(const std::string& path) const override;
    bool MayRun() const override;
    std::error_code Run(const Command& command, int& status, std::string* output) override;
    std::shared_ptr<void> Lock(const std::string& path) override;

private:
    // The path below the root with each link in it led through, what is missing at its end left as it is.
    std::optional<std::string> Walk(const std::string& path) const;
    std::optional<std::filesystem::path> Place(const std::string& path) const;

    std::filesystem::path root_;
};

}  // namespace VNT::Linux
