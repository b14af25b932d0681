#include "playerconfig/screens/frmTempiFade.h"

#include <QGridLayout>
#include <QLineEdit>
#include <QSlider>
#include <QToolButton>
#include <QVBoxLayout>
#include <memory>

#include "core/Lingua.h"
#include "core/screens/Avvisi.h"
#include "core/screens/LocalizzaForm.h"
#include "core/screens/Pagina.h"
#include "core/screens/Riquadro.h"
#include "core/screens/Tema.h"
#include "core/screens/Testo.h"
#include "playerconfig/Scale.h"
#include "playerconfig/screens/Lettera.h"

namespace kvr5 {
namespace {

constexpr std::int16_t kFormTempiFade = 17;
constexpr int kTagSeconds = 12;
constexpr int kTagLevels = 20;
constexpr int kTagTimes = 21;

/// A level: its slider, what it is, and the names of its labels.
struct Level {
  NomiCursore Names;
  const char* Words;
  const char* Key;
  int Tag;
};

constexpr std::array<Level, 3> kLevels{
    Level{{"LMP3", "sliLMP3", "lblLMP3_DB", TestoScalaPercento}, "lblLMP3", "lbl_LMP3", 3},
    Level{{"LLIN", "sliLLIN", "lblLLIN_DB", TestoScalaVolume}, "lblLLIN", "lbl_LLIN", 4},
    Level{{"LLI2", "sliLLI2", "lblLLI2_DB", TestoScalaVolume}, "lblLLI2", "lbl_LLI2", 6}};

/// A time: the names of its controls, what it is, and its letter on the drawing.
struct Time {
  const char *Key, *Field, *Arrows, *KeyLabel, *WordsLabel, *Words;
  int Tag;
  char Letter;
};

constexpr std::array<Time, 3> kTimes{
    Time{"TFOU", "txtTFOU", "u_dTFOU", "lbl_TFOU", "lblTFOU",
         "Tempo dissolvenza line input prima della riproduzione del file MP3 (spot)", 7, 'B'},
    Time{"TFIN", "txtTFIN", "u_dTFIN", "lbl_TFIN", "lblTFIN",
         "Tempo dissolvenza line input dopo la riproduzione del file MP3 (spot)", 8, 'C'},
    Time{"TADU", "txtTADU", "u_dTADU", "lbl_TADU", "lblTADU",
         "Impostazione tempo anticipo partenza spot prima della fine del brano", 9, 'D'}};

constexpr const char* kReaction =
    "Impostazione tempo reazione controllo automatico volume in uscita";
constexpr int kTagReaction = 19;

QLabel* NewKey(const char* name, const char* key, QWidget* parent) {
  auto* label = NuovaEtichetta(name, QLatin1String(key), -1, parent);
  Veste(*label, Carattere::Suggerimento, Ruolo::Attenuato);
  return label;
}

QLabel* NewWords(const char* name, const char* text, int tag, QWidget* parent) {
  auto* label = TestoLungo(name, QString::fromUtf8(text), parent);
  label->setProperty(kTag, tag);
  return label;
}

}  // namespace

frmTempiFade::frmTempiFade(Ambiente& ambiente)
    : SchermoParametri(ambiente, "frmTempiFade", SchermoParametro::Fade, kFormTempiFade) {
  setWindowTitle(QStringLiteral("Fade"));
  resize(860, 640);
  picGrafico = new GraficoFade(this);
  auto* body = new QWidget(this);
  auto* columns = new QHBoxLayout(body);
  columns->setContentsMargins(0, 0, 0, 0);
  columns->setSpacing(spazi::kMedio);
  columns->addWidget(CostruisciLivelli(body), 2);
  columns->addWidget(CostruisciTempi(body), 3);
  CostruisciPagina(picGrafico, body, nullptr);
  OrdineTab(
      {picHelp, sliLMP3, sliLLIN, sliLLI2, txtTFOU, txtTFIN, txtTADU, cmbTAVC, picCancel, picSave});
  sliLMP3->setFocus();
}

QWidget* frmTempiFade::CostruisciLivelli(QWidget* corpo) {
  auto* frame = new Riquadro("fraLivelli", QStringLiteral("Levels"), kTagLevels, corpo);
  frame->Testata()->insertWidget(0, new Lettera(QLatin1Char('A'), frame));
  auto* grid = new QGridLayout();
  grid->setVerticalSpacing(4);
  const std::array<QSlider**, 3> sliders{&sliLMP3, &sliLLIN, &sliLLI2};
  const std::array<QLabel**, 3> values{&lblLMP3_DB, &lblLLIN_DB, &lblLLI2_DB};
  const std::array<QLabel**, 3> words{&lblLMP3, &lblLLIN, &lblLLI2};
  for (std::size_t i = 0; i < kLevels.size(); ++i) {
    const Level& level = kLevels.at(i);
    const Cursore cursor = NuovoCursore(level.Names, frame);
    Lega(cursor);
    *sliders.at(i) = cursor.Slider;
    *values.at(i) = cursor.Valore;
    *words.at(i) = NewWords(level.Words, level.Names.Chiave, level.Tag, frame);
    (*words.at(i))->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    auto* key = NewKey(level.Key, level.Names.Chiave, frame);
    const int column = static_cast<int>(i);
    grid->addWidget(cursor.Slider, 0, column, Qt::AlignHCenter);
    grid->addWidget(cursor.Valore, 1, column, Qt::AlignHCenter);
    grid->addWidget(*words.at(i), 2, column);
    grid->addWidget(key, 3, column, Qt::AlignHCenter);
    grid->setColumnStretch(column, 1);
  }
  grid->setRowStretch(0, 1);
  frame->Corpo()->addLayout(grid, 1);
  return frame;
}

CasellaCifre* frmTempiFade::NuovoTempo(std::size_t posto, QGridLayout& griglia, QWidget* padre) {
  const Time& time = kTimes.at(posto);
  const Parametro& parameter = *TrovaParametro(time.Key);
  auto* box = new CasellaCifre(std::make_unique<CasellaNumero>(std::string(), parameter.Minimo,
                                                               parameter.Massimo, C().Luogo),
                               time.Field, time.Arrows, padre);
  Lega(time.Key, *box);
  tempi_.at(posto) = box;
  auto* seconds = NuovaEtichetta("", QStringLiteral("Sec"), kTagSeconds, padre);
  seconds->setObjectName(QStringLiteral("lblMillisecondi_%1").arg(posto + 1));
  lblMillisecondi.at(posto) = seconds;
  const std::array<QLabel**, 3> words{&lblTFOU, &lblTFIN, &lblTADU};
  const std::array<QLabel**, 3> keys{&lbl_TFOU, &lbl_TFIN, &lbl_TADU};
  *words.at(posto) = NewWords(time.WordsLabel, time.Words, time.Tag, padre);
  *keys.at(posto) = NewKey(time.KeyLabel, time.Key, padre);
  const int row = static_cast<int>(posto);
  griglia.addWidget(new Lettera(QLatin1Char(time.Letter), padre), row, 0);
  griglia.addWidget(box, row, 1);
  griglia.addWidget(seconds, row, 2);
  griglia.addWidget(*words.at(posto), row, 3);
  griglia.addWidget(*keys.at(posto), row, 4);
  return box;
}

QWidget* frmTempiFade::CostruisciTempi(QWidget* corpo) {
  auto* frame = new Riquadro("fraTempi", QStringLiteral("Times"), kTagTimes, corpo);
  auto* grid = new QGridLayout();
  grid->setHorizontalSpacing(spazi::kStretto);
  grid->setVerticalSpacing(spazi::kStretto);
  grid->setColumnStretch(3, 1);
  const std::array<QLineEdit**, 3> fields{&txtTFOU, &txtTFIN, &txtTADU};
  const std::array<QToolButton**, 3> up{&u_dTFOU_su, &u_dTFIN_su, &u_dTADU_su};
  const std::array<QToolButton**, 3> down{&u_dTFOU_giu, &u_dTFIN_giu, &u_dTADU_giu};
  for (std::size_t i = 0; i < kTimes.size(); ++i) {
    const CasellaCifre* box = NuovoTempo(i, *grid, frame);
    *fields.at(i) = box->Campo;
    *up.at(i) = box->Su;
    *down.at(i) = box->Giu;
  }
  cmbTAVC = NuovoElenco("cmbTAVC", "TAVC", frame);
  lblTAVC = NewWords("lblTAVC", kReaction, kTagReaction, frame);
  lbl_TAVC = NewKey("lbl_TAVC", "TAVC", frame);
  constexpr int kRow = 3;
  grid->addWidget(lblTAVC, kRow, 0, 1, 4);
  grid->addWidget(lbl_TAVC, kRow, 4);
  frame->Corpo()->addLayout(grid);
  frame->Corpo()->addWidget(cmbTAVC, 0, Qt::AlignLeft);
  frame->Corpo()->addStretch();
  return frame;
}

void frmTempiFade::AlCaricamento() {
  C().Messaggi.ImpostaPuntatore(Puntatore::Attesa);
  Localizza();
  picGrafico->setAccessibleName(Qs(TestoLingua(C(), "0130276")));
  for (std::size_t i = 0; i < tempi_.size(); ++i) {
    const std::array<QLabel*, 3> words{lblTFOU, lblTFIN, lblTADU};
    // With the letter that the words of the drawing speak of, and the unit.
    tempi_.at(i)->ImpostaNome(QString(QLatin1Char(kTimes.at(i).Letter)) + QStringLiteral(": ") +
                              words.at(i)->text() + QStringLiteral(", ") +
                              lblMillisecondi.at(i)->text());
  }
  cmbTAVC->setAccessibleName(lblTAVC->text());
  const std::array<std::pair<QSlider*, QLabel*>, 3> sliders{
      {{sliLMP3, lblLMP3}, {sliLLIN, lblLLIN}, {sliLLI2, lblLLI2}}};
  for (const auto& [slider, words] : sliders) {
    slider->setAccessibleName(QStringLiteral("A: ") + words->text());
    slider->setToolTip(words->text());
  }
  Leggi();
  C().Messaggi.ImpostaPuntatore(Puntatore::Normale);
}

}  // namespace kvr5
