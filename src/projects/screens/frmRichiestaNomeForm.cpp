#include "projects/screens/frmRichiestaNomeForm.h"

#include <QVBoxLayout>

#include "core/Aiuti.h"
#include "core/Lingua.h"
#include "core/screens/Avvisi.h"
#include "core/screens/EtichettaElisa.h"
#include "core/screens/LocalizzaForm.h"
#include "core/screens/Pagina.h"
#include "core/screens/Tema.h"
#include "core/screens/Testo.h"
#include "projects/NuovoProgetto.h"
#include "projects/screens/NotaNome.h"

namespace kvr5 {
namespace {

constexpr std::int16_t kFormRichiestaNome = 3;

}  // namespace

frmRichiestaNomeForm::frmRichiestaNomeForm(Ambiente& ambiente)
    : Form(ambiente, "frmRichiestaNomeForm") {
  resize(640, 280);
  Costruisci();
  Collega();
}

void frmRichiestaNomeForm::Costruisci() {
  auto* page = NuovaPagina(*this);
  lblDigitareNomeProgetto =
      NuovaEtichetta("lblDigitareNomeProgetto", QStringLiteral("Write Project Name"), 1, this);
  Veste(*lblDigitareNomeProgetto, Carattere::Schermata);
  picHelp = NuovoAiuto(this);
  page->addLayout(Riga({lblDigitareNomeProgetto, nullptr, picHelp}));
  txtNomeProgetto = new QLineEdit(this);
  txtNomeProgetto->setObjectName(QStringLiteral("txtNomeProgetto"));
  lblDigitareNomeProgetto->setBuddy(txtNomeProgetto);
  page->addWidget(txtNomeProgetto);
  lblNota = new EtichettaAvviso("lblNota", QStringLiteral("Note"), Carattere::Riquadro, this);
  lblNota->setWordWrap(true);
  page->addWidget(lblNota);
  lblCartella = new EtichettaElisa("lblCartella", this, Qt::ElideMiddle);  // however long a name
  page->addWidget(lblCartella);
  page->addStretch(1);
  picGoBack = new Coppia("picGoBack", "lblIndietro", QStringLiteral("back"), "indietro", 4, this);
  picGoOn = new Coppia("picGoOn", "lblOn", QStringLiteral("on"), "fatto", 3, this);
  picGoOn->ImpostaGenere(Coppia::Genere::Primario);
  lblIndietro = picGoBack->Etichetta();
  lblOn = picGoOn->Etichetta();
  page->addLayout(Riga({picGoBack, nullptr, picGoOn}));
  OrdineTab({picHelp, txtNomeProgetto, picGoBack, picGoOn});
}

void frmRichiestaNomeForm::Collega() {
  connect(txtNomeProgetto, &QLineEdit::textChanged, this, [this] { CambiaNome(); });
  connect(txtNomeProgetto, &QLineEdit::returnPressed, this, [this] {
    if (!Rifila(Std(txtNomeProgetto->text())).empty()) picGoOn->click();
  });
  connect(picGoOn, &QAbstractButton::clicked, this, [this] { Avanti(); });
  connect(picGoBack, &QAbstractButton::clicked, this, [this] { Scarica(); });
  connect(picHelp, &QAbstractButton::clicked, this, [this] { Aiuto(); });
  SuTasto(Qt::Key_Escape, [this] { picGoBack->click(); });
  SuTasto(Qt::Key_F1, [this] { Aiuto(); });
}

void frmRichiestaNomeForm::AlCaricamento() {
  C().Messaggi.ImpostaPuntatore(Puntatore::Attesa);
  txtNomeProgetto->setText(Qs(C().Stato.ProjectName));
  LocalizzaForm(C(), kFormRichiestaNome, *this);
  lblNota->setText(QsRighe(NotaCaratteriVietati(C(), "\r\n")));
  txtNomeProgetto->setPlaceholderText(Qs(TestoLingua(C(), "0130106")));
  CambiaNome();
  C().Messaggi.ImpostaPuntatore(Puntatore::Normale);
  txtNomeProgetto->setFocus();
}

void frmRichiestaNomeForm::CambiaNome() {
  ValutaNome(C(), *txtNomeProgetto, *lblNota, *lblCartella);
}

void frmRichiestaNomeForm::Avanti() {
  const EsitoNuovo outcome = PreparaCartella(C(), Std(txtNomeProgetto->text()), SoloNome);
  if (outcome == EsitoNuovo::NomeVuoto) txtNomeProgetto->setFocus();
  if (outcome == EsitoNuovo::Creato) {
    RiempiCartella(C());
    FormSuccessivo = Schermata::Configurazione;
    C().Messaggi.ImpostaPuntatore(Puntatore::Normale);
  }
  dato_ = outcome == EsitoNuovo::Creato || outcome == EsitoNuovo::SoloNome;
  if (dato_) Scarica();
}

bool frmRichiestaNomeForm::PuoChiudere(Causa causa) {
  if (causa == Causa::Utente && FormSuccessivo != Schermata::ElencoProgetti) {
    FormSuccessivo = Schermata::Menu;
  }
  return true;
}

void frmRichiestaNomeForm::AlloScarico() {
  hide();
  // A name that was tried and refused is none that was given.
  if (SoloNome && !dato_) C().Stato.ProjectName.clear();
  C().Messaggi.LasciaCorrere();
  ambiente_.Schermi.Mostra(FormSuccessivo);
  C().Messaggi.LasciaCorrere();
}

}  // namespace kvr5
