#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>
#include <string>
#include <vector>

namespace kvr5::test {

/// A box as it stood on the screen.
struct BoxLetto {
  std::string Titolo;
  std::string Testo;
};

/// Sends away every box that comes up within its life, with the button that changes nothing, and
/// remembers what it said; the screens over the hub, such as that of the fades, too: for tests that
/// can't know which boxes come, or how many. Other windows are left to a Pilota; one that stays for
/// 3 s is closed and fails the test.
class Risponditore {
 public:
  Risponditore();

  const std::vector<BoxLetto>& Letti() const { return letti_; }
  /// Whether a box of that title came up.
  bool Ha(const std::string& titolo) const;
  /// The titles in the order of the boxes, each once, divided by "; ".
  std::string Titoli() const;

 private:
  void Guarda();

  QTimer battito_;
  QElapsedTimer attesa_;
  std::vector<BoxLetto> letti_;
};

}  // namespace kvr5::test
