#pragma once

#include <filesystem>
#include <string>

#include "flashcard/screens/frmVerifica.h"
#include "support/screens/ProvaForm.h"

namespace kvr5::test {

/// The verification of a project on inputs with one file, and a card that is as the project.
class ProvaVerifica : public ProvaForm<frmVerifica, Boxes::Veri> {
 protected:
  void SetUp() override {
    b.CreaProgetto("Hall", 4, 1);
    b.ScriviMp3("music/a.mp3", 1, 40);
    b.AggiungiRiga("inputcfg.mdb", 1, 5, "a.mp3", b.Percorso("music") + "\\", "5.mp3");
    for (const char* name : {"inputcfg.mdb", "Config.txt", "Config.cfg"}) {
      std::filesystem::copy(Host(std::string("program/Projects/Hall/") + name),
                            Host("card") / name);
    }
    std::filesystem::copy(Host("music/a.mp3"), Host("card/5.mp3"));
    b.C.Stato.PercorsoMemoryCard = b.Percorso("card") + "\\";
  }
  std::filesystem::path Host(const std::string& name) const { return b.Cartella.Host() / name; }
};

}  // namespace kvr5::test
