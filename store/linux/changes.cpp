#include "store/linux/changes.h"

#include <algorithm>

#include "store/write_file.h"

namespace VNT::Linux {

namespace {

std::string ParentOf(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos ? std::string() : path.substr(0, slash);
}

std::string LastLine(std::string text) {
    text.resize(text.find_last_not_of(" \r\n") + 1);
    const std::size_t line = text.rfind('\n');
    return line == std::string::npos ? text : text.substr(line + 1);
}

// A line for each folder that was made.
constexpr char FoldersFile[] = "var/lib/vantelle/folders";

// What a write that was cut off has left beside the file.
void RemoveCutOff(Host& host, const std::string& folder) {
    for (const std::string& name : host.Names(folder)) {
        if (IsFreshName(name) && host.IsFile(folder + "/" + name)) host.Remove(folder + "/" + name);
    }
}

void RemoveEmptyBelow(Host& host, const std::string& folder) {
    RemoveCutOff(host, folder);
    for (const std::string& name : host.Names(folder)) {
        const std::string path = folder + "/" + name;
        if (host.IsFolder(path)) RemoveEmptyBelow(host, path);
    }
    if (host.IsFolder(folder) && host.Names(folder).empty()) host.RemoveFolder(folder);
}

}  // namespace

std::vector<std::string> MissingFolders(const Host& host, const std::string& path) {
    std::vector<std::string> missing;
    for (std::string folder = ParentOf(path); !folder.empty() && !host.IsFolder(folder); folder = ParentOf(folder)) {
        missing.insert(missing.begin(), folder);
    }
    return missing;
}

void Changes::Add(Phase phase, const std::string& path, const Content& content, bool executable) {
    Step step;
    step.phase = phase;
    step.path = path;
    step.content = [content] { return content; };
    step.executable = executable;
    steps_.push_back(std::move(step));
}

void Changes::FinishWith(const std::string& path, std::function<Content()> content) {
    Step step;
    step.phase = Phase::Finish;
    step.path = path;
    step.content = std::move(content);
    steps_.push_back(std::move(step));
}

void Changes::Run(const Command& command, const Command& undo, std::function<bool()> check) {
    Step step;
    step.phase = Phase::Run;
    step.command = command;
    step.undo = undo;
    step.check = std::move(check);
    steps_.push_back(std::move(step));
}

void Changes::Act(std::function<void()> act, std::function<bool()> undo) {
    Step step;
    step.phase = Phase::Act;
    step.act = std::move(act);
    step.undoAct = std::move(undo);
    steps_.push_back(std::move(step));
}

bool Changes::IsOfSystem(const Step& step) const { return !IsRemembered(step) && step.phase != Phase::Act; }

int Changes::Count() const {
    return static_cast<int>(
        std::count_if(steps_.begin(), steps_.end(), [this](const Step& step) { return IsOfSystem(step); }));
}

std::vector<std::string> Changes::MissingRights() const {
    std::vector<std::string> missing;
    bool runs = false;
    for (const Step& step : steps_) {
        runs = runs || step.phase == Phase::Run;
        if (step.phase == Phase::Run || step.phase == Phase::Act || host_.MayWrite(step.path)) continue;
        const std::string right = "to write /" + (IsOfSystem(step) ? step.path : std::string(StateFolder));
        if (std::find(missing.begin(), missing.end(), right) == missing.end()) missing.push_back(right);
    }
    for (const Step& step : steps_) {
        if (runs && step.phase == Phase::Run && !host_.MayRun()) missing.push_back("to run " + step.command[0]);
    }
    return missing;
}

void Changes::Tell() const {
    for (const Phase phase : {Phase::Put, Phase::Run, Phase::PutAfterwards}) {
        for (const Step& step : steps_) {
            if (step.phase != phase) continue;
            if (phase == Phase::Run) {
                report_.did("would run: " + CommandText(step.command));
                continue;
            }
            const Content content = step.content();
            if (!content) {
                report_.did("would remove /" + step.path);
                continue;
            }
            report_.did("would write /" + step.path + " (" + std::to_string(content->Size()) + " bytes)");
        }
    }
}

std::error_code Changes::Set(const std::string& path, const Content& content, bool executable) {
    if (content) return host_.Write(path, *content, executable);
    return host_.IsFile(path) ? host_.Remove(path) : std::error_code();
}

bool Changes::DoRun(const Command& command) {
    int status = 0;
    std::string output;
    const std::error_code error = host_.Run(command, status, &output);
    const std::string text = CommandText(command);
    if (error) {
        report_.wrong(text + ": could not be run: " + error.message());
        return false;
    }
    if (status != 0) {
        const std::string said = LastLine(output);
        report_.wrong(text + ": ended with status " + std::to_string(status) + (said.empty() ? "" : ": " + said));
        return false;
    }
    report_.did("ran: " + text);
    return true;
}

bool Changes::Do(Step& step) {
    if (step.phase == Phase::Run) {
        step.ran = DoRun(step.command);
        if (!step.ran || !step.check || step.check()) return step.ran;
        report_.wrong(CommandText(step.command) + ": ended well, but the parameter is not as it was asked for");
        return false;
    }
    if (step.phase == Phase::Act) {
        step.act();
        return true;
    }
    const Content content = step.content();
    step.before = host_.Read(step.path);
    if (step.before == content && (content || !host_.IsFile(step.path))) return true;
    if (!step.before && host_.IsFile(step.path)) {
        report_.wrong("/" + step.path + ": could not be read");
        return false;
    }
    step.made = MissingFolders(host_, step.path);
    const std::error_code error = Set(step.path, content, step.executable);
    if (error) {
        report_.wrong("/" + step.path + (content ? ": could not be written: " : ": could not be removed: ") +
                      error.message());
        return false;
    }
    if (!IsOfSystem(step)) return true;
    report_.did(!content ? "removed /" + step.path
                         : "wrote /" + step.path + " (" + std::to_string(content->Size()) + " bytes)");
    return true;
}

bool Changes::CarryOut() {
    if (!made_.empty()) {
        std::string lines;
        for (const std::string& folder : ReadLines(host_, FoldersFile)) lines += folder + "\n";
        for (const std::string& folder : made_) lines += folder + "\n";
        Record(FoldersFile, ToBytes(lines));
    }
    std::stable_sort(steps_.begin(), steps_.end(), [](const Step& a, const Step& b) { return a.phase < b.phase; });
    for (std::size_t i = 0; i < steps_.size(); ++i) {
        if (Do(steps_[i])) continue;
        Undo(i);
        return false;
    }
    for (const std::string& folder : swept_) RemoveCutOff(host_, folder);
    RemoveEmptyFolders();
    return true;
}

void Changes::Sweep(const std::string& path) { swept_.push_back(ParentOf(path)); }

void Changes::MakeFolders(const std::string& path) {
    for (const std::string& folder : MissingFolders(host_, path)) {
        if (std::find(made_.begin(), made_.end(), folder) == made_.end()) made_.push_back(folder);
    }
}

void Changes::RemoveEmptyFolders() {
    const std::vector<std::string> made = ReadLines(host_, FoldersFile);
    std::vector<std::string> deepestFirst = made;
    std::sort(deepestFirst.rbegin(), deepestFirst.rend());
    for (const std::string& folder : deepestFirst) {
        RemoveCutOff(host_, folder);
        if (host_.IsFolder(folder) && host_.Names(folder).empty()) host_.RemoveFolder(folder);
    }
    std::string left;
    for (const std::string& folder : made) {
        if (host_.IsFolder(folder)) left += folder + "\n";
    }
    if (left.empty() && !made.empty() && host_.Remove(FoldersFile)) {
        report_.wrong(std::string("/") + FoldersFile + ": left, though nothing that it tells of is");
    }
    RemoveEmptyBelow(host_, StateFolder);
}

bool Changes::UndoFile(const Step& step) {
    const Content now = host_.Read(step.path);
    const bool isThere = host_.IsFile(step.path);
    const bool isAsBefore = now == step.before && (step.before || !isThere);
    if (!isAsBefore && Set(step.path, step.before, step.executable)) return false;
    for (auto folder = step.made.rbegin(); folder != step.made.rend(); ++folder) {
        if (host_.IsFolder(*folder) && host_.Names(*folder).empty()) host_.RemoveFolder(*folder);
    }
    return true;
}

// What was recorded is undone last, and only once nothing of the system's is left that it tells of.
void Changes::Undo(std::size_t failed) {
    bool isUndone = true;
    std::size_t changed = 0;
    for (std::size_t i = failed; i-- > 0;) {
        if (steps_[i].phase == Phase::Act && !steps_[i].undoAct()) isUndone = false;
    }
    for (std::size_t i = failed + 1; i-- > 0;) {
        const Step& step = steps_[i];
        if (!IsOfSystem(step) || step.phase == Phase::Run) continue;
        ++changed;
        if (UndoFile(step)) continue;
        report_.wrong("/" + step.path + ": left changed; the copy of what it held is in /" + StateFolder + "/kept");
        isUndone = false;
    }
    for (std::size_t i = failed + 1; i-- > 0;) {
        const Step& step = steps_[i];
        // What makes images or settings anew may have done so in part; what is an act of its own was done or not.
        if (step.phase != Phase::Run || (!step.ran && step.undo != step.command)) continue;
        if (DoRun(step.undo)) continue;
        report_.wrong("left to be done, so that all is as before: " + CommandText(step.undo));
        isUndone = false;
    }
    for (const auto& [path, content] : watched_) {
        if (host_.Read(path) == content || !Set(path, content, false)) continue;
        report_.wrong("/" + path + ": left changed; the copy of what it held is in /" + StateFolder + "/kept");
        isUndone = false;
    }
    if (!isUndone) return;
    for (std::size_t i = failed + 1; i-- > 0;) {
        if (!IsRemembered(steps_[i]) || UndoFile(steps_[i])) continue;
        report_.wrong("/" + steps_[i].path + ": left, though nothing that it tells of is");
    }
    if (changed > 0) report_.wrong("what was changed before that is as it was");
}

}  // namespace VNT::Linux
