// Preloaded into vantelle-cli: ends it, or fails, at the n-th call to the system that touches files, counted from the
// first that names VANTELLE_SHIM_FOLDER on. VANTELLE_SHIM is "kill N" or "fail N".

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

namespace {

bool watching = false;
long calls = 0;

// True if the call is to fail.
bool Enter(const char* path) {
    static const char* const order = std::getenv("VANTELLE_SHIM");
    static const char* const folder = std::getenv("VANTELLE_SHIM_FOLDER");
    if (order == nullptr || folder == nullptr) return false;
    if (path != nullptr && std::strncmp(path, folder, std::strlen(folder)) == 0) watching = true;
    if (!watching) return false;
    ++calls;
    if (calls != std::atol(order + std::strlen("kill "))) return false;
    if (std::strncmp(order, "kill", 4) == 0) raise(SIGKILL);
    errno = ENOSPC;
    return true;
}

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
    if (Enter(path)) return -1

#define VANTELLE_OPENING(name, parameters, path, ...)       \
    int name(parameters const char* path, int flags, ...) { \
        va_list arguments;                                  \
        va_start(arguments, flags);                         \
        const mode_t mode = ModeOf(flags, arguments);       \
        va_end(arguments);                                  \
        VANTELLE_FAILING(path);                             \
        return Next(name, #name)(__VA_ARGS__, flags, mode); \
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
    return Next(write, "write")(file, data, size > 100 ? size / 2 : size);
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
int fchown(int file, uid_t user, gid_t group) noexcept {
    VANTELLE_FAILING(nullptr);
    return Next(fchown, "fchown")(file, user, group);
}
int flock(int file, int operation) noexcept {
    VANTELLE_FAILING(nullptr);
    return Next(flock, "flock")(file, operation);
}

}  // extern "C"
