#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "platform/FileSystem.h"

namespace kvr5 {

/// What comparing two files came to.
enum class EsitoConfronto {
  Uguali,
  Diversi,
  PrimoIlleggibile,
  SecondoIlleggibile,
  Interrotto,
};

/// What is read into while files are compared, kept from one to the next.
struct PezziConfronto {
  std::string Primo{};
  std::string Secondo{};
};

/// Compares the first file, as its device has it and not the host's memory, with the second, byte
/// by byte; of files of different length nothing is read. `passo` hears of each piece of at most
/// 128 KiB and stops the work by false. A file that ends before its length counts as different.
EsitoConfronto ConfrontaFile(FileSystem& files, std::string_view primo, std::string_view secondo,
                             const std::function<bool(std::size_t byte)>& passo,
                             PezziConfronto& pezzi);
/// The same for one file alone.
EsitoConfronto ConfrontaFile(FileSystem& files, std::string_view primo, std::string_view secondo,
                             const std::function<bool(std::size_t byte)>& passo);

}  // namespace kvr5
