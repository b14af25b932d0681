#include "core/screens/ElencoFile.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QUrl>
#include <algorithm>
#include <set>

#include "core/Aiuti.h"
#include "core/ElencoMp3.h"
#include "core/Parole.h"
#include "core/screens/Testo.h"

namespace kvr5 {
namespace {

std::string NameOf(const QListWidgetItem& item) {
  return Std(item.data(Qt::UserRole).toString());
}

}  // namespace

ElencoFile::ElencoFile(Contesto& contesto, QWidget* padre)
    : ElencoModesto(padre), contesto_(contesto) {
  setObjectName(QStringLiteral("filMp3"));
  setUniformItemSizes(true);
  setSelectionMode(ExtendedSelection);
  setDragDropMode(DragOnly);
  setTextElideMode(Qt::ElideMiddle);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  connect(this, &QListWidget::itemDoubleClicked, this, [this] {
    if (SuDoppio) SuDoppio();
  });
}

void ElencoFile::AggiungiVoce(const FilePannello& file) {
  const QString name = Qs(SuUnaRiga(file.Nome));
  auto* item = new QListWidgetItem(name, this);
  item->setData(Qt::UserRole, Qs(file.Nome));
  item->setToolTip(Suggerimento(name));
  if (file.Difetto == NameFault::None) return;
  item->setFlags(item->flags() & ~(Qt::ItemIsEnabled | Qt::ItemIsSelectable));
  item->setToolTip(Qs(ParoleDifetto(contesto_, file.Difetto)));
}

void ElencoFile::Mostra(const std::string& cartella, const std::vector<FilePannello>& file) {
  const bool same = cartella == cartella_;
  const std::vector<std::string> chosen = same ? Scelti() : std::vector<std::string>{};
  const std::set<std::string> wanted(chosen.begin(), chosen.end());
  const std::string current = same ? Corrente() : std::string();
  cartella_ = cartella;
  muta_ = true;
  clear();
  for (const FilePannello& each : file) {
    AggiungiVoce(each);
    QListWidgetItem* added = item(count() - 1);
    if (!current.empty() && each.Nome == current) {
      setCurrentItem(added, QItemSelectionModel::NoUpdate);
    }
    added->setSelected(wanted.contains(each.Nome));
  }
  muta_ = false;
}

std::string ElencoFile::Corrente() const {
  const QListWidgetItem* item = currentItem();
  if (item != nullptr && item->isSelected()) return NameOf(*item);
  const std::vector<std::string> chosen = Scelti();  // one of several was taken out again
  return chosen.empty() ? std::string() : chosen.front();
}

std::vector<std::string> ElencoFile::Scelti() const {
  std::vector<std::string> chosen;
  for (int row = 0; row < count(); ++row) {
    if (item(row)->isSelected()) chosen.push_back(NameOf(*item(row)));
  }
  return chosen;
}

bool ElencoFile::Cerca(const QString& testo, bool prossimo) {
  const QString wanted = testo.trimmed();
  if (wanted.isEmpty() || count() == 0) return false;
  const int start = std::max(0, currentRow() + (prossimo ? 1 : 0));
  for (int step = 0; step < count(); ++step) {
    QListWidgetItem* each = item((start + step) % count());
    if (!each->flags().testFlag(Qt::ItemIsEnabled)) continue;
    if (!each->text().contains(wanted, Qt::CaseInsensitive)) continue;
    setCurrentItem(each);
    return true;
  }
  return false;
}

void ElencoFile::mousePressEvent(QMouseEvent* event) {
  muta_ = true;
  QListWidget::mousePressEvent(event);
  muta_ = false;
  Clic();
}

void ElencoFile::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (!enter) return QListWidget::keyPressEvent(event);
  if (!event->isAutoRepeat() && SuDoppio) SuDoppio();
}

void ElencoFile::selectionChanged(const QItemSelection& ora, const QItemSelection& prima) {
  QListWidget::selectionChanged(ora, prima);
  if (muta_) return;
  // Not from within the list's own change: what follows lets events run.
  QMetaObject::invokeMethod(
      this, [this] { Clic(); }, Qt::QueuedConnection);
}

QStringList ElencoFile::mimeTypes() const {
  return {QStringLiteral("text/uri-list")};
}

QMimeData* ElencoFile::mimeData(const QList<QListWidgetItem*>& voci) const {
  QList<QListWidgetItem*> inOrder = voci;
  std::ranges::sort(inOrder, {}, [this](const QListWidgetItem* each) { return row(each); });
  QList<QUrl> files;
  for (const QListWidgetItem* each : inOrder) {
    const std::string path = AggiungiBarra(cartella_) + NameOf(*each);
    files.append(QUrl::fromLocalFile(Qs(contesto_.Files.HostPath(path))));
  }
  auto* dragged = new QMimeData();
  dragged->setUrls(files);
  return dragged;
}

}  // namespace kvr5
