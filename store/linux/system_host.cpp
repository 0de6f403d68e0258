#include "store/linux/system_host.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <fcntl.h>
#include <spawn.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "store/write_file.h"

namespace fs = std::filesystem;

namespace VNT::Linux {

namespace {

constexpr int MostLinks = 40;  // as many as the kernel itself follows in one path
constexpr std::size_t MostOutput = 1024 * 1024;

std::error_code LastError() { return {errno, std::generic_category()}; }
std::error_code Error(std::errc error) { return std::make_error_code(error); }

// An open file, closed when its owner goes.
class File {
public:
    File(const fs::path& path, int flags) : file_(open(path.c_str(), flags | O_CLOEXEC, 0644)) {}
    explicit File(int file) : file_(file) {}
    ~File() { Close(); }
    File(const File&) = delete;
    File& operator=(const File&) = delete;
    bool IsOpen() const { return file_ >= 0; }
    int Get() const { return file_; }
    void Close() {
        if (IsOpen()) close(file_);
        file_ = -1;
    }

private:
    int file_;
};

// All that can be read, until the end or more than `most`; false on an error.
bool ReadAll(int file, std::size_t most, std::vector<std::uint8_t>& out) {
    std::uint8_t piece[8 * 1024];
    while (out.size() <= most) {
        const ssize_t count = read(file, piece, std::min(sizeof(piece), most + 1 - out.size()));
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) return count == 0;
        out.insert(out.end(), piece, piece + count);
    }
    return true;
}

}  // namespace

std::optional<std::string> SystemHost::Walk(const std::string& path) const {
    if (path.find('\0') != std::string::npos) return std::nullopt;
    const std::string root = root_.string() + "/";
    std::string rest = path;
    std::string done;
    for (int links = 0; !rest.empty();) {
        const std::size_t slash = rest.find('/');
        const std::string part = rest.substr(0, slash);
        rest.erase(0, slash == std::string::npos ? slash : slash + 1);
        if (part.empty() || part == ".") continue;
        if (part == "..") {
            const std::size_t last = done.rfind('/');
            done.resize(last == std::string::npos ? 0 : last);
            continue;
        }
        const std::string place = done.empty() ? part : done + "/" + part;
        char target[PATH_MAX];
        const ssize_t length = readlink((root + place).c_str(), target, sizeof(target));
        if (length < 0) {  // no link, if it is there at all
            done = place;
            continue;
        }
        if (length == PATH_MAX || ++links > MostLinks) return std::nullopt;
        if (target[0] == '/') done.clear();
        rest = std::string(target, static_cast<std::size_t>(length)) + "/" + rest;
    }
    return done;
}

std::optional<fs::path> SystemHost::Place(const std::string& path) const {
    const std::optional<std::string> walked = Walk(path);
    if (!walked) return std::nullopt;
    return root_ / *walked;
}

std::optional<std::string> SystemHost::Resolve(const std::string& path) const {
    const std::optional<std::string> walked = Walk(path);
    std::error_code error;
    return walked && fs::exists(root_ / *walked, error) ? walked : std::nullopt;
}

bool SystemHost::IsFile(const std::string& path) const {
    const std::optional<fs::path> place = Place(path);
    std::error_code error;
    return place && fs::is_regular_file(*place, error);
}

bool SystemHost::IsFolder(const std::string& path) const {
    const std::optional<fs::path> place = Place(path);
    std::error_code error;
    return place && fs::is_directory(*place, error);
}

