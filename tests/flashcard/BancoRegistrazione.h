#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "flashcard/Registrazione.h"
#include "support/Banco.h"
#include "support/SceltaDaProva.h"

namespace kvr5::test {

/// A project named Hall, three files of music and an empty card.
class Recording : public testing::Test {
 protected:
  void SetUp() override { s.PercorsoMemoryCard = b.Percorso("card") + "\\"; }

  void Project(std::int16_t type, std::int16_t mode, std::int16_t config = 0) {
    b.CreaProgetto("Hall", type, mode, config);
    for (const char* name : {"a.mp3", "b.mp3", "c.mp3"}) {
      b.ScriviMp3(std::string("music/") + name, name[0]);
    }
  }
  std::string Music() const { return b.Percorso("music") + "\\"; }
  void Put(const std::string& name, const std::string& text = "x") {
    b.Cartella.Write("program/Projects/Hall/" + name, text);
  }
  FineRegistrazione Record() {
    if (!TabellaIngressi::SenzaIngressi(s.PlayerType, s.PlayerMode)) inputs.Apri();
    outcome = RegistraProgettoSuFlash(b.C, inputs, progress, choice);
    return outcome.Fine;
  }
  std::vector<std::string> Card() const { return b.Nomi("card"); }
  std::string OnCard(const std::string& name) const { return b.Cartella.Read("card/" + name); }
  /// The box of a card that can't be written.
  void ExpectUnwritable() {
    ExpectBox(
        "Recording not started",
        "Nothing was copied: this card isn't there or can't be written. Open its lock or put it "
        "back in, then repeat.",
        0);
  }
  void ExpectBox(const std::string& title, const std::string& text, std::uint32_t colour) {
    const auto box = b.Finestre.Prossimo();
    EXPECT_TRUE(box.SiNo);
    EXPECT_TRUE(box.SoloOk);
    EXPECT_EQ(box.TestoOk, "OK");
    EXPECT_EQ(box.Titolo, title);
    EXPECT_EQ(box.Testo, text);
    EXPECT_EQ(box.Colore, colour);
  }

  Banco b;
  StatoApplicazione& s = b.C.Stato;
  TabellaIngressi inputs{b.C};
  FinestraProgresso progress{b.C};
  SceltaDaProva choice{b.C.Stato};
  EsitoRegistrazione outcome;  ///< of the last Record
};

}  // namespace kvr5::test
