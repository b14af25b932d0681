#include "support/screens/Risponditore.h"

#include <QApplication>
#include <QLabel>
#include <algorithm>
#include <set>

#include "core/screens/RiquadroMessaggio.h"
#include "core/screens/frmSiNo.h"
#include "support/screens/Mano.h"

namespace kvr5::test {
namespace {

constexpr int kLongestModal = 3000;  // milliseconds

/// The screens over the hub that Esc leaves without saving anything.
bool IsLeftByEsc(const QWidget& window) {
  static const std::set<QString> kNames{
      QStringLiteral("frmSalva"),      QStringLiteral("frmTempiFade"),
      QStringLiteral("frmPanelExtra"), QStringLiteral("frmConfig485"),
      QStringLiteral("frmVerifica"),   QStringLiteral("QFileDialog")};
  return kNames.contains(window.objectName());
}

}  // namespace

Risponditore::Risponditore() {
  QObject::connect(&battito_, &QTimer::timeout, &battito_, [this] { Guarda(); });
  battito_.start(1);
}

void Risponditore::Guarda() {
  QWidget* window = QApplication::activeModalWidget();
  if (window == nullptr || !window->isVisible()) return attesa_.invalidate();
  const bool plain = dynamic_cast<RiquadroMessaggio*>(window) != nullptr;
  if (plain || dynamic_cast<frmSiNo*>(window) != nullptr) {
    letti_.push_back(
        {window->windowTitle().toStdString(), Scritta(*window, plain ? "lblTesto" : "lblNota")});
    Tasto(*window, Qt::Key_Escape);
    return;
  }
  if (IsLeftByEsc(*window)) return Tasto(*window, Qt::Key_Escape);
  if (!attesa_.isValid()) attesa_.start();
  if (attesa_.elapsed() < kLongestModal) return;
  attesa_.invalidate();
  ADD_FAILURE() << "a window stayed: " << window->objectName().toStdString();
  Tasto(*window, Qt::Key_Escape);
}

bool Risponditore::Ha(const std::string& titolo) const {
  return std::ranges::any_of(letti_, [&](const BoxLetto& box) { return box.Titolo == titolo; });
}

std::string Risponditore::Titoli() const {
  std::string titles;
  for (auto box = letti_.begin(); box != letti_.end(); ++box) {
    const auto same = [&](const BoxLetto& each) { return each.Titolo == box->Titolo; };
    if (std::any_of(letti_.begin(), box, same)) continue;
    titles += (titles.empty() ? "" : "; ") + box->Titolo;
  }
  return titles;
}

}  // namespace kvr5::test
