#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <algorithm>
#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "core/screens/FormPredefinita.h"
#include "core/screens/frmSiNo.h"
#include "projects/screens/frmCaricaProgetto.h"
#include "support/screens/BancoSchermi.h"
#include "support/screens/Mano.h"
#include "support/screens/Pilota.h"

namespace kvr5::test {

/// The list of projects with real boxes, a copy window that does what the test says, and a card in
/// the folder "card" that holds the project "Hall".
class Rilettura : public testing::Test {
 protected:
  using Nomi = std::vector<std::string>;

  Rilettura() {
    b.Cartella.Write("card/Config.txt", "[Config]\r\nLOUT=3\r\n");
    Descrittore("Hall");
    b.Cartella.Write("card/1.m3u", "P01-001\r\n");
    b.ScriviMp3("card/P01-001.mp3", 1);
    b.Cartella.Write("card/more/deep/notes.doc", "kept");
    b.Schermi.SuScegliScheda = [this] { DaiScheda(); };
  }

  void Descrittore(const std::string& nome) const {
    b.Cartella.Write("card/Config.cfg",
                     "[CONFIG]\r\nProjectName=" + nome +
                         "\r\nPlayerType=4\r\nPlayerConfig=0\r\nPlayerConfigDesc=KVR5 (Playlist)"
                         "\r\nPlayerMode=5\r\nAnalyzer=0\r\n");
  }
  /// What the card dialog leaves in the state when its card is taken.
  void DaiScheda() {
    c.Stato.SelezioneFlashAnnullata = false;
    c.Stato.PercorsoMemoryCard = b.Percorso("card") + "\\";
  }
  frmCaricaProgetto& Apri() {
    forma->FormChiamante = Schermata::Menu;
    forma->Mostra();
    EXPECT_TRUE(Pronta(*forma));
    return *forma;
  }
  void Leggi() { Clicca(*forma->picLoadFlash); }

  /// Each file of the card with its bytes and its time.
  std::map<std::string, std::string> FotoScheda() const {
    std::map<std::string, std::string> files;
    for (const std::string& name : b.Nomi("card")) {
      const auto when = last_write_time(b.Cartella.Host() / "card" / name).time_since_epoch();
      files[name] = b.Cartella.Read("card/" + name) + std::to_string(when.count());
    }
    return files;
  }
  Nomi Progetti() const {
    Nomi folders;
    for (const auto& each :
         std::filesystem::directory_iterator(b.Cartella.Host() / "program/Projects")) {
      folders.push_back(each.path().filename().string());
    }
    std::sort(folders.begin(), folders.end());
    return folders;
  }
  /// Takes the next notice by its only button.
  static Pilota<frmSiNo> Avviso(const std::string& titolo, const std::string& nota,
                                bool arancio = false) {
    return Pilota<frmSiNo>([=](frmSiNo& box) {
      EXPECT_EQ(box.windowTitle().toStdString(), titolo);
      std::string words = box.lblNota->text().toStdString();
      std::replace(words.begin(), words.end(), '\n', ' ');
      EXPECT_EQ(words, nota);
      EXPECT_FALSE(box.cmdNo->isVisible()) << "one button only";
      EXPECT_EQ(box.lblYes->text().toStdString(), "OK");
      EXPECT_EQ(box.lblNota->autoFillBackground(), arancio);
      if (arancio) {
        EXPECT_EQ(box.lblNota->palette().color(QPalette::WindowText), QColor(255, 128, 0));
      }
      Clicca(*box.cmdSi);
    });
  }
  static Pilota<frmSiNo> AvvisoAnnullata() {
    return Avviso(
        "Open from card",
        "Cancelled: the copy of the project is not complete. Delete its folder before you "
        "open this card again.",
        true);
  }
  /// Waits until a window has the keyboard again: without a display nobody gives it back to the one
  /// behind one that has gone.
  static bool DiNuovoPronta(QWidget& finestra) {
    if (QApplication::activeWindow() == nullptr) finestra.activateWindow();
    return Pronta(finestra);
  }
  /// The list can be used by mouse and keyboard, and leads back to the menu.
  void AspettaElencoInUso() {
    ASSERT_TRUE(forma->isVisible());
    EXPECT_TRUE(forma->isEnabled());
    EXPECT_FALSE(PuntatoreOccupato());
    EXPECT_TRUE(b.Schermi.Aperture.empty());
    EXPECT_TRUE(b.Schermi.Mostrate.empty());
    EXPECT_TRUE(DiNuovoPronta(*forma));
    Tasto(*forma, Qt::Key_Escape);
    EXPECT_EQ(b.Schermi.Mostrate, std::vector{Schermata::Menu});
  }

  BancoSchermi b;
  /// The same context with the copy window of the bench.
  Contesto c{b.C.Files,     b.C.Finestre,          b.C.Messaggi, b.Copia,   b.C.Ora,
             b.C.Programma, b.C.CartellaProgramma, b.C.Luogo,    b.C.Stato, {}};
  Ambiente a{c, b.Schermi, b.Documenti, b.Vita, b.Suono};
  FinestraProgresso avanzamento{c};
  FormPredefinita<frmCaricaProgetto> forma{
      [this] { return new frmCaricaProgetto(a, avanzamento); }};
};

}  // namespace kvr5::test
