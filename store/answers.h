#pragma once

#include <span>
#include <string>

#include "store/platform.h"

// The system's pattern of two calls, answered: for the doors that hold the answer themselves.
namespace VNT {

// The text with its closing NUL; with a buffer too small InsufficientBuffer, and the length that is needed.
SystemError AnswerText(const std::wstring& text, std::span<wchar_t> out, int& length);
// The bytes, or without a buffer their number; with a buffer too small MoreData, and the number.
SystemError AnswerBytes(const Bytes& bytes, ByteRange out, int& size);

}  // namespace VNT
