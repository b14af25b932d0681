#include "playerconfig/AscoltoHub.h"

#include "core/Aiuti.h"

namespace kvr5 {
namespace {

void Show(const std::function<void(bool)>& picture, bool on) {
  if (picture) picture(on);
}

}  // namespace

AscoltoHub::AscoltoHub(Contesto& contesto, Esecutore& documenti, Anteprima& mPlayer,
                       Anteprima& mciPreview)
    : Ascolto(contesto, documenti), mPlayer_(mPlayer), mciPreview_(mciPreview) {}

void AscoltoHub::Ferma() {
  if (Fuori()) return;
  const unsigned before = UltimoComando();
  Attesa();
  Zittisci(mciPreview_);
  Show(SuPlayAssegnato, false);
  LasciaCorrere();
  if (UltimoComando() == before) {  // else a later command has stopped what there was
    Zittisci(mPlayer_);
    Show(SuPlayMp3, false);
    LasciaCorrere();
  }
  Normale();
}

void AscoltoHub::Notifica(int codice) {
  if (codice != Anteprima::kFinita) return;
  Ferma();
  LasciaCorrere();
}

void AscoltoHub::Cambia(Anteprima& player, const std::function<void(bool)>& immagine,
                        const std::function<void()>& muto, const std::string& path) {
  if (!FermaPerSuonare()) return;
  Show(immagine, true);
  if (!Suona(player, path) && muto) muto();
}

void AscoltoHub::PlayMp3(const std::string& cartella, const std::string& file) {
  Attesa();
  const std::string folder = AggiungiBarra(cartella);
  if (Esiste(folder, file)) {
    if (Fuori()) {
      ApriFuori(documenti_, folder + file);
    } else {
      Cambia(mPlayer_, SuPlayMp3, SuMutoMp3, folder + file);
    }
  }
  Fine();
}

void AscoltoHub::PlayAssegnato(TabellaIngressi& ingressi, std::int16_t codice) {
  if (!ingressi.Cerca(codice)) return;
  const Recordset& row = ingressi.Cursore();
  const std::string project = AggiungiBarra(contesto_.Stato.CartellaProgetto);
  const std::string folder = row.Text("Filepath");
  const std::string name = row.Text("FileName");
  const std::string alias = row.Text("Alias");
  if (Esiste(project, name)) return PlayTrovato(project + name, folder + name);
  if (Esiste(folder, name)) return PlayTrovato(folder + name, folder + name);
  if (Esiste(project, alias)) PlayTrovato(project + alias, folder + name);
}

void AscoltoHub::PlayTrovato(const std::string& trovato, const std::string& origine) {
  Attesa();
  if (Fuori()) {
    ApriFuori(documenti_, trovato);
  } else {
    Cambia(mciPreview_, SuPlayAssegnato, SuMutoAssegnato, origine);
  }
  Fine();
}

}  // namespace kvr5
