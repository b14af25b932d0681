#include "core/AscoltoEditor.h"

#include <cstdint>

#include "core/Aiuti.h"
#include "core/Domanda.h"
#include "core/Lingua.h"
#include "core/ParoleCopia.h"

namespace kvr5 {

AscoltoEditor::AscoltoEditor(Contesto& contesto, Esecutore& documenti, Anteprima& mci1,
                             Anteprima& mciPreview, std::size_t quanti)
    : Ascolto(contesto, documenti), mci1_(mci1), mciPreview_(mciPreview), quanti_(quanti) {}

void AscoltoEditor::MostraFileSx(bool on) const {
  if (SuPlayFileSx) SuPlayFileSx(on);
}

void AscoltoEditor::MostraRiga(std::size_t indice, bool on) const {
  if (SuPlayRiga) SuPlayRiga(indice, on);
}

void AscoltoEditor::Ferma() {
  const unsigned before = UltimoComando();
  MostraFileSx(false);
  Zittisci(mci1_);
  LasciaCorrere();
  if (UltimoComando() != before) return;  // a later command has stopped what there was
  for (std::size_t i = 0; i < quanti_; ++i) MostraRiga(i, false);
  Zittisci(mciPreview_);
}

void AscoltoEditor::Notifica(int codice) {
  if (codice == Anteprima::kFinita) Ferma();
}

void AscoltoEditor::PlayFileSx(const std::string& cartella, const std::string& file) {
  Attesa();
  const std::string path = AggiungiBarra(cartella) + file;
  if (Fuori()) {
    ApriFuori(documenti_, path);
  } else if (FermaPerSuonare()) {
    MostraFileSx(true);
    if (!Suona(mci1_, path) && SuMutoFileSx) SuMutoFileSx();
  }
  Fine();
}

void AscoltoEditor::PlayRiga(const Recordset& rsList) {
  Attesa();
  const std::string folder = rsList.Text("Filepath");
  const std::string name = rsList.Text("FileName");
  if (!Esiste(folder, name)) {
    DiciMancante(folder + name);
  } else if (Fuori()) {
    ApriFuori(documenti_, folder + name);
  } else {
    SuonaRiga(0, folder + name);
  }
  Fine();
}

void AscoltoEditor::PlaySpot(std::size_t indice, Recordset& rsDettaglio,
                             const std::string& cartella, const std::string& file) {
  Attesa();
  const std::string folder =
      Cerca(rsDettaglio, indice) ? AggiungiBarra(rsDettaglio.Text("Filepath")) : std::string();
  const std::string name = folder.empty() ? std::string() : rsDettaglio.Text("FileName");
  if (!Esiste(folder, name)) {
    DiciMancante(folder + name);
  } else if (Fuori()) {
    // With no file picked in the pane it would get the folder.
    if (!file.empty()) ApriFuori(documenti_, AggiungiBarra(cartella) + file);
  } else {
    SuonaRiga(indice, folder + name);
  }
  Fine();
}

bool AscoltoEditor::Cerca(Recordset& rsDettaglio, std::size_t indice) {
  const auto pos = static_cast<std::int64_t>(indice) + 1;
  if (rsDettaglio.Number("Pos") == pos) return true;
  if (rsDettaglio.MoveFirst()) return false;
  return !rsDettaglio.Find("Pos=" + std::to_string(pos)) && !rsDettaglio.Eof();
}

void AscoltoEditor::SuonaRiga(std::size_t indice, const std::string& path) {
  if (!FermaPerSuonare()) return;
  MostraRiga(indice, true);
  if (!Suona(mciPreview_, path) && SuMutoRiga) SuMutoRiga(indice);
}

void AscoltoEditor::DiciMancante(const std::string& path) {
  BoxSiNo box{TestoLingua(contesto_, "9011018"),
              TestoLingua(contesto_, "9011017") + "\r\n" + PercorsoPerPersone(contesto_, path),
              TestoLingua(contesto_, "0140022"),
              {}};
  ChiediSiNo(contesto_, box);
}

}  // namespace kvr5
