#pragma once

#include <memory>
#include <string>
#include <vector>

#include "core/Anteprima.h"

namespace kvr5::test {

/// Players that play nothing and remember what they were told, all in one list: "1 Open C:\a.mp3",
/// "2 Stop", with the player's number in the order of their making.
class AnteprimeFinte : public Anteprime {
 public:
  std::unique_ptr<Anteprima> Nuova() override {
    auto player = std::make_unique<Una>(*this, std::to_string(Tutte.size() + 1));
    Tutte.push_back(player.get());
    return player;
  }
  /// Has a player tell the end of its file.
  void Finisce(std::size_t numero, int codice = Anteprima::kFinita) {
    if (Tutte.at(numero - 1)->SuNotifica) Tutte.at(numero - 1)->SuNotifica(codice);
  }

  std::vector<std::string> Comandi;
  Error SuOpen;  ///< what every Open gives
  /// Every player made, gone ones too.
  std::vector<Anteprima*> Tutte;

 private:
  class Una : public Anteprima {
   public:
    Una(AnteprimeFinte& tutte, std::string numero) : tutte_(tutte), numero_(std::move(numero)) {}
    Error Open(const std::string& file) override {
      Segna("Open " + file);
      return tutte_.SuOpen;
    }
    Error Play() override {
      Segna("Play");
      return {};
    }
    void Stop() override { Segna("Stop"); }
    void Close() override { Segna("Close"); }

   private:
    void Segna(const std::string& comando) { tutte_.Comandi.push_back(numero_ + " " + comando); }
    AnteprimeFinte& tutte_;
    std::string numero_;
  };
};

}  // namespace kvr5::test
