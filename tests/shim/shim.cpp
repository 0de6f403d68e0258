// Preloaded into vantelle-cli, or linked to a test that forks: ends the program, or fails, at the n-th call to the
// system that touches files, counted from the first that names VANTELLE_SHIM_FOLDER on. VANTELLE_SHIM is "kill N" or
// "fail N".

#include "tests/shim/shim.h"

#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>
#include <utility>

namespace {

bool watching = false;
long calls = 0;
std::string watchedFolder;
std::function<bool(bool isChange)> watcher;

bool IsIn(const char* path, const char* folder) { return std::strncmp(path, folder, std::strlen(folder)) == 0; }

bool Refuse() {
    errno = ENOSPC;
    return true;
}

bool AskWatcher(const char* path, bool isChange) {
    if (path != nullptr && !IsIn(path, watchedFolder.c_str())) return false;
    const std::function<bool(bool isChange)> asked = watcher;
    bool isRefused = false;
    {
        const VNT::Shim::Rest rest;
        isRefused = asked(isChange);
    }
    return isRefused && Refuse();
}

}  // namespace

bool VNT::Shim::Enter(const char* path, bool isChange) {
    if (watcher) return AskWatcher(path, isChange);
    static const char* const order = std::getenv("VANTELLE_SHIM");
    static const char* const folder = std::getenv("VANTELLE_SHIM_FOLDER");
    if (order == nullptr || folder == nullptr) return false;
    if (path != nullptr && IsIn(path, folder)) watching = true;
    if (!watching) return false;
    ++calls;
    if (calls != std::atol(order + std::strlen("kill "))) return false;
    if (std::strncmp(order, "kill", 4) == 0) raise(SIGKILL);
    return Refuse();
}

VNT::Shim::Watch::Watch(std::string folder, std::function<bool(bool isChange)> atCall) {
    watchedFolder = std::move(folder);
    watcher = std::move(atCall);
}

VNT::Shim::Watch::~Watch() { watcher = nullptr; }

VNT::Shim::Rest::Rest() { this->watcher.swap(::watcher); }
VNT::Shim::Rest::~Rest() { this->watcher.swap(::watcher); }

namespace {

template <class Function>
Function* Next(Function*, const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

mode_t ModeOf(int flags, va_list arguments) {
    return (flags & (O_CREAT | O_TMPFILE)) != 0 ? static_cast<mode_t>(va_arg(arguments, int)) : 0;
}

}  // namespace

extern "C" {

#define VANTELLE_FAILING(path) \
    if (VNT::Shim::Enter(path)) return -1

#define VANTELLE_OPENING(name, parameters, path, ...)                                        \
    int name(parameters const char* path, int flags, ...) {                                  \
        va_list arguments;                                                                   \
        va_start(arguments, flags);                                                          \
        const mode_t mode = ModeOf(flags, arguments);                                        \
        va_end(arguments);                                                                   \
        if (VNT::Shim::Enter(path, (flags & (O_WRONLY | O_RDWR | O_CREAT)) != 0)) return -1; \
        return Next(name, #name)(__VA_ARGS__, flags, mode);                                  \
    }
#define VANTELLE_NOTHING
#define VANTELLE_FOLDER int folder,

VANTELLE_OPENING(open, VANTELLE_NOTHING, path, path)
VANTELLE_OPENING(open64, VANTELLE_NOTHING, path, path)
VANTELLE_OPENING(openat, VANTELLE_FOLDER, path, folder, path)
VANTELLE_OPENING(openat64, VANTELLE_FOLDER, path, folder, path)

ssize_t write(int file, const void* data, size_t size) {
    VANTELLE_FAILING(nullptr);
    // Of a block the half, so that an end may come between the halves.
    const bool isCut = size > 100 && (watching || watcher);
    return Next(write, "write")(file, data, isCut ? size / 2 : size);
}
int rename(const char* from, const char* to) noexcept {
    VANTELLE_FAILING(from);
    return Next(rename, "rename")(from, to);
}
int remove(const char* path) noexcept {
    VANTELLE_FAILING(path);
    return Next(remove, "remove")(path);
}
int unlink(const char* path) noexcept {
    VANTELLE_FAILING(path);
    return Next(unlink, "unlink")(path);
}
int unlinkat(int folder, const char* path, int flags) noexcept {
    VANTELLE_FAILING(nullptr);
    return Next(unlinkat, "unlinkat")(folder, path, flags);
}
int rmdir(const char* path) noexcept {
    VANTELLE_FAILING(path);
    return Next(rmdir, "rmdir")(path);
}
int mkdir(const char* path, mode_t mode) noexcept {
    VANTELLE_FAILING(path);
    return Next(mkdir, "mkdir")(path, mode);
}
int fsync(int file) {
    VANTELLE_FAILING(nullptr);
    return Next(fsync, "fsync")(file);
}
int ftruncate(int file, off_t size) noexcept {
    VANTELLE_FAILING(nullptr);
    return Next(ftruncate, "ftruncate")(file, size);
}
int fchmod(int file, mode_t mode) noexcept {
    VANTELLE_FAILING(nullptr);
    return Next(fchmod, "fchmod")(file, mode);
}
int fchmodat(int folder, const char* path, mode_t mode, int flags) noexcept {
    VANTELLE_FAILING(path);
    return Next(fchmodat, "fchmodat")(folder, path, mode, flags);
}
int fchown(int file, uid_t user, gid_t group) noexcept {
    VANTELLE_FAILING(nullptr);
    return Next(fchown, "fchown")(file, user, group);
}
int flock(int file, int operation) noexcept {
    VANTELLE_FAILING(nullptr);
    return Next(flock, "flock")(file, operation);
}

}  // extern "C"
