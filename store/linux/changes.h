#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "store/linux/host.h"

namespace VNT::Linux {

inline constexpr char StateFolder[] = "var/lib/vantelle";  // what this room has to remember

// A file's content; nothing: there is no such file.
using Content = std::optional<Bytes>;

// Changes to the machine that are made together: planned first, then told (a dry run) or carried out in the order of
// their phases. When one fails, those before it are undone, and what can't be undone is told and stays on record.
class Changes {
public:
    Changes(Host& host, const Report& report) : host_(host), report_(report) {}

    // What is remembered: before anything is changed, and once all is done.
    void Record(const std::string& path, const Content& content) { Add(Phase::Record, path, content, false); }
    void Finish(const std::string& path, const Content& content) { Add(Phase::Finish, path, content, false); }
    // What a file holds then.
    void FinishWith(const std::string& path, std::function<Content()> content);
    // A file of the system's; before the programs run, or after them.
    void Put(const std::string& path, const Content& content, bool executable = false) {
        Add(Phase::Put, path, content, executable);
    }
    void PutAfterwards(const std::string& path, const Content& content) {
        Add(Phase::PutAfterwards, path, content, false);
    }
    // A program, what it does being undone by `undo`, and told to have worked only if `check`, if any, says so.
    void Run(const Command& command, const Command& undo, std::function<bool()> check = {});
    // A file that a program changes: where the changes are undone, it is put back whatever the program does.
    void Watch(const std::string& path) { watched_.emplace_back(path, host_.Read(path)); }
    // What the kernel is told, when all but what is remembered is done; `undo` is false if it can't be taken back.
    void Act(std::function<void()> act, std::function<bool()> undo);
    // Folders that are made for a file, and go again once they are empty.
    void MakeFolders(const std::string& path);

    // Takes away, once all is done, what a call before that was ended in the midst of it left beside this file.
    void Sweep(const std::string& path);

    int Count() const;  // of changes to the system
    // What the rights that the program has don't reach.
    std::vector<std::string> MissingRights() const;
    void Tell() const;  // what would be done
    bool CarryOut();

private:
    enum class Phase { Record, Put, Run, PutAfterwards, Act, Finish };
    struct Step {
        Phase phase = Phase::Record;
        std::string path = {};
        std::function<Content()> content = {};
        bool executable = false;
        Command command = {};
        Command undo = {};
        std::function<bool()> check = {};
        std::function<void()> act = {};
        std::function<bool()> undoAct = {};
        bool ran = false;                    // to a good end
        Content before = {};                 // as found when carried out
        std::vector<std::string> made = {};  // folders that had to be made
    };

    void Add(Phase phase, const std::string& path, const Content& content, bool executable);
    bool IsOfSystem(const Step& step) const;  // a file or a program
    bool IsRemembered(const Step& step) const { return step.phase == Phase::Record || step.phase == Phase::Finish; }
    bool Do(Step& step);
    bool DoRun(const Command& command);
    std::error_code Set(const std::string& path, const Content& content, bool executable);
    // Removes what is empty of the folders that were made, and of what is remembered.
    void RemoveEmptyFolders();
    void Undo(std::size_t failed);
    bool UndoFile(const Step& step);

    Host& host_;
    const Report& report_;
    std::vector<Step> steps_;
    std::vector<std::string> made_;
    std::vector<std::string> swept_;  // folders
    std::vector<std::pair<std::string, Content>> watched_;
};

// The folders above `path` that are not there, the outermost first.
std::vector<std::string> MissingFolders(const Host& host, const std::string& path);

}  // namespace VNT::Linux
