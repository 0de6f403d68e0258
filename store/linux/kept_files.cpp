#include "store/linux/kept_files.h"

namespace VNT::Linux {

namespace {

std::string In(const char* folder, const std::string& path) {
    return std::string(StateFolder) + "/" + folder + "/" + path;
}

std::string KeptPath(const std::string& path) { return In("kept", path); }
std::string AbsentPath(const std::string& path) { return In("absent", path); }
std::string WrittenPath(const std::string& path) { return In("written", path); }
// What is about to be written: after a crash either this or what was written before may be there.
std::string NextPath(const std::string& path) { return In("next", path); }

}  // namespace

bool KeptFiles::IsKept(const std::string& path) const {
    return host_.IsFile(KeptPath(path)) || host_.IsFile(AbsentPath(path));
}

Content KeptFiles::Original(const std::string& path) const { return host_.Read(KeptPath(path)); }

bool KeptFiles::IsAsWritten(const std::string& path, const Content& current) const {
    return current && (host_.Read(WrittenPath(path)) == current || host_.Read(NextPath(path)) == current);
}

KeptFiles::Base KeptFiles::FindBase(const std::string& path, const Strip& strip) const {
    const Content current = host_.Read(path);
    if (!current && host_.IsFile(path)) return {{}, true};
    if (!current || !IsKept(path)) return {current};
    if (IsAsWritten(path, current) || current == Original(path)) return {Original(path)};
    const std::optional<std::string> stripped = strip(ToText(*current));
    if (!stripped) return {{}, true};
    return {ToBytes(*stripped)};
}

KeptFiles::Base KeptFiles::FindBaseOfOwn(const std::string& path) const {
    const Content current = host_.Read(path);
    if (!current && host_.IsFile(path)) return {{}, true};
    if (!current || !IsKept(path)) return {current};
    if (IsAsWritten(path, current) || current == Original(path)) return {Original(path)};
    return {{}, true};
}

void KeptFiles::Keep(Changes& changes, const std::string& path, const Content& base) const {
    if (base) {
        changes.Record(KeptPath(path), base);
        changes.Record(AbsentPath(path), std::nullopt);
    } else {
        changes.Record(AbsentPath(path), ToBytes("\n"));
        changes.Record(KeptPath(path), std::nullopt);
    }
}

void KeptFiles::Forget(Changes& changes, const std::string& path) const {
    for (const std::string& record : {WrittenPath(path), NextPath(path), KeptPath(path), AbsentPath(path)}) {
        if (!host_.IsFile(record) && !host_.IsFile(KeptPath(path)) && !host_.IsFile(AbsentPath(path))) continue;
        changes.Finish(record, std::nullopt);
    }
}

void KeptFiles::Plan(Changes& changes, const std::string& path, const Content& base, const Content& content,
                     bool executable) const {
    const Content current = host_.Read(path);
    changes.Sweep(path);
    if (content == base) {
        if (current != content) changes.Put(path, content, executable);
        Forget(changes, path);
        return;
    }
    if (!IsKept(path) || Original(path) != base) Keep(changes, path, base);
    if (current == content) {
        changes.Finish(WrittenPath(path), content);
        changes.Finish(NextPath(path), std::nullopt);
        return;
    }
    changes.MakeFolders(path);
    changes.Record(NextPath(path), content);
    changes.Put(path, content, executable);
    changes.Finish(WrittenPath(path), content);
    changes.Finish(NextPath(path), std::nullopt);
}

void KeptFiles::PlanAround(Changes& changes, const std::string& path, bool isLast, const Strip& strip) const {
    const Content current = host_.Read(path);
    changes.Watch(path);
    if (isLast) {
        if (IsKept(path) && IsAsWritten(path, current)) changes.PutAfterwards(path, Original(path));
        if (IsKept(path)) Forget(changes, path);
        return;
    }
    const Base base = FindBase(path, strip);
    if (!current || base.isUnclear) return;
    if (!IsKept(path) || Original(path) != base.content) Keep(changes, path, base.content);
    const Host& host = host_;
    changes.FinishWith(WrittenPath(path), [&host, path] { return host.Read(path); });
}

}  // namespace VNT::Linux
