#include "core/screens/RiquadroMessaggio.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QVBoxLayout>
#include <vector>

#include "core/Lingua.h"
#include "core/screens/Avvisi.h"
#include "core/screens/Coppia.h"
#include "core/screens/Tema.h"
#include "core/screens/Testo.h"

namespace kvr5 {
namespace {

constexpr int kWords = 380;  // pixels that a line of words has at least

struct Sign {
  const char* Icon;
  QColor Colour;
};

Sign SignOf(Icona icona) {
  const Tema& tema = Tema::Corrente();
  switch (icona) {
    case Icona::Avviso:
      return {"avviso", tema.Avviso};
    case Icona::Domanda:
      return {"domanda", tema.Fuoco};
    case Icona::Informazione:
    case Icona::Nessuna:
      break;
  }
  return {"informazione", tema.Fuoco};
}

struct Button {
  Risposta Answer;
  const char* Name;
  const char* Icon;
  const char* Key;
  const char* Caption;
};

std::vector<Button> ButtonsOf(Pulsanti pulsanti) {
  const Button yes{Risposta::Si, "cmdYes", "fatto", "0130090", "Yes"};
  const Button no{Risposta::No, "cmdNo", "rimuovi", "0130091", "No"};
  const Button cancel{Risposta::Annulla, "cmdCancel", "indietro", "0130092", "Cancel"};
  switch (pulsanti) {
    case Pulsanti::SiNo:
      return {no, yes};
    case Pulsanti::SiNoAnnulla:
      return {cancel, no, yes};
    case Pulsanti::Ok:
      break;
  }
  return {{Risposta::Ok, "cmdOk", "fatto", "0130093", "OK"}};
}

Risposta Closed(Pulsanti pulsanti) {
  if (pulsanti == Pulsanti::Ok) return Risposta::Ok;
  return pulsanti == Pulsanti::SiNo ? Risposta::No : Risposta::Annulla;
}

}  // namespace

RiquadroMessaggio::RiquadroMessaggio(Contesto& contesto, const Messaggio& messaggio)
    : esito_(Closed(messaggio.Scelte)) {
  setObjectName(QStringLiteral("RiquadroMessaggio"));
  setWindowTitle(Qs(messaggio.Titolo));
  auto* page = new QVBoxLayout(this);
  page->setContentsMargins(spazi::kLargo, spazi::kLargo, spazi::kLargo, spazi::kMedio);
  page->setSpacing(spazi::kMedio);
  auto* top = new QHBoxLayout();
  top->setSpacing(spazi::kMedio);
  const Sign sign = SignOf(messaggio.Segno);
  top->addWidget(SegnoDi(sign.Icon, sign.Colour, 32, this), 0, Qt::AlignTop);
  auto* words = new QVBoxLayout();
  auto* title = TestoLungo("lblTitolo", {}, this);
  Veste(*title, Carattere::Schermata);
  title->setText(Spezzabile(Qs(messaggio.Titolo), title->fontMetrics(), kWords));
  title->setVisible(!messaggio.Titolo.empty());
  words->addWidget(title);
  auto* text = TestoLungo("lblTesto", {}, this);
  text->setText(Spezzabile(QsRighe(messaggio.Testo), text->fontMetrics(), kWords));
  text->setMinimumWidth(kWords);
  words->addWidget(text);
  top->addLayout(words, 1);
  page->addLayout(top, 1);
  AggiungiPulsanti(contesto, messaggio);
  setAccessibleName(Qs(messaggio.Titolo));
  setAccessibleDescription(QsRighe(messaggio.Testo));
  setMaximumWidth(640);
}

void RiquadroMessaggio::keyPressEvent(QKeyEvent* event) {
  if (!event->matches(QKeySequence::Copy)) return QDialog::keyPressEvent(event);
  // The words as they came in, without the breaks that make them fit.
  QGuiApplication::clipboard()->setText(accessibleName() + "\n\n" + accessibleDescription());
}

void RiquadroMessaggio::showEvent(QShowEvent* event) {
  MostraIntero(*this);
  setFixedSize(size());  // there is nothing in it that more room would show
  QDialog::showEvent(event);
}

void RiquadroMessaggio::AggiungiPulsanti(Contesto& contesto, const Messaggio& messaggio) {
  auto* line = new QHBoxLayout();
  line->setSpacing(spazi::kStretto);
  line->addStretch();
  const auto buttons = ButtonsOf(messaggio.Scelte);
  // A box of one button has that as its default, whatever the caller says.
  const Risposta standard = buttons.size() == 1 ? buttons[0].Answer : messaggio.Predefinita;
  for (const auto& button : buttons) {
    auto* pair = new Coppia(button.Name, "lblPulsante", "", button.Icon, -1, this);
    pair->ImpostaScritta(Qs(TestoLinguaO(contesto, button.Key, button.Caption)));
    if (button.Answer == standard) {
      pair->ImpostaGenere(Coppia::Genere::Primario);
      pair->setFocus();
    }
    connect(pair, &QAbstractButton::clicked, this, [this, answer = button.Answer] {
      esito_ = answer;
      accept();
    });
    line->addWidget(pair);
  }
  static_cast<QVBoxLayout*>(layout())->addLayout(line);
}

}  // namespace kvr5
