#pragma once

#include <string>

// Where a display's data stand under its hardware key: the value EDID, and the sub-key EDID_OVERRIDE with one value of
// 128 bytes per block, named by the block's number. With a first byte of zero the override is sparse (a block that is
// all zero has no value), otherwise it is sequential (it ends at the first gap).
namespace VNT::RegistryLayout {

inline constexpr wchar_t EdidValue[] = L"EDID";
inline constexpr wchar_t OverrideKey[] = L"EDID_OVERRIDE";
inline constexpr int MostSequentialBlocks = 512;
inline constexpr int LastSparseBlock = 255;
inline constexpr int MostNames = 16384;  // of values or sub-keys in one key: more than any has

inline std::wstring BlockName(int block) { return std::to_wstring(block); }

}  // namespace VNT::RegistryLayout
