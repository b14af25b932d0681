#include "core/screens/FinestreQt.h"

#include <QApplication>
#include <QFileDialog>
#include <QHeaderView>
#include <QTimer>
#include <QTreeView>

#include "core/Lingua.h"
#include "core/screens/Davanti.h"
#include "core/screens/RiquadroMessaggio.h"
#include "core/screens/Testo.h"

namespace kvr5 {
namespace {

/// A box needs the plain pointer; a routine that left the busy one on finds it on again.
class PlainPointer {
 public:
  PlainPointer() : busy_(QGuiApplication::overrideCursor() != nullptr) {
    if (busy_) QGuiApplication::setOverrideCursor(Qt::ArrowCursor);
  }
  ~PlainPointer() {
    if (busy_) QGuiApplication::restoreOverrideCursor();
  }
  PlainPointer(const PlainPointer&) = delete;
  PlainPointer& operator=(const PlainPointer&) = delete;

 private:
  bool busy_;
};

/// The columns of the toolkit's own chooser; null where the desktop's is shown.
QHeaderView* ColonneDi(const QFileDialog& box) {
  const auto* details = box.findChild<QTreeView*>(QStringLiteral("treeView"));
  return details == nullptr ? nullptr : details->header();
}

/// Gives sizes, kinds and dates, which it cuts by itself, the room that they need; the columns as
/// they were.
QByteArray AllargaColonne(const QFileDialog& box) {
  QHeaderView* columns = ColonneDi(box);
  if (columns == nullptr) return {};
  constexpr int kName = 0;
  QByteArray before = columns->saveState();
  columns->setSectionResizeMode(kName, QHeaderView::Stretch);
  for (int column = kName + 1; column < columns->count(); ++column) {
    columns->setSectionResizeMode(column, QHeaderView::ResizeToContents);
  }
  return before;
}

}  // namespace

Risposta FinestreQt::MostraMessaggio(const Messaggio& messaggio) {
  const PlainPointer pointer;
  RiquadroMessaggio box(ambiente_->C, messaggio);
  MettiDavanti(box, FinestraSotto());
  box.exec();
  return box.Esito();
}

std::uint8_t FinestreQt::MostraSiNo(const BoxSiNo& box) {
  const PlainPointer pointer;
  auto& state = ambiente_->C.Stato;
  frmSiNo& form = *frmSiNo_;
  form.Carica();
  form.setWindowTitle(Qs(box.Titolo));
  form.ImpostaNota(QsRighe(box.Nota));
  if (box.ColoreNota) form.ColoraNota(*box.ColoreNota);
  if (box.Toglie) form.MostraPericolo();
  if (box.SoloOk) form.MostraSoloOk(*box.SoloOk);
  state.RispostaSiNo = 0;
  form.MostraModale();
  return state.RispostaSiNo;
}

std::string FinestreQt::SfogliaCartella(const std::string& titolo, const std::string& inizio) {
  const QString start = inizio.empty() ? QString() : Qs(ambiente_->C.Files.HostPath(inizio));
  QFileDialog box(nullptr, Qs(titolo), start);
  box.setFileMode(QFileDialog::Directory);
  box.setOption(QFileDialog::ShowDirsOnly);
  return Scegli(box);
}

std::string FinestreQt::ScegliFile(const std::string& titolo, const FiltroFile& filtro,
                                   const std::string& inizio) {
  const QString start = inizio.empty() ? QString() : Qs(ambiente_->C.Files.HostPath(inizio));
  QString patterns = Qs(filtro.Modelli).replace(QLatin1Char(';'), QLatin1Char(' '));
  const QString kind = Qs(filtro.Testo).section(QLatin1Char('('), 0, 0).trimmed();
  QFileDialog box(nullptr, Qs(titolo), start,
                  kind + QStringLiteral(" (") + patterns + QLatin1Char(')'));
  box.setFileMode(QFileDialog::ExistingFile);
  return Scegli(box);
}

std::string FinestreQt::Scegli(QFileDialog& box) {
  const PlainPointer pointer;
  box.resize(860, 540);                  // its columns have room
  box.setOption(QFileDialog::ReadOnly);  // something is chosen, nothing renamed or deleted
  QByteArray columns;
  QTimer::singleShot(0, &box, [&] { columns = AllargaColonne(box); });
  MettiDavanti(box, FinestraSotto());
  const bool chosen = box.exec() == QDialog::Accepted;
  // It keeps its columns for all programs of the user, which are to find them as they were.
  if (!columns.isEmpty()) ColonneDi(box)->restoreState(columns);
  if (!chosen || box.selectedFiles().isEmpty()) return {};
  const auto path = ambiente_->C.Files.SystemPath(Std(box.selectedFiles().first()));
  if (path) return path.Value();
  DiciCartellaInadatta();
  return {};
}

void FinestreQt::DiciCartellaInadatta() {
  Contesto& context = ambiente_->C;
  MostraMessaggio({TestoLingua(context, "0130230"), TestoLingua(context, "0130231"), Icona::Avviso,
                   Pulsanti::Ok, Risposta::Ok});
}

}  // namespace kvr5
