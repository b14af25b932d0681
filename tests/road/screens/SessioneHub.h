#pragma once

#include <random>

#include "road/screens/BancoGuasti.h"
#include "road/screens/ModelloHub.h"

namespace kvr5::test {

/// A session of the hub at random: each action is done by mouse or keys on the screen, and to the
/// model beside it.
class SessioneHub : public Guasti {
 protected:
  /// Makes the project with settings at random, and opens it from the list.
  void Inizia(unsigned seme);
  /// Does the next action.
  void Act();

  template <class T = QWidget>
  T& Find(const std::string& name) {
    return Controllo<T>(*hub_, name.c_str());
  }
  std::string Text(const char* label) { return Scritta(*hub_, label); }

  ModelloHub m_;
  std::string config_;  ///< Config.txt as the project has it
  int recorded_ = 0;    ///< recordings that brought all files

 private:
  int Any(int from, int to) { return std::uniform_int_distribution(from, to)(random_); }
  bool Coin() { return Any(0, 1) == 1; }
  template <class T>
  const auto& OneOf(const T& all) {
    return all.at(static_cast<std::size_t>(Any(0, static_cast<int>(std::size(all)) - 1)));
  }
  void WriteMusic();
  void WriteSettings();

  void Tick();
  void PickFile();
  void Confirm();
  void PickRow();
  void MoveLevel();
  void ToggleOption();
  void TypeTime();
  void StepTime();
  void SwitchTime();
  void ChangeFolder();
  void ChangeDisk();
  void Wait();
  void Record();
  void Stay();
  void Reopen();

  std::mt19937 random_;
  frmPlayerConfig* hub_ = nullptr;
};

}  // namespace kvr5::test
