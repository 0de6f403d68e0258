#include "cli/edid_files.h"
#include "cli/words.h"
#include "picture/picture.h"

namespace VNT::Cli {

namespace {

int RunPicture(const Arguments& arguments, const Console& console) {
    const std::string &file = arguments.Words()[0], &out = arguments.Words()[1];
    const std::optional<std::string> picture = Picture::PictureOf(ReadImportedFile(file, console).bytes);
    if (!picture) throw Failure(file, "is no EDID");
    WriteOut(Bytes(std::vector<std::uint8_t>(picture->begin(), picture->end())), out, console);
    return Success;
}

}  // namespace

extern const Command PictureCommand;
const Command PictureCommand{"picture",
                             {FileWord, {"OUT.svg", "the SVG to write; - is standard output"}},
                             {},
                             "draws an EDID: its gamut, modes, timings and bytes",
                             "monitor.bin monitor.svg",
                             &RunPicture};

}  // namespace VNT::Cli
