// EDIDs as JSON: any bytes come back from their text, any text is read or refused with a reason, and what is built of
// one comes back too.

#include "fuzz/edid_input.h"
#include "fuzz/fuzz.h"
#include "json/edid_json.h"

namespace {

using namespace VNT;

void CheckBytes(const Bytes& bytes) {
    const auto node = Json::NodeOfEdid(bytes);
    if (!node) return;
    std::string problem;
    const auto parsed = Json::Parse(Json::Print(*node), problem);
    Require(parsed && *parsed == *node, "an object comes back from its text");
    Json::Building building;
    const auto built = Json::BuildEdid(*parsed, building);
    Require(built && *built == bytes, "an EDID comes back from its object");
}

void CheckText(std::string_view text) {
    std::string problem;
    const auto node = Json::Parse(text, problem);
    Require(node.has_value() == problem.empty(), "a text that is refused has a reason");
    if (!node) return;
    Require(Json::Parse(Json::Print(*node), problem) == node, "what is read comes back from its text");
    Json::Building building;
    const auto built = Json::BuildEdid(*node, building);
    Require(built.has_value() == !building.HasFailed(), "what is not built has a reason");
    if (built) CheckBytes(*built);
}

}  // namespace

// The first byte says which of the two it is.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    if (data[0] == '{') {
        CheckText(std::string_view(reinterpret_cast<const char*>(data), size));
    } else {
        CheckBytes(FuzzEdid(data + 1, size - 1));
    }
    return 0;
}
