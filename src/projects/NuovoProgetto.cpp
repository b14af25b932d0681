#include "projects/NuovoProgetto.h"

#include <array>

#include "core/Aiuti.h"
#include "core/Impostazioni.h"
#include "core/Lingua.h"
#include "platform/CodePage.h"
#include "platform/FileOps.h"
#include "platform/Path.h"
#include "projects/CartellaProgetto.h"
#include "projects/Descrittore.h"

namespace kvr5 {
namespace {

/// What the sub-configurations of model 2 are called.
constexpr std::array<std::string_view, 4> kZubTexts{"0100000", "0100001", "0100002", "0100003"};

void ShowInformation(Contesto& contesto, std::string_view text, std::string_view title) {
  contesto.Finestre.MostraMessaggio({TestoLingua(contesto, title), TestoLingua(contesto, text),
                                     Icona::Informazione, Pulsanti::Ok, Risposta::Ok});
}

/// The warning about a missing program file, whose first line is `text`, and the end.
void EndForMissingFile(Contesto& contesto, std::string_view text) {
  contesto.Finestre.MostraMessaggio({TestoLingua(contesto, "0010003"),
                                     TestoLingua(contesto, text) + "\r\n" +
                                         TestoLingua(contesto, "0010004") + "\r\n" +
                                         TestoLingua(contesto, "0010005"),
                                     Icona::Avviso, Pulsanti::Ok, Risposta::Ok});
  contesto.Programma.Termina(MotivoFine::ModelloMancante);
}

std::string ProgramFile(const Contesto& contesto, std::string_view name) {
  return AggiungiBarra(contesto.CartellaProgramma).append(name);
}

/// What each model's case sets before the descriptor is written.
void SetFields(Contesto& contesto) {
  auto& state = contesto.Stato;
  state.Analyzer = 0;
  if (state.PlayerType == 1) {
    state.PlayerConfig = 0;
    state.PlayerMode = 0;
  } else if (state.PlayerType == 2) {
    const auto config = static_cast<std::size_t>(state.PlayerConfig);  // below 0: none of them
    state.PlayerConfigDesc =
        config < kZubTexts.size() ? TestoLingua(contesto, kZubTexts[config]) : std::string();
    state.PlayerMode = 0;
  }
}

void CopyPicture(Contesto& contesto) {
  const auto& state = contesto.Stato;
  const std::string name = state.PlayerName + ".gif";
  // The picture of model 3 is asked for without the point, so that its projects have none.
  const std::string source = state.PlayerType == 3 ? state.PlayerName + "gif" : name;
  Ignora(CopyOneFile(contesto.Files, ProgramFile(contesto, "Pictures\\" + source),
                     FileDelProgetto(contesto, name)));
}

void CopyTemplate(Contesto& contesto) {
  const auto& state = contesto.Stato;
  const std::string target = FileDelProgetto(contesto, "Config.txt");
  if (FileExists(contesto.Files, target)) Ignora(contesto.Files.Delete(target));
  contesto.Errore.Clear();
  contesto.Errore.Record(CopyOneFile(
      contesto.Files,
      ProgramFile(contesto, ModelloConfig(state.PlayerType, state.PlayerConfig, state.PlayerMode)),
      target));
  if (contesto.Errore) EndForMissingFile(contesto, "0010003");
}

void CopyDatabases(Contesto& contesto) {
  const auto& state = contesto.Stato;
  contesto.Errore.Clear();
  for (const auto& name :
       DatabaseDelProgetto(state.PlayerType, state.PlayerConfig, state.PlayerMode)) {
    contesto.Errore.Record(CopyOneFile(contesto.Files, ProgramFile(contesto, "source.mdb"),
                                       FileDelProgetto(contesto, name)));
    if (contesto.Errore) EndForMissingFile(contesto, "0010006");
  }
}

void TellOfInputsOnOstrel(Contesto& contesto) {
  contesto.Finestre.MostraSiNo({TestoLingua(contesto, "0040051"),
                                TestoLingua(contesto, "0040054 "),  // the key ends in a blank
                                TestoLingua(contesto, "0140022"),
                                {}});
}

/// The descriptor keeps the name in the code page; a card that is read back makes its folder anew
/// from there.
bool CanBeKept(const Contesto& contesto, std::string_view name) {
  return CodePage(contesto.Luogo.AnsiCodePage).CanEncode(name);
}

}  // namespace

std::string NotaCaratteriVietati(Contesto& contesto, std::string_view separatore) {
  return TestoLingua(contesto, "0030002").append(separatore) + " \\ / : ? \" < > |";
}

std::string TestoVariantePlaylist(Contesto& contesto, std::int16_t playerMode) {
  switch (playerMode) {
    case 5:
      return TestoLingua(contesto, "0160008");
    case 6:
      return TestoLingua(contesto, "0160009");
    case 7:
      return TestoLingua(contesto, "0160010");
    default:
      return {};
  }
}

ScritteWizard ScritteDelWizard(Contesto& contesto, std::int16_t playerMode) {
  return {
      TestoLinguaO(contesto, "0160001", "Inputs"), TestoLinguaO(contesto, "0160002", "Scheduled"),
      TestoLinguaO(contesto, "0160003", "Playlist"), TestoVariantePlaylist(contesto, playerMode)};
}

std::string DescrizioneKvr5(std::int16_t playerMode, const ScritteWizard& scritte) {
  std::string text = "KVR5 (";
  if (playerMode == 1) text += scritte.Ingressi + ")";
  if (playerMode == 2) text += scritte.Palinsesto + ")";
  if (playerMode >= 4) text += scritte.Playlist + " " + scritte.VariantePlaylist + ")";
  return text;
}

DifettoNome DifettoDelNome(const Contesto& contesto, std::string_view nome) {
  if (nome.find_first_of(kCaratteriVietati) != std::string_view::npos) {
    return DifettoNome::Carattere;
  }
  if (!CanBeKept(contesto, nome)) return DifettoNome::Lettera;
  const CodePage page(contesto.Luogo.AnsiCodePage);
  if (page.Length(page.Encode(nome)) > kCaratteriImpostazione) return DifettoNome::Lungo;
  if (CardCanHold(nome)) return DifettoNome::Nessuno;
  if (nome.ends_with(' ') || nome.ends_with('.')) return DifettoNome::Fine;
  // With nothing but a letter in front, what remains can only be a character.
  return CardCanHold(std::string("_").append(nome)) ? DifettoNome::Riservato
                                                    : DifettoNome::Carattere;
}

EsitoNuovo PreparaCartella(Contesto& contesto, const std::string& nome, bool soloNome) {
  if (nome.find_first_of(kCaratteriVietati) != std::string::npos) {
    return EsitoNuovo::CarattereVietato;
  }
  if (nome.empty()) {
    if (!soloNome) contesto.Messaggi.ImpostaPuntatore(Puntatore::Normale);
    ShowInformation(contesto, "0030001", "9011010");
    return EsitoNuovo::NomeVuoto;
  }
  auto& state = contesto.Stato;
  state.ProjectName = nome;
  state.CartellaProgetto = AggiungiBarra(state.CartellaProgetti) + nome;
  if (FolderExists(contesto.Files, state.CartellaProgetto)) {
    ShowInformation(contesto, "0030010", "0030007");
    if (!soloNome) contesto.Messaggi.ImpostaPuntatore(Puntatore::Normale);
    return EsitoNuovo::CartellaEsistente;
  }
  contesto.Errore.Clear();
  if (soloNome) return EsitoNuovo::SoloNome;
  contesto.Errore.Record(CanBeKept(contesto, nome)
                             ? contesto.Files.CreateFolder(state.CartellaProgetto)
                             : Error(errors::BadFileName));
  if (contesto.Errore) {
    const Error& error = contesto.Errore.Last();
    contesto.Finestre.MostraMessaggio({TestoLingua(contesto, "0030006"),
                                       TestoLingua(contesto, "0030005") +
                                           "\r\nN°:" + std::to_string(error.Number()) + "\r\n" +
                                           error.Description(),
                                       Icona::Avviso, Pulsanti::Ok, Risposta::Ok});
    contesto.Messaggi.ImpostaPuntatore(Puntatore::Normale);
    return EsitoNuovo::CartellaNonCreata;
  }
  return EsitoNuovo::Creato;
}

void RiempiCartella(Contesto& contesto) {
  const auto& state = contesto.Stato;
  if (state.PlayerType < 1 || state.PlayerType > 4) return;
  SetFields(contesto);
  SalvaDescrittoreProgetto(contesto);
  CopyPicture(contesto);
  CopyTemplate(contesto);
  CopyDatabases(contesto);
  if (state.PlayerType == 3 && state.PlayerMode == 1) TellOfInputsOnOstrel(contesto);
}

EsitoNuovo CreaProgettoKvr5(Contesto& contesto, const std::string& nome, std::int16_t playerMode,
                            const ScritteWizard& scritte) {
  auto& state = contesto.Stato;
  state.PlayerMode = playerMode;
  contesto.Messaggi.ImpostaPuntatore(Puntatore::Attesa);
  state.PlayerConfigDesc = DescrizioneKvr5(playerMode, scritte);
  const EsitoNuovo outcome = PreparaCartella(contesto, nome, false);
  if (outcome != EsitoNuovo::Creato) return outcome;
  if (state.PlayerType == 4) RiempiCartella(contesto);
  contesto.Messaggi.ImpostaPuntatore(Puntatore::Normale);
  return outcome;
}

}  // namespace kvr5
