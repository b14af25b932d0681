#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "support/AnteprimeFinte.h"
#include "support/Banco.h"
#include "support/EsecutoreFinto.h"

namespace kvr5::test {

/// A bench for listening: a folder "music" with a.mp3, and one list of what two players, the
/// buttons and the pointer are told.
class BancoAscolto : public testing::Test {
 protected:
  using Lines = std::vector<std::string>;

  BancoAscolto() { b.ScriviMp3("music/a.mp3"); }
  void Say(const std::string& what) { sound.Comandi.push_back(what); }
  /// What was said since the last look.
  Lines Said() { return std::exchange(sound.Comandi, {}); }
  std::string Music(const char* name = "") const { return b.Percorso("music") + "\\" + name; }

  Banco b;
  EsecutoreFinto documents;
  AnteprimeFinte sound;
  std::unique_ptr<Anteprima> first = sound.Nuova();
  std::unique_ptr<Anteprima> second = sound.Nuova();
};

}  // namespace kvr5::test
