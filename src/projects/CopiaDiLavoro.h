#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "core/Contesto.h"
#include "platform/db/Connection.h"

namespace kvr5 {

/// The copy of a project database on which an editor works (tmpPlaylist.mdb of playlist.mdb,
/// tmpScheduler.mdb of scheduler.mdb). The real database changes by Salva alone, and as a whole: a
/// copy of the file is the commit.
class CopiaDiLavoro {
 public:
  /// Names of files in the open project's folder.
  CopiaDiLavoro(Contesto& contesto, std::string_view vero, std::string_view temporaneo);
  /// Leaves the editor: what wasn't saved is gone.
  ~CopiaDiLavoro();
  CopiaDiLavoro(const CopiaDiLavoro&) = delete;
  CopiaDiLavoro& operator=(const CopiaDiLavoro&) = delete;

  /// Throws away what a crash left, copies the real database and opens the copy. A real one that is
  /// missing leaves the connection closed; so does a copy on which another program works, which is
  /// told.
  void Apri();
  /// The connection on the copy; its recordsets are the editor's.
  Connection& Connessione() { return connessione_; }
  /// Closes the connection, deletes the real database and copies this one to its place. Where that
  /// copy fails (a full disk; told by the copy window) the project is left without the database:
  /// the old one has gone already. A copy that was never made leaves the real one alone.
  void Salva();
  /// Closes the connection and deletes the copy, once.
  void Lascia();

 private:
  /// Puts the real database back where its journal tells to; false where it can't be (told).
  bool Ripristina();
  /// Whether another program works on a copy of its own.
  bool AltriAlLavoro();
  void Elimina(const std::string& database);

  Contesto& contesto_;
  std::string vero_;  ///< full paths
  std::string temporaneo_;
  Connection connessione_;
  bool nostra_ = false;          ///< the copy in the folder is this one's
  std::shared_ptr<void> presa_;  ///< keeps other programs off it
};

}  // namespace kvr5
