#include "schedule/screens/StrisciaSettimana.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

#include "core/Lingua.h"
#include "core/Parole.h"
#include "core/screens/Tema.h"
#include "core/screens/Testo.h"
#include "schedule/screens/ModelloSegmenti.h"

namespace kvr5 {
namespace {

constexpr int kAxis = 16;  // the line of the hours
constexpr int kDays = 7;
constexpr int kHours = 24;
constexpr int kMinutes = 60;

bool IsMarked(const SegmentoVisto& segment) {
  return segment.StessaOra || segment.Spot == 0;
}

}  // namespace

StrisciaSettimana::StrisciaSettimana(Contesto& contesto, QWidget* padre)
    : QWidget(padre), contesto_(contesto) {
  setObjectName(QStringLiteral("picSettimana"));
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  setCursor(Qt::PointingHandCursor);
  setFocusPolicy(Qt::ClickFocus);  // a click leaves a field that is being typed in
}

void StrisciaSettimana::ImpostaForma(Forma forma) {
  forma_ = forma;
  updateGeometry();
  update();
}

void StrisciaSettimana::Mostra(const SettimanaPalinsesto& settimana, std::int16_t giorno,
                               std::int64_t segmento) {
  settimana_ = settimana;
  giorno_ = giorno;
  segmento_ = segmento;
  update();
}

void StrisciaSettimana::Localizza() {
  giorni_.clear();
  constexpr int kShort = 3;
  for (int day = 1; day <= kDays; ++day) {
    giorni_.append(Qs(NomeDelGiorno(contesto_, day)).left(kShort));
  }
  setAccessibleName(Qs(TestoLingua(contesto_, "0140130")));
  updateGeometry();
}

int StrisciaSettimana::Righe() const {
  return forma_ == Forma::Settimana ? kDays : 1;
}

int StrisciaSettimana::Colonne() const {
  return forma_ == Forma::OraSola ? kMinutes : kHours;
}

int StrisciaSettimana::Altezza() const {
  constexpr int kDay = 15;
  constexpr int kAlone = 34;
  return forma_ == Forma::Settimana ? kDay : kAlone;
}

int StrisciaSettimana::Margine() const {
  if (forma_ != Forma::Settimana) return 0;
  int widest = 0;
  const QFontMetrics metrics(FontDi(Carattere::Suggerimento));
  for (const QString& each : giorni_) widest = std::max(widest, metrics.horizontalAdvance(each));
  return widest + spazi::kStretto;
}

QSize StrisciaSettimana::sizeHint() const {
  return {720, kAxis + Righe() * Altezza() + 1};
}

QRect StrisciaSettimana::Campo(int riga, int colonna) const {
  const int room = width() - Margine() - 1;
  const int left = Margine() + room * colonna / Colonne();
  const int right = Margine() + room * (colonna + 1) / Colonne();
  return {left, kAxis + riga * Altezza(), right - left, Altezza()};
}

int StrisciaSettimana::Colonna(const SegmentoVisto& segmento) const {
  if (!segmento.Inizio) return -1;
  return forma_ == Forma::OraSola ? segmento.Inizio->Minuti : segmento.Inizio->Ore;
}

QRect StrisciaSettimana::Campo(const SegmentoVisto& segmento) const {
  const int column = Colonna(segmento);
  return column < 0 ? QRect() : Campo(std::max(0, segmento.Giorno - 1), column);
}

const std::vector<SegmentoVisto>& StrisciaSettimana::Riga(int riga) const {
  return settimana_.Del(static_cast<std::int16_t>(forma_ == Forma::Settimana ? riga + 1 : 0));
}

std::vector<SegmentoVisto> StrisciaSettimana::A(const QPoint& dove) const {
  std::vector<SegmentoVisto> found;
  for (int row = 0; row < Righe(); ++row) {
    for (const SegmentoVisto& each : Riga(row)) {
      if (Campo(each).contains(dove)) found.push_back(each);
    }
  }
  return found;
}

void StrisciaSettimana::DipingiAssi(QPainter& pittore) const {
  const Tema& tema = Tema::Corrente();
  pittore.setFont(FontDi(Carattere::Suggerimento));
  const int step = forma_ == Forma::OraSola ? 5 : 2;
  pittore.setPen(tema.Attenuato);
  for (int column = 0; column < Colonne(); column += step) {
    const QRect field = Campo(0, column);
    pittore.drawText(QRect(field.left(), 0, field.width() * step, kAxis),
                     Qt::AlignLeft | Qt::AlignVCenter,
                     QStringLiteral("%1").arg(column, 2, 10, QLatin1Char('0')));
  }
  for (int row = 0; forma_ == Forma::Settimana && row < kDays; ++row) {
    pittore.setPen(row + 1 == giorno_ ? tema.Testo : tema.Attenuato);
    pittore.drawText(QRect(0, Campo(row, 0).top(), Margine() - 4, Altezza()),
                     Qt::AlignRight | Qt::AlignVCenter, giorni_.value(row));
  }
}

void StrisciaSettimana::DipingiCampo(QPainter& pittore, int riga, int colonna) const {
  const Tema& tema = Tema::Corrente();
  const QRect field = Campo(riga, colonna);
  std::size_t segments = 0;
  std::size_t spots = 0;
  bool marked = false;
  bool current = false;
  for (const SegmentoVisto& each : Riga(riga)) {
    if (Colonna(each) != colonna) continue;
    ++segments;
    spots += each.Spot;
    marked = marked || IsMarked(each);
    current = current || each.ID == segmento_;
  }
  pittore.setPen(QPen(tema.Incavo.darker(tema.Scuro ? 70 : 108), 1));
  pittore.setBrush(segments == 0 ? tema.Superficie : marked ? tema.FondoAvviso : tema.Selezione);
  pittore.drawRect(field);
  if (segments == 0) return;
  pittore.setPen(marked ? tema.Avviso : tema.SuSelezione);
  // A minute is too narrow for both side by side.
  const QString sign = !marked                    ? QString()
                       : forma_ == Forma::OraSola ? QStringLiteral("\n!")
                                                  : QStringLiteral("!");
  pittore.drawText(field.adjusted(0, 1, 0, 0), Qt::AlignCenter, QString::number(spots) + sign);
  if (!current) return;
  pittore.setPen(QPen(tema.Primario, 2));
  pittore.setBrush(Qt::NoBrush);
  pittore.drawRect(field.adjusted(1, 1, 0, 0));
}

void StrisciaSettimana::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  DipingiAssi(painter);
  for (int row = 0; row < Righe(); ++row) {
    for (int column = 0; column < Colonne(); ++column) DipingiCampo(painter, row, column);
  }
}

