#include "platform/db/SuperJournal.h"

#include <array>
#include <fstream>

namespace kvr5 {

bool JournalNamesAFile(const std::filesystem::path& database) {
  constexpr std::array<unsigned char, 8> kMark{0xd9, 0xd5, 0x05, 0xf9, 0x20, 0xa1, 0x63, 0xd7};
  std::filesystem::path path = database;
  path += "-journal";
  std::error_code ignored;
  if (!std::filesystem::is_regular_file(path, ignored)) return false;
  std::ifstream journal(path, std::ios::binary);
  journal.seekg(-static_cast<std::streamoff>(kMark.size()), std::ios::end);
  for (const unsigned char byte : kMark) {
    if (journal.get() != byte) return false;
  }
  return true;
}

}  // namespace kvr5
