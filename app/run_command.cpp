#include "app/run_command.h"

#include <cerrno>
#include <spawn.h>
#include <sys/wait.h>

extern char** environ;

namespace VNT::App {

std::optional<int> RunCommandToEnd(const std::vector<std::string>& words) {
    std::vector<std::string> copies = words;
    std::vector<char*> pointers;
    for (std::string& word : copies) pointers.push_back(word.data());
    pointers.push_back(nullptr);
    pid_t child = 0;
    if (words.empty() || posix_spawnp(&child, pointers.front(), nullptr, nullptr, pointers.data(), environ) != 0)
        return std::nullopt;
    int status = 0;
    while (waitpid(child, &status, 0) < 0) {
        if (errno != EINTR) return std::nullopt;
    }
    if (!WIFEXITED(status)) return std::nullopt;
    return WEXITSTATUS(status);
}

}  // namespace VNT::App
