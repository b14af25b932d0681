#include "core/screens/frmSalva.h"

#include <QHBoxLayout>
#include <QVBoxLayout>
#include <QVariant>

#include "core/screens/Avvisi.h"
#include "core/screens/LocalizzaForm.h"
#include "core/screens/Pagina.h"
#include "core/screens/SpuntaAlClic.h"
#include "core/screens/Tema.h"

namespace kvr5 {
namespace {

constexpr std::int16_t kFormSalva = 12;

}  // namespace

frmSalva::frmSalva(Ambiente& ambiente) : Form(ambiente, "frmSalva") {
  setWindowTitle(QStringLiteral("  Save"));
  resize(560, 240);
  auto* page = NuovaPagina(*this);
  lblSalvaprogetto = TestoLungo("lblSalvaprogetto", QStringLiteral("SavePrj"), this);
  lblSalvaprogetto->setProperty(kTag, 0);
  Veste(*lblSalvaprogetto, Carattere::Schermata);
  picHelp = NuovoAiuto(this);
  page->addLayout(Riga({lblSalvaprogetto, nullptr, picHelp}));

  chkSaveMp3Inputs = new QCheckBox(this);
  chkSaveMp3Inputs->setObjectName(QStringLiteral("chkSaveMp3Inputs"));
  lblSaveMp3Inputs = TestoLungo("lblSaveMp3Inputs", QStringLiteral("Save Mp3 Inputs"), this);
  lblSaveMp3Inputs->setProperty(kTag, 1);
  SpuntaAlClic(*lblSaveMp3Inputs, *chkSaveMp3Inputs);
  auto* choice = new QHBoxLayout();
  choice->addWidget(chkSaveMp3Inputs);
  choice->addWidget(lblSaveMp3Inputs, 1);
  page->addLayout(choice);
  lblNota = TestoLungo("lblNota", QStringLiteral("Note"), this);
  lblNota->setProperty(kTag, 2);
  lblNota->setMinimumWidth(420);
  Veste(*lblNota, Carattere::Corpo, Ruolo::Attenuato);
  page->addWidget(lblNota);
  page->addStretch();

  picGoBack = new Coppia("picGoBack", "lblIndietro", QStringLiteral("Cancel"), "indietro", 3, this);
  picSalva = new Coppia("picSalva", "lblSalva", QStringLiteral("Save"), "salva", 4, this);
  picSalva->ImpostaGenere(Coppia::Genere::Primario);
  lblIndietro = picGoBack->Etichetta();
  lblSalva = picSalva->Etichetta();
  page->addLayout(Riga({picGoBack, nullptr, picSalva}));

  OrdineTab({picHelp, chkSaveMp3Inputs, picGoBack, picSalva});
  chkSaveMp3Inputs->setFocus();
  connect(picGoBack, &QAbstractButton::clicked, this, [this] { Finisci(true); });
  connect(picSalva, &QAbstractButton::clicked, this, [this] {
    C().Stato.SalvaMp3Ingressi = chkSaveMp3Inputs->isChecked();
    Finisci(false);
  });
  connect(picHelp, &QAbstractButton::clicked, this, [this] { Aiuto(); });
  SuInvio(*picSalva);
  SuTasto(Qt::Key_Escape, [this] { Finisci(true); });
  SuTasto(Qt::Key_F1, [this] { Aiuto(); });
  SuSalva(*picSalva);
}

void frmSalva::AlCaricamento() {
  C().Messaggi.ImpostaPuntatore(Puntatore::Attesa);
  LocalizzaForm(C(), kFormSalva, *this);
  setWindowTitle(QStringLiteral("  ") + windowTitle());
  chkSaveMp3Inputs->setChecked(C().Stato.SalvaMp3Ingressi);
  chkSaveMp3Inputs->setAccessibleName(lblSaveMp3Inputs->text());
  C().Messaggi.ImpostaPuntatore(Puntatore::Normale);
}

void frmSalva::Finisci(bool annulla) {
  if (AnnullaSalvataggio) AnnullaSalvataggio(annulla);
  Scarica();
}

bool frmSalva::PuoChiudere(Causa causa) {
  // The window's own button is the cancel: the save must not go on.
  if (causa == Causa::Utente && AnnullaSalvataggio) AnnullaSalvataggio(true);
  return true;
}

void frmSalva::AlloScarico() {
  hide();
  ambiente_.Schermi.Mostra(FormChiamante);
}

}  // namespace kvr5
