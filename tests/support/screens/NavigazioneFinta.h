#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "core/screens/Navigazione.h"

namespace kvr5::test {

/// Remembers to whom a screen handed over; shows nothing.
class NavigazioneFinta : public Navigazione {
 public:
  void Mostra(Schermata schermata) override {
    if (schermata == Schermata::Nessuna) return;
    Mostrate.push_back(schermata);
    if (SuMostra) SuMostra(schermata);
  }
  void MostraElencoProgetti(Schermata chiamante) override { ElenchiPer.push_back(chiamante); }
  void ApriConfigurazione(std::int16_t apreDaFlash) override { Aperture.push_back(apreDaFlash); }
  void ApriPlaylist(Schermata chiamante) override { EditorPer.push_back(chiamante); }
  void ApriPalinsesto(Schermata chiamante) override { PalinsestiPer.push_back(chiamante); }
  void ScegliScheda(Schermata chiamante) override {
    SchedePer.push_back(chiamante);
    if (SuScegliScheda) SuScegliScheda();
  }
  void ChiediNomeProgetto(Schermata chiamante, const std::string& nome) override {
    NomiPer.push_back(chiamante);
    if (SuChiediNome) SuChiediNome(nome);
  }
  void AggiornaPercorsoMemoryCard() override { ++PercorsiAggiornati; }
  void ApriTempiFade() override { ++TempiFade; }
  void ApriPanelExtra() override { ++PannelliExtra; }
  void ApriConfig485(bool modoRS232) override { Seriali.push_back(modoRS232); }
  void ChiediSalvataggio(Schermata /*chiamante*/, std::function<void(bool)> annulla) override {
    ++Domande;
    if (SuDomanda) SuDomanda();
    annulla(AnnullaSalvataggio);
  }
  void RiavviaMain() override { ++Riavvii; }
  void TerminaProgramma() override { ++Fini; }

  std::vector<Schermata> Mostrate;       ///< without Nessuna
  std::vector<Schermata> ElenchiPer;     ///< the callers of frmCaricaProgetto
  std::vector<std::int16_t> Aperture;    ///< the ApreDaFlash of each opening of the hub
  std::vector<Schermata> PalinsestiPer;  ///< the callers of frmPalinsesto
  std::vector<Schermata> EditorPer;      ///< the callers of frmPlaylistEditor
  std::vector<Schermata> SchedePer;      ///< the callers of frmSelectFlash
  std::vector<Schermata> NomiPer;        ///< the callers of frmRichiestaNomeForm
  int TempiFade = 0;
  int PannelliExtra = 0;
  std::vector<bool> Seriali;  ///< the form of the serial screen at each opening: true is RS-232
  int Domande = 0;            ///< how often frmSalva was shown
  bool AnnullaSalvataggio = false;  ///< what it answers
  std::function<void()> SuDomanda;
  int PercorsiAggiornati = 0;
  int Riavvii = 0;
  int Fini = 0;
  /// What a test wants to look at, or to do, in the place of the other screen.
  std::function<void(Schermata)> SuMostra;
  std::function<void()> SuScegliScheda;
  std::function<void(const std::string&)> SuChiediNome;
};

}  // namespace kvr5::test
