#include "core/screens/ElencoCartelle.h"

#include <QKeyEvent>
#include <algorithm>
#include <tuple>

#include "core/Aiuti.h"
#include "core/Lingua.h"
#include "core/Parole.h"
#include "core/screens/Icona.h"
#include "core/screens/Tema.h"
#include "core/screens/Testo.h"
#include "platform/FileOps.h"

namespace kvr5 {
namespace {

/// The folder that holds this one; "" at a root.
std::string ParentOf(const std::string& path) {
  constexpr std::size_t kRoot = 3;  // "C:\"
  if (path.size() <= kRoot) return {};
  const std::string parent = EstraiCartella(path);
  return parent.size() <= kRoot ? parent : parent.substr(0, parent.size() - 1);
}

/// What the list and the pane beside it show of a folder's entry.
bool Alike(const FileInfo& one, const FileInfo& other) {
  const auto shown = [](const FileInfo& each) {
    return std::tie(each.Name, each.IsFolder, each.Hidden, each.System, each.Unusable);
  };
  return shown(one) == shown(other);
}

std::string WithoutBar(std::string path) {
  constexpr std::size_t kRoot = 3;
  while (path.size() > kRoot && path.ends_with('\\')) path.pop_back();
  return path;
}

}  // namespace

ElencoCartelle::ElencoCartelle(Contesto& contesto, const char* nome, QWidget* padre)
    : ElencoModesto(padre), contesto_(contesto) {
  setObjectName(QLatin1String(nome));
  setUniformItemSizes(true);
  setIconSize({16, 16});
  connect(this, &QListWidget::itemClicked, this, [this] {
    if (SuClic) SuClic();
  });
  connect(this, &QListWidget::itemDoubleClicked, this,
          [this](const QListWidgetItem* item) { Entra(item); });
}

void ElencoCartelle::ImpostaPercorso(const std::string& percorso) {
  const std::string folder = WithoutBar(percorso);
  if (!FolderExists(contesto_.Files, folder)) return;
  percorso_ = folder;
  Riempi();
  if (SuCambio) SuCambio();
}

void ElencoCartelle::Riempi() {
  voci_ = Guarda();
  Mostra();
}

std::vector<FileInfo> ElencoCartelle::Guarda() const {
  auto entries = contesto_.Files.List(percorso_);
  return entries ? std::move(entries.Value()) : std::vector<FileInfo>{};
}

bool ElencoCartelle::Rileggi() {
  auto now = Guarda();
  if (std::ranges::equal(now, voci_, Alike)) return false;
  voci_ = std::move(now);
  const int row = currentRow();
  const QString name = row < 0 ? QString() : currentItem()->text();
  Mostra();
  const auto same = findItems(name, Qt::MatchExactly);
  if (!same.isEmpty()) setCurrentItem(same.front());
  return true;
}

void ElencoCartelle::Mostra() {
  clear();
  const QIcon icon = IconaDi(QStringLiteral("cartella"), Tema::Corrente().Attenuato);
  const QIcon up = IconaDi(QStringLiteral("su"), Tema::Corrente().Attenuato);
  if (const std::string parent = ParentOf(percorso_); !parent.empty()) {
    auto* item = new QListWidgetItem(up, QStringLiteral(".."), this);
    item->setData(Qt::UserRole, Qs(parent));
  }
  QString unusable;  // read once, however many there are
  for (const auto& entry : voci_) {
    if (!entry.IsFolder || entry.Name.starts_with('.')) continue;
    auto* item = new QListWidgetItem(icon, Qs(SuUnaRiga(entry.Name)), this);
    item->setData(Qt::UserRole, Qs(AggiungiBarra(percorso_) + entry.Name));
    if (entry.Unusable == NameFault::None) continue;
    item->setFlags(item->flags() & ~Qt::ItemIsEnabled);
    if (unusable.isEmpty()) unusable = Qs(TestoLingua(contesto_, "0130256"));
    item->setToolTip(unusable);
  }
  setCurrentRow(0);
}

void ElencoCartelle::Entra(const QListWidgetItem* voce) {
  if (voce != nullptr) ImpostaPercorso(Std(voce->data(Qt::UserRole).toString()));
}

void ElencoCartelle::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    Entra(currentItem());
    return;
  }
  if (event->key() == Qt::Key_Backspace) {
    if (const std::string parent = ParentOf(percorso_); !parent.empty()) ImpostaPercorso(parent);
    return;
  }
  QListWidget::keyPressEvent(event);
}

}  // namespace kvr5
