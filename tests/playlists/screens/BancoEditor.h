#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QComboBox>
#include <QPointer>
#include <initializer_list>
#include <string>
#include <vector>

#include "playlists/screens/frmPlaylistEditor.h"
#include "support/ProgressoVisto.h"
#include "support/screens/BancoSchermi.h"
#include "support/screens/Frattempo.h"
#include "support/screens/Mano.h"
#include "support/screens/Pilota.h"

namespace kvr5::test {

/// The editor of the playlists of a project named Hall, whose pane of files stands in the folder
/// "music".
class BancoEditor : public testing::Test {
 protected:
  using Righe = std::vector<std::string>;

  explicit BancoEditor(Boxes boxes = Boxes::Finti);
  ~BancoEditor() override { Dimentica(); }

  /// Makes the project; its playlist.mdb is empty.
  void Progetto(std::int16_t playerType, std::int16_t playerMode);
  /// A track of playlist.mdb, before the editor is opened; its file is made in "music".
  void Brano(int nPlaylist, int pos, const std::string& nome);
  /// Tracks at once in playlist.mdb, without a file each.
  void Brani(int nPlaylist, int quanti, const std::string& nome = "x.mp3");
  /// A named list of playlist.mdb.
  void Nome(const std::string& nome, int numero);
  /// Good files in "music".
  void Musica(std::initializer_list<const char*> nomi) const;
  /// "001.mp3" and so on.
  void Musica(int quanti) const;
  /// A file in "music" of frames with these header bytes, each of this size.
  void Flusso(const std::string& nome, const std::string& testa, std::size_t byte) const;
  std::string Music() const { return b.Percorso("music") + "\\"; }
  std::string Host(const std::string& nome) const {
    return (b.Cartella.Host() / "music" / nome).string();
  }
  std::string Leggi(const std::string& nome) const {
    return b.Cartella.Read("program/Projects/Hall/" + nome);
  }
  bool Ha(const std::string& nome) const {
    return b.Cartella.Exists("program/Projects/Hall/" + nome);
  }
  /// LastMp3Dir of the settings.
  std::string UltimaCartella();

  /// Opens the editor for the hub.
  void Apri();
  /// Drops the editor as it is.
  void Dimentica() { delete form; }
  bool Chiuso() const { return !form || form->Scaricata(); }
  /// Waits until it has closed.
  bool SiChiude();
  /// What happens when another window was in front.
  void Attiva();

  template <class T>
  T& Trova(const char* nome) {
    return Controllo<T>(*form, nome);
  }
  void Clic(const char* nome) { Clicca(*form, nome); }
  std::string Testo(const char* etichetta) { return Scritta(*form, etichetta); }
  bool SiVede(const char* nome) { return Trova<QWidget>(nome).isVisible(); }
  void Premi(Qt::Key tasto, Qt::KeyboardModifiers modi = Qt::NoModifier) {
    Tasto(*form, tasto, modi);
  }

  ElencoFile& Pane() const { return *form->fraFile->filMp3; }
  GrigliaPlaylist& Grid() const { return *form->Brani->grdPlaylist; }
  QComboBox& Selettore() const { return *form->Fascia->cmbPlaylist; }
  /// The names in the pane of files.
  Righe Pannello() const;
  /// The place of a file's name in the pane, to be clicked.
  QPoint PostoFile(const std::string& nome) const;
  void ClicFile(const std::string& nome, Qt::KeyboardModifiers modi = Qt::NoModifier) const;
  void DoppioFile(const std::string& nome) const;
  /// Clicks a file and waits for what the panel says of it.
  void Analizza(const std::string& nome);
  bool Attesa();
  std::string Cifre();

  /// The rows of the grid, "1 a.mp3".
  Righe Griglia() const;
  /// The names alone.
  Righe Nomi() const;
  void ClicRiga(int riga, Qt::KeyboardModifiers modi = Qt::NoModifier) const;
  /// The selected rows, from 0.
  std::vector<int> Scelte() const;
  int Corrente() const { return Grid().currentIndex().row(); }
  QString Cella(int riga, int colonna, int ruolo = Qt::DisplayRole) const;
  /// Waits for the figures of the list.
  bool Contato();
  /// The rows of the current list so far, be the grid hidden or not.
  int InLista() const { return form->Editor().Quanti(); }

  /// All tracks of a database of the project, "1-2 a.mp3".
  Righe Tutti(const char* database);
  /// The numbers of the lists as they stand in a database.
  Righe Testate(const char* database);

  /// Drops these host paths or addresses at a place of a widget, by way of the window.
  void Lascia(QWidget& dove, const QList<QUrl>& file);
  void Lascia(QWidget& dove, std::initializer_list<std::string> file);

  BancoSchermi b;
  ProgressoVisto progresso{b.C};
  QPointer<frmPlaylistEditor> form;
};

/// Picks an entry of a list with the mouse.
void ScegliColMouse(QComboBox& elenco, int voce);

}  // namespace kvr5::test
