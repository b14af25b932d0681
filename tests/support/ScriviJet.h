#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/db/Value.h"

namespace kvr5::test {

/// A column of a table that is written, with its type by the engine's number.
struct CampoJet {
  std::string Nome;
  std::uint8_t Tipo;
  std::uint16_t Numero;  ///< its bit; numbers of columns that were taken away are missing
};

/// The columns of the tables List and HEAD.
std::vector<CampoJet> CampiList();
std::vector<CampoJet> CampiHead();

/// How the rows of a table lie in the file.
struct DisposizioneJet {
  int Spostamenti = 0;     ///< each row has moved so many times
  bool Ventaglio = false;  ///< all slots lead to the first row, as in no sound file
  /// The same by way of a page that no map names, each slot of which has the row; up to 127 rows.
  bool Sovrapposte = false;
};

using RigheJet = std::vector<std::vector<DbValue>>;

/// A Jet 4 file that grows page by page.
class ScrittoreJet {
 public:
  ScrittoreJet();

  /// Adds a table. A row has the columns of the table in their order, or fewer of them, where it is
  /// older than the others; a time is days since 1899-12-30 (a double), and a type that isn't of
  /// List or HEAD takes a number.
  void Tabella(const std::string& nome, const std::vector<CampoJet>& campi, const RigheJet& righe,
               const DisposizioneJet& disposizione = {});
  /// Adds a row to the catalogue that leads to the table that was added last.
  void Voce(const std::string& nome) { catalogue_.push_back({nome, last_}); }
  /// Has the catalogue's rows lie so.
  void Catalogo(const DisposizioneJet& disposizione) { layout_ = disposizione; }
  /// The bytes of the file.
  std::string Prendi();

 private:
  struct Entry {
    std::string Name;
    std::uint32_t Page;
  };
  /// The data pages of a table.
  struct Data {
    std::uint32_t Owner;
    std::vector<std::uint32_t> Pages{};
    std::size_t Free = 0;
    std::uint16_t Slots = 0;
  };

  std::uint32_t NewPage();
  std::uint32_t Lay(Data& data, const std::string& bytes, unsigned flags);
  void LayOver(Data& data, const std::string& bytes, std::size_t rows);
  void LayRow(Data& data, const std::string& bytes, const DisposizioneJet& layout);
  void Table(std::uint32_t page, char kind, const std::vector<CampoJet>& fields,
             const RigheJet& rows, const DisposizioneJet& layout);
  std::uint32_t MapOf(const std::vector<std::uint32_t>& owned);
  void Define(std::uint32_t page, const std::string& content);

  std::vector<std::string> pages_;
  std::vector<Entry> catalogue_;
  DisposizioneJet layout_;
  std::uint32_t last_ = 0;
};

/// The bytes of a file with the tables List and HEAD, as small as the engine could make it:
/// catalogue, definitions, maps of pages, rows; no indexes.
std::string FileJet(const RigheJet& lista, const RigheJet& testa,
                    const DisposizioneJet& disposizione = {});

}  // namespace kvr5::test
