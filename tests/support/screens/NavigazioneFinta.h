#pragma once

#include <cstdint>
#include <functional>
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
  void ScegliScheda(Schermata chiamante) override {
    SchedePer.push_back(chiamante);
    if (SuScegliScheda) SuScegliScheda();
  }
  void AggiornaPercorsoMemoryCard() override { ++PercorsiAggiornati; }
  void RiavviaMain() override { ++Riavvii; }
  void TerminaProgramma() override { ++Fini; }

  std::vector<Schermata> Mostrate;     ///< without Nessuna
  std::vector<Schermata> ElenchiPer;   ///< the callers of frmCaricaProgetto
  std::vector<std::int16_t> Aperture;  ///< the ApreDaFlash of each opening of the hub
  std::vector<Schermata> SchedePer;    ///< the callers of frmSelectFlash
  int PercorsiAggiornati = 0;
  int Riavvii = 0;
  int Fini = 0;
  /// What a test wants to look at, or to do, in the place of the other screen.
  std::function<void(Schermata)> SuMostra;
  std::function<void()> SuScegliScheda;
};

}  // namespace kvr5::test
