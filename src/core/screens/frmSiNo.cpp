#include "core/screens/frmSiNo.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QVBoxLayout>

#include "core/Lingua.h"
#include "core/screens/Avvisi.h"
#include "core/screens/Icona.h"
#include "core/screens/Tema.h"
#include "core/screens/Testo.h"

namespace kvr5 {
namespace {

constexpr int kNoteWidth = 400;  // pixels that a line of words has at least

/// The picture of a button that has a third name for it.
QWidget* PictureOf(const char* name, Coppia* button) {
  auto* picture = new QWidget(button);
  picture->setObjectName(QLatin1String(name));
  picture->setAttribute(Qt::WA_TransparentForMouseEvents);
  picture->setGeometry(0, 0, 36, 44);
  return picture;
}

}  // namespace

frmSiNo::frmSiNo(Ambiente& ambiente) : Form(ambiente, "frmSiNo") {
  setWindowTitle(QStringLiteral("Question"));
  auto* page = new QVBoxLayout(this);
  page->setContentsMargins(spazi::kLargo, spazi::kLargo, spazi::kLargo, spazi::kMedio);
  page->setSpacing(spazi::kLargo);
  page->setSizeConstraint(QLayout::SetMinimumSize);
  auto* top = new QHBoxLayout();
  top->setSpacing(spazi::kMedio);
  segno_ = SegnoDi("domanda", Tema::Corrente().Fuoco, 32, this);
  top->addWidget(segno_, 0, Qt::AlignTop);
  lblNota = TestoLungo("lblNota", QStringLiteral("Nota"), this);
  lblNota->setMinimumWidth(kNoteWidth);
  top->addWidget(lblNota, 1);
  page->addLayout(top, 1);

  cmdNo = new Coppia("cmdNo", "lblNo", QStringLiteral("No"), "rimuovi", -1, this);
  cmdSi = new Coppia("cmdSi", "lblYes", QStringLiteral("Yes"), "fatto", -1, this);
  cmdSi->ImpostaGenere(Coppia::Genere::Primario);
  lblNo = cmdNo->Etichetta();
  lblYes = cmdSi->Etichetta();
  picCancel = PictureOf("picCancel", cmdNo);
  picSi = PictureOf("picSi", cmdSi);
  auto* line = new QHBoxLayout();
  line->addStretch();
  line->addWidget(cmdNo);
  line->addWidget(cmdSi);
  line->addStretch();
  page->addLayout(line);

  connect(cmdSi, &QAbstractButton::clicked, this, [this] { Rispondi(1); });
  connect(cmdNo, &QAbstractButton::clicked, this, [this] { Rispondi(2); });
  for (QWidget* each :
       {static_cast<QWidget*>(this), static_cast<QWidget*>(cmdSi), static_cast<QWidget*>(cmdNo)}) {
    each->installEventFilter(this);
  }
  SuTasto(Qt::Key_Escape, [this] { close(); });
}

void frmSiNo::AlCaricamento() {
  C().Messaggi.ImpostaPuntatore(Puntatore::Attesa);
  cmdSi->ImpostaScritta(Qs(TestoLinguaO(C(), "0050022", "Yes")));
  cmdNo->ImpostaScritta(Qs(TestoLinguaO(C(), "0050021", "No")));
  C().Messaggi.ImpostaPuntatore(Puntatore::Normale);
  cmdSi->setFocus();
}

void frmSiNo::showEvent(QShowEvent* event) {
  MostraIntero(*this);
  Form::showEvent(event);
}

bool frmSiNo::eventFilter(QObject* oggetto, QEvent* evento) {
  if (Form::eventFilter(oggetto, evento)) return true;  // it came when the box had gone
  if (evento->type() != QEvent::KeyPress) return false;
  const auto* press = static_cast<QKeyEvent*>(evento);
  if (press->matches(QKeySequence::Copy)) {
    QGuiApplication::clipboard()->setText(windowTitle() + "\n\n" + nota_);
    return true;
  }
  if (press->key() != Qt::Key_Return && press->key() != Qt::Key_Enter) return false;
  // Swallowed, whatever is held down with it: a button would take it for a click. Only a notice,
  // which has one button, can be sent away by it.
  evento->accept();
  if (cmdNo->isHidden() && !press->isAutoRepeat()) cmdSi->click();
  return true;
}

void frmSiNo::MostraSoloOk(const std::string& testo) {
  Carica();
  cmdNo->hide();
  cmdSi->ImpostaScritta(testo.empty() ? QStringLiteral("OK") : Qs(testo));
  segno_->setPixmap(DisegnoDi(QStringLiteral("informazione"), segno_->size(),
                              Tema::Corrente().Fuoco, devicePixelRatioF()));
}

void frmSiNo::MostraPericolo() {
  Carica();
  cmdSi->ImpostaGenere(Coppia::Genere::Pericolo);
  cmdNo->ImpostaGenere(Coppia::Genere::Primario);
  cmdNo->setFocus();
}

void frmSiNo::ImpostaNota(const QString& testo) {
  constexpr int kPlate = 2 * spazi::kStretto;  // of a coloured one, on both sides
  nota_ = testo;
  lblNota->setText(Spezzabile(testo, lblNota->fontMetrics(), kNoteWidth - kPlate));
}

void frmSiNo::ColoraNota(std::uint32_t colore) {
  Carica();
  SuTarga(*lblNota, colore);
}

void frmSiNo::Rispondi(std::uint8_t risposta) {
  if (!Caricata()) return;  // it was answered
  C().Stato.RispostaSiNo = risposta;
  Scarica();
}

}  // namespace kvr5
