#pragma once

#include <gtest/gtest.h>

#include <QPointer>
#include <functional>
#include <optional>
#include <string>

#include "core/screens/RiquadroMessaggio.h"
#include "core/screens/frmSiNo.h"
#include "playerconfig/screens/frmPlayerConfig.h"
#include "support/screens/BancoSchermi.h"
#include "support/screens/Mano.h"
#include "support/screens/Pilota.h"

class QListWidget;

namespace kvr5::test {

/// What the hub has done by others, in a test: a recording that is only counted, a card that is
/// there as the test says.
class ServiziFinti : public ServiziHub {
 public:
  explicit ServiziFinti(Contesto& contesto) : Avanzamento(contesto) {}
  bool RegistraProgetto(TabellaIngressi& /*ingressi*/) override {
    ++Registrazioni;
    if (SuRegistra) SuRegistra();
    return Annullata;
  }
  bool RegistrataIntera() const override { return Intera; }
  std::size_t EstraneiSullaScheda() override { return Estranei; }
  bool ChiediScheda() override {
    ++Richieste;
    return HaScheda;
  }
  bool SvuotaScheda() override {
    ++Svuotamenti;
    return Svuotata;
  }
  void VerificaScheda() override { ++Verifiche; }
  void ApriCopiaManuale() override { ++CopieManuali; }
  bool PuoEspellere() override { return Espellibile; }
  void EspelliScheda() override { ++Espulsioni; }
  FinestraProgresso& Progresso() override { return Avanzamento; }
  std::optional<Drive> FattiDellaScheda() override { return Scheda; }

  int Registrazioni = 0;
  bool Intera = false;
  std::size_t Estranei = 0;  ///< files on the card that aren't the project's
  int Richieste = 0;         ///< how often a card was asked for
  bool HaScheda = true;
  int Svuotamenti = 0;
  bool Svuotata = true;  ///< the questions were answered yes
  int Verifiche = 0;
  int CopieManuali = 0;
  bool Espellibile = false;
  int Espulsioni = 0;
  bool Annullata = false;
  std::function<void()> SuRegistra;
  std::optional<Drive> Scheda;
  FinestraProgresso Avanzamento;
};

/// The hub of a project named Hall.
class Hub : public testing::Test {
 protected:
  ~Hub() override { Chiudi(); }

  /// Makes the project by its model's own rules.
  void Progetto(std::int16_t playerType, std::int16_t playerMode, std::int16_t playerConfig = 0) {
    b.CreaProgetto("Hall", playerType, playerMode, playerConfig);
  }
  /// Sets a key of the project's device file.
  void Parametro(const std::string& key, const std::string& value);
  /// Has this folder of the bench be the one that was used last.
  void UltimaCartella(const std::string& name);
  std::string Config() const { return b.Cartella.Read("program/Projects/Hall/Config.txt"); }

  /// Opens the hub: 0 new, 1 from the list, 2 from a card.
  void Apri(std::int16_t apreDaFlash = 1);
  /// Drops the hub without its question.
  void Chiudi();

  template <class T>
  T& Trova(const std::string& name) {
    return Controllo<T>(*hub, name.c_str());
  }
  std::string Testo(const char* label) { return Scritta(*hub, label); }
  bool SiVede(const char* name) { return Trova<QWidget>(name).isVisible(); }
  void Clic(const char* name) { Clicca(*hub, name); }
  /// A click on the box of an input.
  void Spunta(int ingresso) { Clic(("chkIn_" + std::to_string(ingresso)).c_str()); }
  /// Goes to this entry of cmbFileMp3 with the arrow keys.
  void ScegliFile(const std::string& name);
  /// A click on a row of a list, which is brought into view before.
  static void ClicRiga(QListWidget& list, int row);

  /// The row of a code as another program reads it: "FileName|FilePath|Alias|NPlaylist"; "" for a
  /// free code.
  std::string Riga(int code);
  /// How many rows the table has.
  int Righe();

  BancoSchermi b;
  ServiziFinti servizi{b.C};
  QPointer<frmPlayerConfig> hub;
};

/// The same of a KVR5 that plays by its inputs, whose pane of files stands in the folder "music"
/// with "a.mp3", "b.mp3" and "L'été.mp3".
class HubConMusica : public Hub {
 protected:
  void SetUp() override;
  void Conferma() { Clic("cmdOkFileMp3"); }
  std::string Music() const { return b.Percorso("music") + "\\"; }
  /// What happens when another window was in front.
  void Attiva();
};

/// Sees the title and the text of a box before it is answered.
using Vede = std::function<void(const QString&, const QString&)>;

/// Presses a button of the next plain message box: "cmdYes", "cmdNo", "cmdCancel".
Pilota<RiquadroMessaggio> RispondiMessaggio(const char* pulsante, Vede vede = {});
/// Presses a key on the next plain message box.
Pilota<RiquadroMessaggio> RispondiMessaggioConTasto(Qt::Key tasto);
/// Presses the only button of the next notice.
Pilota<frmSiNo> RispondiSoloOk(Vede vede = {});

}  // namespace kvr5::test
