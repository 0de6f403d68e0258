#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

// What drives a stand-in: a small text that says what exists and which call goes wrong how. A line is a word and its
// arguments; "#" begins a comment. The words of what exists are the stand-in's own; these are common:
//     edid HEX...             bytes of the EDID of what the line stands below; more lines continue it
//     fail CALL [CODE] [N]    the call fails with that code (default -1) once it has succeeded N times (default 0)
//     claim CALL NUMBER       the call claims that number, in place of the true count or size
//     null CALL               the call succeeds, and gives a null pointer
//     missing CALL            the call is not there
namespace StandIn {

struct Line {
    std::string word;
    std::vector<std::string> arguments;

    std::string Text(std::size_t index) const { return index < arguments.size() ? arguments[index] : std::string(); }
    long long Number(std::size_t index, long long otherwise = 0) const;
};

class Driving {
public:
    void Start(const std::string& text);  // forgets all counts

    // The lines of that word below line `parent` (-1: all): up to the next line of the parent's own word.
    std::vector<int> Below(int parent, const std::string& word) const;
    const Line& At(int line) const { return lines_[static_cast<std::size_t>(line)]; }
    std::vector<std::uint8_t> EdidBelow(int parent) const;

    // Counts the call; what it answers: zero, or the code that it is told to fail with.
    int Enter(const std::string& call);
    int Entered(const std::string& call) { return calls_[call]; }
    long long Claim(const std::string& call, long long truth) const;
    bool Says(const std::string& word, const std::string& call) const;

    // Things that are alive, by kind; the report names each kind that ever was, with the number still alive.
    void Count(const std::string& kind, int change) { alive_[kind] += change; }
    int Alive(const std::string& kind) { return alive_[kind]; }
    std::string Report() const;

private:
    const Line* Find(const std::string& word, const std::string& call) const;

    std::vector<Line> lines_;
    std::map<std::string, int> calls_;
    std::map<std::string, int> alive_;
};

}  // namespace StandIn
