#include "model/displayid/display_parameters.h"

namespace VNT {

namespace {

// A size by which of its two sides are told.
std::u32string_view ChooseBySides(bool hasWidth, bool hasHeight, std::u32string_view both, std::u32string_view height,
                                  std::u32string_view width, std::u32string_view neither) {
    if (hasWidth) return hasHeight ? both : width;
    return hasHeight ? height : neither;
}

}  // namespace

void DisplayId1DisplayParametersDataBlock::FillTexts(TextTable& table) const {
    table.Set(U"{hresolution}", nativeWidth);
    table.Set(U"{vresolution}", nativeHeight);
    table.Set(U"{resolutiontext}",
              ChooseBySides(nativeWidth != Undefined, nativeHeight != Undefined, U"{hresolution}x{vresolution}",
                            U"?x{vresolution}", U"{hresolution}x?", U"no native resolution"));
    table.Set(U"{himagesize}", DecimalToText(imageWidth, 1));
    table.Set(U"{vimagesize}", DecimalToText(imageHeight, 1));
    table.Set(U"{imagesizetext}",
              ChooseBySides(!imageWidth.IsUndefined(), !imageHeight.IsUndefined(), U"{himagesize}x{vimagesize}",
                            U"?x{vimagesize}", U"{himagesize}x?", U"no image size"));
    table.Set(U"{gamma}", DecimalToText(gamma, 2));
    table.Set(U"{gammatext}", gamma.IsUndefined() ? U"no gamma" : U"{gamma}");
    table.Set(U"{nativecolordepth}", nativeColorDepth);
    table.Set(U"{overallcolordepth}", overallColorDepth);
    table.Set(U"{colordepthtext}", nativeColorDepth == overallColorDepth ? U"{nativecolordepth}"
                                                                         : U"{nativecolordepth}/{overallcolordepth}");
}

}  // namespace VNT
