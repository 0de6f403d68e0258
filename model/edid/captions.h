#pragma once

#include <string_view>

namespace VNT {

// The captions of a list: with room, with none, and the row that stands in an empty list. Forms and the command line
// read the same rows.
struct ListCaptions {
    std::u32string_view withRoom;
    std::u32string_view noRoom;  // empty: the caption with room stands always
    std::u32string_view emptyRow;
};

inline constexpr ListCaptions DescriptorCaptions{U"Detailed resolutions and descriptors ({countlefttext})",
                                                 U"Detailed resolutions and descriptors (no space left)",
                                                 U"No detailed resolutions or descriptors"};
inline constexpr ListCaptions StandardResolutionCaptions{
    U"Standard resolutions ({countlefttext})", U"Standard resolutions (no space left)", U"No standard resolutions"};
inline constexpr ListCaptions DetailedResolutionCaptions{
    U"Detailed resolutions ({countlefttext})", U"Detailed resolutions (no space left)", U"No detailed resolutions"};
inline constexpr ListCaptions DataBlockCaptions{U"Data blocks ({sizelefttext})", U"Data blocks (no space left)",
                                                U"No data blocks"};
inline constexpr ListCaptions AudioFormatCaptions{U"Audio formats ({countlefttext})", U"Audio formats (no space left)",
                                                  U"No audio formats"};
inline constexpr ListCaptions HdrDynamicMetadataCaptions{U"Types ({sizelefttext})", U"Types (no space left)",
                                                         U"No types"};
inline constexpr ListCaptions CvtResolutionCaptions{U"CVT resolutions ({countlefttext})",
                                                    U"CVT resolutions (no space left)", U"No CVT resolutions"};
inline constexpr ListCaptions ColorimetryCaptions{U"Colorimetry ({countlefttext})", U"Colorimetry (no space left)",
                                                  U"No colorimetry"};
inline constexpr ListCaptions ExtensionBlockCaptions{U"Extension blocks ({countlefttext})", U"",
                                                     U"No extension blocks"};
inline constexpr ListCaptions VideoReferenceCaptions{U"Video references ({countlefttext})",
                                                     U"Video references (no space left)", U"No video references"};
inline constexpr ListCaptions VideoResolutionCaptions{U"Video resolutions ({countlefttext})",
                                                      U"Video resolutions (no space left)", U"No video resolutions"};
inline constexpr ListCaptions Ycc420VideoResolutionCaptions{U"4:2:0 video resolutions ({countlefttext})",
                                                            U"4:2:0 video resolutions (no space left)",
                                                            U"No 4:2:0 video resolutions"};
inline constexpr ListCaptions VideoFormatResolutionCaptions{U"Video format resolutions ({sizelefttext})",
                                                            U"Video format resolutions (no space left)",
                                                            U"No video format resolutions"};

}  // namespace VNT
