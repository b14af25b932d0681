#include "flashcard/screens/frmCopiaManuale.h"

#include <QVBoxLayout>

#include "core/Lingua.h"
#include "core/Parole.h"
#include "core/ParoleCopia.h"
#include "core/screens/Pagina.h"
#include "core/screens/PrimoPiano.h"
#include "core/screens/Testo.h"

namespace kvr5 {

frmCopiaManuale::frmCopiaManuale(Ambiente& ambiente) : Form(ambiente, "frmCopiaManuale") {
  setWindowFlag(Qt::Dialog);
  resize(600, 84);
  setMinimumWidth(440);
  auto* page = NuovaPagina(*this);
  lblScheda = new EtichettaElisa("lblScheda", this);
  picTorna = new Coppia("picTorna", "lblTorna", QStringLiteral("Back"), "indietro", -1, this);
  picTorna->ImpostaGenere(Coppia::Genere::Primario);
  lblTorna = picTorna->Etichetta();
  auto* line = Riga({lblScheda, picTorna});
  line->setStretch(0, 1);
  page->addLayout(line);
  connect(picTorna, &QAbstractButton::clicked, this, [this] { Scarica(); });
  SuInvio(*picTorna);
  SuTasto(Qt::Key_Escape, [this] { Scarica(); });
}

void frmCopiaManuale::AlCaricamento() {
  setWindowTitle(Qs(TestoLinguaO(C(), "0130304", "Copy by hand")));
  lblScheda->setText(Qs(ConValori(TestoLinguaO(C(), "0130305", "Copy your files to %1."),
                                  {C().Stato.PercorsoMemoryCard + ", " +
                                   PercorsoPerPersone(C(), C().Stato.PercorsoMemoryCard)})));
  picTorna->ImpostaScritta(Qs(TestoLinguaO(C(), "0130306", "Back to the project")));
  ImpostaPrimoPiano(*this, true);
  picTorna->setFocus();
}

void frmCopiaManuale::AlloScarico() {
  hide();
  ImpostaPrimoPiano(*this, false);
  ambiente_.Schermi.Mostra(FormChiamante);
}

}  // namespace kvr5
