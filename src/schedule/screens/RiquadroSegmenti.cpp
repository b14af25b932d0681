#include "schedule/screens/RiquadroSegmenti.h"

#include <QVBoxLayout>

#include "core/Lingua.h"
#include "core/screens/Mnemonici.h"
#include "core/screens/Pagina.h"
#include "core/screens/Tema.h"
#include "core/screens/Testo.h"

namespace kvr5 {
RiquadroSegmenti::RiquadroSegmenti(Contesto& contesto, ModelloSegmenti& modello, QWidget* padre)
    : Riquadro("fraSegmenti", {}, -1, padre), contesto_(contesto) {
  lblVociInElenco = NuovaEtichetta("lblVociInElenco", QStringLiteral("Voci in elenco"), -1, this);
  Veste(*lblVociInElenco, Carattere::Riquadro);
  Testata()->insertWidget(0, lblVociInElenco);
  grdSegmenti = new GrigliaSegmenti(contesto, modello, this);
  Corpo()->addWidget(grdSegmenti, 1);
  lblAvvisi = new EtichettaAvviso("lblAvvisi", {}, Carattere::Suggerimento, this);
  lblAvvisi->setWordWrap(true);
  lblAvvisi->hide();
  Corpo()->addWidget(lblAvvisi);
  picNomiCopie = new Coppia("picNomiCopie", "lblNomiCopie", {}, "duplica", -1, this);
  picCopiaRipetuti = new Coppia("picCopiaRipetuti", "lblCopiaRipetuti", {}, "duplica", -1, this);
  for (Coppia* each : {picNomiCopie, picCopiaRipetuti}) {
    ImpostaTurno(*each, TurnoLettera::VieneEVa);
    each->hide();
    Corpo()->addWidget(each, 0, Qt::AlignLeft);
  }
  const auto button = [this](const char* pic, const char* lbl, const char* caption,
                             const char* icon, int tag) {
    return new Coppia(pic, lbl, QLatin1String(caption), icon, tag, this);
  };
  picAggiungiSegmento = button("picAggiungiSegmento", "lblAggiungi", "Add", "nuovo", 8);
  picCopiaSegmento = button("picCopiaSegmento", "lblDuplicaSegmento", "Copy", "duplica", 10);
  picRimuoviSegmento = button("picRimuoviSegmento", "lblRimuovi", "Remove", "rimuovi", 9);
  lblAggiungi = picAggiungiSegmento->Etichetta();
  lblDuplicaSegmento = picCopiaSegmento->Etichetta();
  lblRimuovi = picRimuoviSegmento->Etichetta();
  // Two lines of buttons: side by side the three would take more room than a small screen has.
  Testata()->addWidget(picAggiungiSegmento);
  Corpo()->addLayout(Riga({picCopiaSegmento, nullptr, picRimuoviSegmento}));
  mnuDuplicaRiga = mnuOpzioni.addAction(QStringLiteral("Duplica"));
  mnuDuplicaRiga->setObjectName(QStringLiteral("mnuDuplicaRiga"));
  connect(grdSegmenti, &QWidget::customContextMenuRequested, this, [this](const QPoint& at) {
    if (grdSegmenti->indexAt(at).isValid()) {
      mnuOpzioni.popup(grdSegmenti->viewport()->mapToGlobal(at));
    }
  });
}

void RiquadroSegmenti::MostraAvvisi(const QString& testo, bool senzaNome, bool ripetuti) {
  constexpr int kWord = 240;  // pixels: the name of a file may have no blank to break at
  lblAvvisi->setText(Spezzabile(testo, lblAvvisi->fontMetrics(), kWord));
  lblAvvisi->setVisible(!testo.isEmpty());
  // The keyboard would come to the next button, for a second press.
  const bool leaves =
      (picNomiCopie->hasFocus() && !senzaNome) || (picCopiaRipetuti->hasFocus() && !ripetuti);
  if (leaves) grdSegmenti->setFocus(Qt::OtherFocusReason);
  picNomiCopie->setVisible(senzaNome);
  picCopiaRipetuti->setVisible(ripetuti);
}

void RiquadroSegmenti::Localizza() {
  const auto text = [this](const char* key, const char* caption = "") {
    return Qs(TestoLinguaO(contesto_, key, caption));
  };
  mnuDuplicaRiga->setText(text("0140038", "Duplica"));
  grdSegmenti->setAccessibleName(text("0140024"));
  grdSegmenti->ImpostaVuota(text("0140123"));
  picNomiCopie->ImpostaScritta(text("0140131", "Give copies their names"));
  picNomiCopie->setToolTip(text("0140133"));
  picCopiaRipetuti->ImpostaScritta(text("0140135", "Make copies for the others"));
  picCopiaRipetuti->setToolTip(text("0140136"));
  picAggiungiSegmento->setToolTip(text("0140109"));
  SpiegaPulsanti(picRimuoviSegmento->isEnabled());
}

void RiquadroSegmenti::SpiegaPulsanti(bool segmento) {
  const auto text = [&](const char* key) {
    return Qs(TestoLingua(contesto_, segmento ? key : "0140123"));
  };
  picCopiaSegmento->setToolTip(text("0140110"));
  picRimuoviSegmento->setToolTip(text("0140111"));
}

}  // namespace kvr5
