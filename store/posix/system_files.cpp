#include "store/system_files.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace fs = std::filesystem;

namespace VNT::SystemFiles {

namespace {

constexpr int MostLinks = 40;
constexpr int NoFile = -1;
constexpr mode_t UsualMode = 0666;  // less what the user's mask takes away
constexpr mode_t OwnMode = 0600;
constexpr mode_t ModeBits = 07777;

template <class Call>
auto Retried(Call call) {
    auto result = call();
    while (result < 0 && errno == EINTR) result = call();
    return result;
}

class Descriptor {
public:
    explicit Descriptor(int number) : number_(number) {}
    ~Descriptor() {
        if (number_ != NoFile) close(number_);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    int Get() const { return number_; }
    bool IsOpen() const { return number_ != NoFile; }

private:
    int number_;
};

class PosixFile : public OpenFile {
public:
    explicit PosixFile(int number) : file_(number) {}

    bool Write(ByteRange bytes) override {
        const std::uint8_t* data = bytes.data;
        auto left = static_cast<std::size_t>(bytes.size);
        while (left > 0) {
            const ssize_t count = Retried([&] { return write(file_.Get(), data, left); });
            if (count <= 0) return false;
            data += count;
            left -= static_cast<std::size_t>(count);
        }
        return true;
    }
    bool Finish() override {
        const off_t end = lseek(file_.Get(), 0, SEEK_CUR);
        if (end < 0 || ftruncate(file_.Get(), end) != 0) return false;
        // Some file systems have no such call, and nothing to wait for.
        return fsync(file_.Get()) == 0 || errno == EINVAL || errno == ENOTSUP;
    }
    bool TakeAfter(const fs::path& path) override {
        struct stat old = {};
        struct stat own = {};
        if (lstat(path.c_str(), &old) != 0 || fstat(file_.Get(), &own) != 0) return false;
        const bool isOwned = old.st_uid == own.st_uid && old.st_gid == own.st_gid;
        if (!isOwned && fchown(file_.Get(), old.st_uid, old.st_gid) != 0) return false;
        return fchmod(file_.Get(), old.st_mode & ModeBits) == 0;
    }

private:
    Descriptor file_;
};

Kind KindOf(fs::file_status status) {
    switch (status.type()) {
        case fs::file_type::none:
        case fs::file_type::not_found:
        case fs::file_type::symlink:
            return Kind::None;
        case fs::file_type::regular:
            return Kind::File;
        case fs::file_type::directory:
            return Kind::Folder;
        default:
            return Kind::Other;
    }
}

// What was renamed is on the disk when its folder is.
void SyncFolder(const fs::path& path) {
    const fs::path folder = path.has_parent_path() ? path.parent_path() : fs::path(".");
    const Descriptor descriptor(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (descriptor.IsOpen()) fsync(descriptor.Get());
}

std::unique_ptr<OpenFile> Opened(int number) {
    return number != NoFile ? std::make_unique<PosixFile>(number) : nullptr;
}

}  // namespace

Place At(const fs::path& path) {
    std::error_code error;
    return {path, KindOf(fs::symlink_status(path, error))};
}

bool Follow(const fs::path& path, Place& out) {
    std::error_code error;
    out = {path, KindOf(fs::status(path, error))};
    // A link to a device may have a name that only the system can follow.
    if (out.kind == Kind::Other || out.kind == Kind::Folder) return true;
    for (int i = 0; i < MostLinks; ++i) {
        if (!fs::is_symlink(out.path, error)) return true;
        const fs::path target = fs::read_symlink(out.path, error);
        if (error) return false;
        out.path = out.path.parent_path() / target;
    }
    return false;
}

std::unique_ptr<OpenFile> Create(const fs::path& path, Rights rights, bool& taken) {
    const int flags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    const mode_t mode = rights == Rights::Own ? OwnMode : UsualMode;
    const int number = Retried([&] { return open(path.c_str(), flags, mode); });
    taken = number == NoFile && errno == EEXIST;
    return Opened(number);
}

std::unique_ptr<OpenFile> Open(const fs::path& path) {
    std::error_code error;
    const bool isFile = fs::is_regular_file(fs::symlink_status(path, error));
    const int flags = O_WRONLY | O_CLOEXEC | O_NOCTTY | (isFile ? O_NOFOLLOW : 0);
    return Opened(Retried([&] { return open(path.c_str(), flags); }));
}

bool Replace(const fs::path& fresh, const fs::path& path) {
    if (rename(fresh.c_str(), path.c_str()) != 0) return false;
    SyncFolder(path);
    return true;
}

std::shared_ptr<const void> LockFolder(const fs::path& folder) {
    auto descriptor = std::make_shared<Descriptor>(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!descriptor->IsOpen() || Retried([&] { return flock(descriptor->Get(), LOCK_EX); }) != 0) return nullptr;
    return descriptor;
}

void HoldStandardStreams() {
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(stream, F_GETFD) >= 0) continue;
        // The wrong way round, so that its use fails as that of a stream that is closed.
        const int held = open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY);
        if (held != NoFile && held != stream) close(held);
    }
}

const char* LineEnd() { return "\n"; }

}  // namespace VNT::SystemFiles