std::vector<std::string> SystemHost::Names(const std::string& folder) const {
    std::vector<std::string> names;
    const std::optional<fs::path> place = Place(folder);
    std::error_code error;
    if (!place) return names;
    for (fs::directory_iterator at(*place, error), end; !error && at != end; at.increment(error)) {
        names.push_back(at->path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::optional<Bytes> SystemHost::Read(const std::string& path, int most) const {
    const std::optional<fs::path> place = Place(path);
    if (!place) return std::nullopt;
    // What is no regular file may block at opening or never end.
    const File file(*place, O_RDONLY | O_NONBLOCK | O_NOCTTY);
    struct stat status = {};
    if (!file.IsOpen() || fstat(file.Get(), &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
    std::vector<std::uint8_t> bytes;
    const auto limit = static_cast<std::size_t>(std::max(most, 0));
    if (!ReadAll(file.Get(), limit, bytes) || bytes.size() > limit) return std::nullopt;
    return Bytes(bytes);
}

std::error_code SystemHost::Write(const std::string& path, const Bytes& bytes, bool executable) {
    const std::optional<fs::path> place = Place(path);
    if (!place) return Error(std::errc::too_many_symbolic_link_levels);
    std::error_code error;
    fs::create_directories(place->parent_path(), error);
    if (error) return error;
    const fs::file_status before = fs::status(*place, error);
    // A new one can be read by all, whatever the user's own new files can.
    fs::perms mode = fs::exists(before) ? before.permissions() : static_cast<fs::perms>(0644);
    if (executable) mode |= fs::perms::owner_exec | fs::perms::group_exec | fs::perms::others_exec;
    if (!WriteFile(*place, bytes, Links::Follow, mode)) return Error(std::errc::io_error);
    return {};
}

std::error_code SystemHost::Remove(const std::string& path) {
    const std::optional<fs::path> place = Place(path);
    if (!place) return Error(std::errc::too_many_symbolic_link_levels);
    std::error_code error;
    fs::remove(*place, error);
    return error;
}

std::error_code SystemHost::RemoveFolder(const std::string& path) {
    const std::optional<fs::path> place = Place(path);
    if (!place) return Error(std::errc::too_many_symbolic_link_levels);
    return rmdir(place->c_str()) == 0 ? std::error_code() : LastError();
}

std::error_code SystemHost::WriteAttribute(const std::string& path, const Bytes& bytes) {
    const std::optional<fs::path> place = Place(path);
    if (!place) return Error(std::errc::too_many_symbolic_link_levels);
    // Without O_TRUNC, as no file of the kernel's has a length; a file that stands for one in a test tree has.
    const File file(*place, O_WRONLY | O_NONBLOCK | O_NOCTTY);
    if (!file.IsOpen()) return LastError();
    struct stat status = {};
    if (fstat(file.Get(), &status) != 0) return LastError();
    if (!S_ISREG(status.st_mode)) return Error(std::errc::invalid_argument);
    if (status.st_size > 0 && root_ != "/" && ftruncate(file.Get(), 0) != 0) return LastError();
    const ssize_t count = write(file.Get(), bytes.View().data(), bytes.View().size());
    if (count < 0) return LastError();
    return count == bytes.Size() ? std::error_code() : Error(std::errc::io_error);
}

bool SystemHost::MayWrite(const std::string& path) const {
    std::optional<fs::path> place = Place(path);
    std::error_code error;
    while (place && !fs::exists(*place, error) && *place != place->parent_path()) place = place->parent_path();
    // Replacing a file is a matter of the folder that it stands in, but for the kernel's own files.
    return place && faccessat(AT_FDCWD, place->c_str(), W_OK, AT_EACCESS) == 0;
}

bool SystemHost::MayRun() const { return root_ == "/" && geteuid() == 0; }

std::error_code SystemHost::Run(const Command& command, int& status, std::string* output) {
    if (root_ != "/" || command.empty()) return Error(std::errc::operation_not_permitted);
    const std::optional<std::string> program = FindProgram(*this, command[0]);
    if (!program) return Error(std::errc::no_such_file_or_directory);
    int ends[2] = {-1, -1};
    if (pipe2(ends, O_CLOEXEC) != 0) return LastError();
    const File out(ends[0]);
    File in(ends[1]);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_adddup2(&actions, in.Get(), STDOUT_FILENO);
    std::vector<std::string> words = command;
    std::vector<char*> pointers;
    for (std::string& word : words) pointers.push_back(word.data());
    pointers.push_back(nullptr);
    std::string path = "PATH=/usr/sbin:/usr/bin:/sbin:/bin";
    std::string locale = "LC_ALL=C.UTF-8";
    char* const environment[] = {path.data(), locale.data(), nullptr};
    pid_t child = -1;
    const int spawned = posix_spawn(&child, ("/" + *program).c_str(), &actions, nullptr, pointers.data(), environment);
    posix_spawn_file_actions_destroy(&actions);
    in.Close();
    if (spawned != 0) return {spawned, std::generic_category()};
    std::vector<std::uint8_t> printed;
    ReadAll(out.Get(), MostOutput, printed);
    // What is printed beyond that is read and dropped: the program must not wait for a reader.
    for (std::vector<std::uint8_t> rest; printed.size() > MostOutput; rest.clear()) {
        if (!ReadAll(out.Get(), MostOutput, rest) || rest.empty()) break;
    }
    int ended = 0;
    while (waitpid(child, &ended, 0) < 0) {
        if (errno != EINTR) return LastError();
    }
    status = WIFEXITED(ended) ? WEXITSTATUS(ended) : -1;
    if (output != nullptr) output->assign(printed.begin(), printed.end());
    return {};
}

std::shared_ptr<void> SystemHost::Lock(const std::string& path) {
    const std::optional<fs::path> place = Place(path);
    if (!place) return nullptr;
    std::error_code error;
    fs::create_directories(place->parent_path(), error);
    const auto file = std::make_shared<File>(*place, O_RDWR | O_CREAT | O_NOFOLLOW);
    if (!file->IsOpen()) return nullptr;
    while (flock(file->Get(), LOCK_EX) != 0) {
        if (errno != EINTR) return nullptr;
    }
    return file;
}

}  // namespace VNT::Linux
