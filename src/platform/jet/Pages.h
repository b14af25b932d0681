#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

#include "platform/FileSystem.h"
#include "platform/jet/Fault.h"

namespace kvr5::jet {

inline constexpr std::size_t kPageSize = 4096;
inline constexpr unsigned char kDataPage = 1;
inline constexpr unsigned char kDefinitionPage = 2;
inline constexpr unsigned char kMapPage = 5;

/// A page's content, good until the next one is asked for.
using Page = std::span<const unsigned char>;

/// A Jet 4 file as a row of pages of 4,096 bytes, decoded where they are encoded. (Page 0: at 4 the
/// engine's name, at 0x14 its version; from 0x18 on 128 bytes are masked by RC4 with a key that is
/// the same in all files; among them, at 0x3E, the key of the other pages, 0 where they are plain.
/// A page's own key is that with the page's number laid over it. A password changes no other page.)
class Pages {
 public:
  /// Opens a file for reading; NotJet, Jet3, Newer, Damaged or Unreadable where it is none of ours.
  Fault Open(FileSystem& files, std::string_view path);

  std::uint32_t Count() const { return count_; }
  /// The page of a number below Count; empty where it isn't there or can't be read.
  Page At(std::uint32_t number);
  /// True once a page that is there couldn't be read.
  bool Unreadable() const { return unreadable_; }

 private:
  Fault ReadHeader(std::uint64_t size);
  bool Read(std::uint32_t first, std::span<unsigned char> content);
  void Decode(std::uint32_t number, std::span<unsigned char> content) const;

  std::unique_ptr<File> file_;
  std::uint32_t count_ = 0;
  std::uint32_t key_ = 0;
  std::array<unsigned char, kPageSize> page_{};
  std::uint32_t held_ = 0;  ///< the number of the one in page_; 0 is never held
  bool unreadable_ = false;
};

/// How much of a file HasSignature looks at.
inline constexpr std::size_t kSignatureSize = 20;

/// Whether a file that begins so says that the Jet engine, of whatever version, or its successor
/// made it.
bool HasSignature(std::span<const unsigned char> head);
/// The same of a file; one that can't be read has none.
bool HasSignature(FileSystem& files, std::string_view path);

}  // namespace kvr5::jet
