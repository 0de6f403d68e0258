#pragma once

#include <filesystem>
#include <random>
#include <string>

// A folder of this program's own, in memory where the system has files there, made once and gone with the program. What
// a run leaves in it is cleared by the next.
class FuzzFolder {
public:
    explicit FuzzFolder(const std::string& name)
        : path_(Parent() / ("vantelle_" + name + "_" + std::to_string(std::random_device()()))) {
        std::filesystem::create_directories(path_);
    }
    FuzzFolder(const FuzzFolder&) = delete;
    FuzzFolder& operator=(const FuzzFolder&) = delete;
    ~FuzzFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    const std::filesystem::path& Path() const { return path_; }
    void Clear() const {
        for (const auto& entry : std::filesystem::directory_iterator(path_)) std::filesystem::remove_all(entry.path());
    }

private:
    static std::filesystem::path Parent() {
        const std::filesystem::path memory = "/dev/shm";
        return std::filesystem::is_directory(memory) ? memory : std::filesystem::temp_directory_path();
    }

    std::filesystem::path path_;
};
