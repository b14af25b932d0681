#include "core/screens/RiquadroMessaggio.h"
#include "projects/screens/BancoRilettura.h"

// A card whose files couldn't all be copied, read back on the list of projects.

namespace kvr5 {
namespace {

using namespace test;

class CaricaDaFlashLasciati : public Rilettura {};

TEST_F(CaricaDaFlashLasciati, WhatWasNotCopiedIsToldBeforeTheProjectOpens) {
  b.Cartella.Write("card/Aux.mp3", "x");
  b.Cartella.Write("card/more/con.jpg", "x");
  Apri();
  bool told = false;
  {
    const Pilota<RiquadroMessaggio> box([&](RiquadroMessaggio& words) {
      told = true;
      EXPECT_EQ(words.windowTitle(), "Not all of the card was copied");
      EXPECT_EQ(Scritta(words, "lblTesto"),
                "These files of the card have names that no other card or computer may hold, so "
                "they weren't copied: Aux.mp3, con.jpg");
      EXPECT_TRUE(b.Schermi.Aperture.empty()) << "the hub isn't there yet";
      EXPECT_TRUE(forma->isVisible());
      EXPECT_TRUE(b.Cartella.Exists("program/Projects/Hall/P01-001.mp3")) << "the rest was copied";
      Clicca(words, "cmdOk");
    });
    Leggi();
  }
  EXPECT_TRUE(told);
  EXPECT_EQ(b.Schermi.Aperture, std::vector<std::int16_t>{2}) << "it opens all the same";
  EXPECT_EQ(c.Stato.CartellaProgetto, b.Percorso("program/Projects/Hall"));
  EXPECT_FALSE(PuntatoreOccupato());
}

TEST_F(CaricaDaFlashLasciati, ACopyThatWasCancelledTellsOfTheCancelAlone) {
  b.Cartella.Write("card/Aux.mp3", "x");
  b.Copia.AnnullaAlla = 2;
  Apri();
  {
    const auto box = AvvisoAnnullata();
    Leggi();
  }
  AspettaElencoInUso();
}

}  // namespace
}  // namespace kvr5
