#include "playerconfig/screens/CollegamentiSeriali.h"

#include <QVBoxLayout>

#include "core/screens/Pagina.h"

namespace kvr5 {
namespace {

constexpr int kTag232 = 103;
constexpr int kTagSet = 104;
constexpr int kTag485 = 105;
constexpr int kTagLink = 106;
constexpr int kTagFrameByHand = 107;
constexpr int kTagByHand = 108;
constexpr int kOfTheTwin = -1;  // a caption that follows another control's

/// What one frame of a link holds.
struct Link {
  Riquadro* Frame;
  QLabel* Name;
  QLabel* Words;
  Coppia* Button;
};

struct LinkNames {
  const char *Frame, *Name, *Words, *Button, *Caption;
};

Link NewLink(const LinkNames& names, const char* text, int tag, bool twin, QWidget* parent) {
  const QString caption = QLatin1String(text);
  auto* frame = new Riquadro(names.Frame, caption, twin ? kOfTheTwin : tag, parent);
  auto* name = NuovaEtichetta(names.Name, caption, twin ? kOfTheTwin : tag, frame);
  auto* words = NuovaEtichetta(names.Words, caption, twin ? kOfTheTwin : kTagLink, frame);
  auto* button = new Coppia(names.Button, names.Caption, caption, "opzioni",
                            twin ? kOfTheTwin : kTagSet, frame);
  for (QWidget* each :
       {static_cast<QWidget*>(name), static_cast<QWidget*>(words), static_cast<QWidget*>(button)}) {
    frame->Corpo()->addWidget(each);
  }
  frame->hide();
  return {frame, name, words, button};
}

}  // namespace

CollegamentiSeriali::CollegamentiSeriali(QWidget* padre) : QWidget(padre) {
  const auto rs232 =
      NewLink({"fra232", "lblRS232", "lblConfig232", "cmdConfigure232", "lblConfigure232"}, "RS232",
              kTag232, false, this);
  const auto rs232bis = NewLink(
      {"fra232bis", "lblRS232bis", "lblConfig232bis", "cmdConfigure232bis", "lblConfigure232bis"},
      "RS232", kTag232, true, this);
  const auto rs485 =
      NewLink({"fra485", "lbl485", "lblConfigPorta485", "picConfig485", "lblConfig485"}, "485",
              kTag485, false, this);
  const auto rs485bis = NewLink(
      {"fra485bis", "lbl485bis", "lblConfigPorta485bis", "picConfig485bis", "lblConfig485bis"},
      "485", kTag485, true, this);
  fra232 = rs232.Frame;
  fra232bis = rs232bis.Frame;
  fra485 = rs485.Frame;
  fra485bis = rs485bis.Frame;
  lblRS232 = rs232.Name;
  lblRS232bis = rs232bis.Name;
  lblConfig232 = rs232.Words;
  lblConfig232bis = rs232bis.Words;
  lbl485 = rs485.Name;
  lbl485bis = rs485bis.Name;
  lblConfigPorta485 = rs485.Words;
  lblConfigPorta485bis = rs485bis.Words;
  cmdConfigure232 = rs232.Button;
  cmdConfigure232bis = rs232bis.Button;
  picConfig485 = rs485.Button;
  picConfig485bis = rs485bis.Button;
  lblConfigure232 = cmdConfigure232->Etichetta();
  lblConfigure232bis = cmdConfigure232bis->Etichetta();
  lblConfig485 = picConfig485->Etichetta();
  lblConfig485bis = picConfig485bis->Etichetta();
  fraCopiaFilesFlash =
      new Riquadro("fraCopiaFilesFlash", QStringLiteral("Manual File Copy"), kTagFrameByHand, this);
  cmdCopiaFileManuale = new Coppia("cmdCopiaFileManuale", "lblManualFileCopy",
                                   QStringLiteral("Manually copy files to flash"), "duplica",
                                   kTagByHand, fraCopiaFilesFlash);
  fraCopiaFilesFlash->Corpo()->addWidget(cmdCopiaFileManuale);
  fraCopiaFilesFlash->hide();
  hide();
}

void CollegamentiSeriali::SegueScritte() {
  fra232bis->ImpostaTitolo(fra232->Titolo());
  fra485bis->ImpostaTitolo(fra485->Titolo());
  lblRS232bis->setText(lblRS232->text());
  lblConfig232bis->setText(lblConfig232->text());
  lbl485bis->setText(lbl485->text());
  lblConfigPorta485bis->setText(lblConfigPorta485->text());
  cmdConfigure232bis->ImpostaScritta(lblConfigure232->text());
  picConfig485bis->ImpostaScritta(lblConfig485->text());
}

}  // namespace kvr5