void StrisciaSettimana::mousePressEvent(QMouseEvent* event) {
  const std::vector<SegmentoVisto> here = A(event->position().toPoint());
  if (event->button() != Qt::LeftButton || here.empty()) return QWidget::mousePressEvent(event);
  // One click after the other goes through the segments of a field.
  const auto current = std::ranges::find(here, segmento_, &SegmentoVisto::ID);
  const bool last = current == here.end() || current + 1 == here.end();
  const SegmentoVisto& next = last ? here.front() : *(current + 1);
  if (SuSegmento) SuSegmento(next.Giorno, next.ID);
}

QString StrisciaSettimana::Suggerisce(const std::vector<SegmentoVisto>& segmenti) const {
  if (segmenti.empty()) return {};
  QStringList lines;
  if (forma_ == Forma::Settimana) {
    lines.append(Qs(NomeDelGiorno(contesto_, segmenti.front().Giorno)));
  }
  for (const SegmentoVisto& each : segmenti) {
    QString line = Qs(OraConDuePunti(each.Inizio) + "  " + ParoleSpot(contesto_, each.Spot));
    if (each.StessaOra) {
      line += QStringLiteral(", ") + Qs(TestoLinguaO(contesto_, "0140105", "same time"));
    }
    lines.append(line);
  }
  return Suggerimento(lines.join(QLatin1Char('\n')));
}

bool StrisciaSettimana::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QWidget::event(event);
  const auto* help = static_cast<QHelpEvent*>(event);
  QToolTip::showText(help->globalPos(), Suggerisce(A(help->pos())), this);
  return true;
}

}  // namespace kvr5
