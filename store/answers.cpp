#include "store/answers.h"

#include <algorithm>

namespace VNT {

SystemError AnswerText(const std::wstring& text, std::span<wchar_t> out, int& length) {
    length = static_cast<int>(text.size()) + 1;
    if (out.size() <= text.size()) return SystemErrors::InsufficientBuffer;
    *std::copy(text.begin(), text.end(), out.begin()) = L'\0';
    return SystemErrors::None;
}

SystemError AnswerBytes(const Bytes& bytes, ByteRange out, int& size) {
    size = bytes.Size();
    if (out.data == nullptr) return SystemErrors::None;
    if (out.size < size) return SystemErrors::MoreData;
    std::copy(bytes.View().begin(), bytes.View().end(), out.data);
    return SystemErrors::None;
}

}  // namespace VNT
