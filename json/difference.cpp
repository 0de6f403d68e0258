#include "json/difference.h"

#include <algorithm>

namespace VNT::Json {

namespace {

class Comparer {
public:
    void Compare(const std::string& path, const Node& before, const Node& after) {
        if (before == after) return;
        if (before.Is(Node::Kind::Object) && after.Is(Node::Kind::Object)) {
            CompareMembers(path, before, after);
        } else if (before.Is(Node::Kind::List) && after.Is(Node::Kind::List)) {
            CompareItems(path, before.Items(), after.Items());
        } else {
            changes.push_back({path, before, after});
        }
    }

    std::vector<Change> changes;

private:
    using Items = std::vector<Node>;

    void CompareMembers(const std::string& path, const Node& before, const Node& after) {
        const auto place = [&path](const std::string& name) { return path.empty() ? name : path + "." + name; };
        for (const auto& [name, value] : before.Members()) {
            const Node* other = after.Find(name);
            if (other != nullptr) {
                Compare(place(name), value, *other);
            } else {
                changes.push_back({place(name), value, std::nullopt});
            }
        }
        for (const auto& [name, value] : after.Members()) {
            if (before.Find(name) == nullptr) changes.push_back({place(name), std::nullopt, value});
        }
    }

    // Equal items are the longest run that both have in this order; what stands between them is matched by kind.
    void CompareItems(const std::string& path, const Items& before, const Items& after) {
        const std::size_t rows = before.size(), columns = after.size();
        std::vector<std::vector<std::size_t>> common(rows + 1, std::vector<std::size_t>(columns + 1));
        for (std::size_t i = rows; i-- > 0;) {
            for (std::size_t j = columns; j-- > 0;) {
                common[i][j] =
                    before[i] == after[j] ? common[i + 1][j + 1] + 1 : std::max(common[i + 1][j], common[i][j + 1]);
            }
        }
        std::size_t i = 0, j = 0, firstOld = 0, firstNew = 0;
        const auto flush = [&] { CompareBetween(path, before, firstOld, i, after, firstNew, j); };
        while (i < rows && j < columns) {
            if (before[i] == after[j]) {
                flush();
                firstOld = ++i;
                firstNew = ++j;
            } else if (common[i + 1][j] >= common[i][j + 1]) {
                ++i;
            } else {
                ++j;
            }
        }
        i = rows;
        j = columns;
        flush();
    }

    static bool AreOfOneKind(const Node& a, const Node& b) {
        if (!a.Is(Node::Kind::Object) || !b.Is(Node::Kind::Object)) return false;
        const Node *typeA = a.Find("type"), *typeB = b.Find("type");
        return (typeA == nullptr) == (typeB == nullptr) && (typeA == nullptr || *typeA == *typeB);
    }
    void CompareBetween(const std::string& path, const Items& before, std::size_t i, std::size_t endOld,
                        const Items& after, std::size_t j, std::size_t endNew) {
        const auto place = [&path](std::size_t index) { return path + "[" + std::to_string(index) + "]"; };
        std::vector<bool> isMatched(after.size());
        for (; i < endOld; ++i) {
            std::size_t match = j;
            while (match < endNew && (isMatched[match] || !AreOfOneKind(before[i], after[match]))) ++match;
            if (match < endNew) {
                isMatched[match] = true;
                Compare(place(match), before[i], after[match]);
            } else {
                changes.push_back({place(i), before[i], std::nullopt});
            }
        }
        for (; j < endNew; ++j) {
            if (!isMatched[j]) changes.push_back({place(j), std::nullopt, after[j]});
        }
    }
};

}  // namespace

std::vector<Change> Compare(const Node& before, const Node& after) {
    Comparer comparer;
    comparer.Compare("", before, after);
    return std::move(comparer.changes);
}

std::string Describe(const Change& change) {
    if (!change.before) return "+ " + change.path;
    if (!change.after) return "- " + change.path;
    return change.path + ": " + PrintShort(*change.before) + " -> " + PrintShort(*change.after);
}

Node NodeOfChanges(const std::vector<Change>& changes) {
    Node list = Node::EmptyList();
    for (const Change& change : changes) {
        Node node = Node::EmptyObject();
        node.Set("path", Node::Of(change.path));
        if (change.before) node.Set("old", *change.before);
        if (change.after) node.Set("new", *change.after);
        list.Add(std::move(node));
    }
    return list;
}

}  // namespace VNT::Json
