#include "platform/jet/Pages.h"

#include <algorithm>
#include <cstring>

#include "platform/jet/Bytes.h"
#include "platform/jet/Rc4.h"

namespace kvr5::jet {
namespace {

using namespace std::string_view_literals;

constexpr std::size_t kName = 4;
constexpr std::string_view kJet = "Standard Jet DB\0"sv;
constexpr std::string_view kSuccessor = "Standard ACE DB\0"sv;
constexpr std::size_t kVersion = 0x14;
constexpr std::size_t kMasked = 0x18;
constexpr std::size_t kMaskLength = 128;
constexpr std::uint32_t kMask = 0x6B39DAC7;
constexpr std::size_t kKey = 0x3E;
constexpr std::uint64_t kLargest = std::uint64_t{1} << 31U;  // no engine made larger ones

char* Chars(std::span<unsigned char> content) {
  return reinterpret_cast<char*>(content.data());  // NOLINT(*-reinterpret-cast)
}

bool IsNamed(std::span<const unsigned char> head, std::string_view name) {
  return head.size() >= kName + name.size() &&
         std::memcmp(head.data() + kName, name.data(), name.size()) == 0;
}

}  // namespace

bool HasSignature(std::span<const unsigned char> head) {
  return IsNamed(head, kJet) || IsNamed(head, kSuccessor);
}

bool HasSignature(FileSystem& files, std::string_view path) {
  std::array<unsigned char, kSignatureSize> head{};
  const auto file = files.Open(path, OpenMode::Read);
  if (!file) return false;
  const auto length = file.Value()->ReadAt(0, {Chars(head), head.size()});
  return length && HasSignature(std::span(head).first(length.Value()));
}

Fault Pages::Open(FileSystem& files, std::string_view path) {
  auto file = files.Open(path, OpenMode::Read);
  if (!file) return Fault::Unreadable;
  file_ = std::move(file.Value());
  const auto size = file_->Size();
  if (!size) return Fault::Unreadable;
  return ReadHeader(size.Value());
}

Fault Pages::ReadHeader(std::uint64_t size) {
  const std::size_t length = std::min<std::uint64_t>(size, kPageSize);
  if (!Read(0, std::span(page_).first(length))) return Fault::Unreadable;
  const std::span<const unsigned char> head = std::span(page_).first(length);
  if (IsNamed(head, kSuccessor)) return Fault::Newer;
  if (!IsNamed(head, kJet)) return Fault::NotJet;
  if (length <= kVersion) return Fault::Damaged;
  if (head[kVersion] == 0) return Fault::Jet3;
  if (head[kVersion] != 1) return Fault::Newer;
  if (size % kPageSize != 0 || size > kLargest) return Fault::Damaged;
  count_ = static_cast<std::uint32_t>(size / kPageSize);
  Rc4(kMask, std::span(page_).subspan(kMasked, kMaskLength));
  key_ = Bytes(page_).U32(kKey);
  return Fault::None;
}

Page Pages::At(std::uint32_t number) {
  if (number == 0 || number >= count_) return {};
  if (number == held_) return page_;
  held_ = 0;
  if (!Read(number, page_)) {
    unreadable_ = true;
    return {};
  }
  Decode(number, page_);
  held_ = number;
  return page_;
}

bool Pages::Read(std::uint32_t first, std::span<unsigned char> content) {
  std::size_t done = 0;
  while (done < content.size()) {
    const auto piece = content.subspan(done);
    const auto length =
        file_->ReadAt(first * std::uint64_t{kPageSize} + done, {Chars(piece), piece.size()});
    if (!length || length.Value() == 0) return false;
    done += length.Value();
  }
  return true;
}

void Pages::Decode(std::uint32_t number, std::span<unsigned char> content) const {
  if (key_ != 0) Rc4(key_ ^ number, content);
}

}  // namespace kvr5::jet
