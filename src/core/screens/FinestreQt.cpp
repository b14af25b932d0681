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

/// How wide the columns of names and dates are in the toolkit's own chooser.
void ImpostaColonne(const QFileDialog& box, QHeaderView::ResizeMode nomi,
                    QHeaderView::ResizeMode date) {
  const auto* details = box.findChild<QTreeView*>(QStringLiteral("treeView"));
  if (details == nullptr) return;
  constexpr int kName = 0;
  constexpr int kDate = 3;
  details->header()->setSectionResizeMode(kName, nomi);
  details->header()->setSectionResizeMode(kDate, date);
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
  if (box.SoloOk) form.MostraSoloOk(*box.SoloOk);
  state.RispostaSiNo = 0;
  form.MostraModale();
  return state.RispostaSiNo;
}

std::string FinestreQt::SfogliaCartella(const std::string& titolo, const std::string& inizio) {
  const PlainPointer pointer;
  const FileSystem& files = ambiente_->C.Files;
  const QString start = inizio.empty() ? QString() : Qs(files.HostPath(inizio));
  QFileDialog box(nullptr, Qs(titolo), start);
  box.resize(860, 540);  // its columns have room
  box.setFileMode(QFileDialog::Directory);
  box.setOption(QFileDialog::ShowDirsOnly);
  box.setOption(QFileDialog::ReadOnly);  // a folder is chosen, none renamed or deleted
  // Where the desktop has no chooser of its own the toolkit's comes up, with its dates cut.
  QTimer::singleShot(0, &box, [&box] {
    ImpostaColonne(box, QHeaderView::Stretch, QHeaderView::ResizeToContents);
  });
  MettiDavanti(box, FinestraSotto());
  const bool chosen = box.exec() == QDialog::Accepted;
  // It keeps its columns for all programs of the user, which are to find them as they were.
  ImpostaColonne(box, QHeaderView::Interactive, QHeaderView::Interactive);
  if (!chosen || box.selectedFiles().isEmpty()) return {};
  const auto path = files.SystemPath(Std(box.selectedFiles().first()));
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
