#pragma once

#include <cstddef>
#include <functional>
#include <span>
#include <string>

#include "platform/db/Connection.h"
#include "platform/jet/JetFile.h"

namespace kvr5 {

/// One database of the Jet engine on its way to one of ours.
class ConversioneJet {
 public:
  /// `annulla` is asked before each row, and ends the work by true.
  ConversioneJet(FileSystem& files, std::string originale, std::function<bool()> annulla)
      : files_(files), original_(std::move(originale)), cancel_(std::move(annulla)) {}

  /// Reads both tables to their ends, and counts their rows.
  jet::Trouble Leggi(std::size_t& file, std::size_t& segmenti);

  /// Writes the rows into `nuovo`, a copy of the empty database `vuoto`, in one transaction,
  /// compares them with the original's, and puts the file onto the device. 57 where what is there
  /// isn't what was read. Only after Leggi, which has to have found all well.
  Error Scrivi(const std::string& vuoto, const std::string& nuovo);

  bool Annullata() const { return cancelled_; }

 private:
  using Columns = std::span<const jet::WantedColumn>;

  bool GoOn() { return !(cancelled_ = cancelled_ || (cancel_ && cancel_())); }
  Error Copy(Connection& connection, const char* table, Columns columns);
  Error Compare(Connection& connection, const char* table, Columns columns);
  Error Outcome(const jet::Trouble& trouble) const;

  FileSystem& files_;
  std::string original_;
  std::function<bool()> cancel_;
  jet::JetFile file_;
  bool cancelled_ = false;
};

}  // namespace kvr5
