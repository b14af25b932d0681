#include "core/screens/Coppia.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QVariant>

#include "core/screens/Icona.h"
#include "core/screens/LocalizzaForm.h"
#include "core/screens/PortaLettera.h"
#include "core/screens/Stile.h"
#include "core/screens/Tema.h"
#include "core/screens/Testo.h"

namespace kvr5 {
namespace {

constexpr int kIcon = 20;
constexpr int kCardIcon = 48;
constexpr int kPadding = 12;

}  // namespace

Coppia::Coppia(const char* nomePic, const char* nomeLbl, const QString& scritta, const char* icona,
               int tag, QWidget* padre)
    : QAbstractButton(padre), icona_(QLatin1String(icona)) {
  setObjectName(QLatin1String(nomePic));
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_Hover);
  setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
  if (*nomeLbl != '\0') {
    etichetta_ = new QLabel(this);
    etichetta_->setObjectName(QLatin1String(nomeLbl));
    etichetta_->setAttribute(Qt::WA_TransparentForMouseEvents);
    etichetta_->setTextFormat(Qt::PlainText);
    etichetta_->setForegroundRole(QPalette::WindowText);
    if (tag >= 0) etichetta_->setProperty(kTag, tag);
  }
  ImpostaScritta(scritta);
}

void Coppia::ImpostaScritta(const QString& testo) {
  if (text() != SenzaMnemonico(testo)) mnemonico_ = {};  // a letter of another text
  setText(SenzaMnemonico(testo));                        // takes the letter's key away
  ImpostaMnemonico(mnemonico_);
  setAccessibleName(testo);
  if (etichetta_ != nullptr) {
    etichetta_->setText(testo);
  } else {
    setToolTip(testo);
  }
  updateGeometry();
  Disponi();
}

void Coppia::ImpostaGenere(Genere genere) {
  genere_ = genere;
  if (etichetta_ != nullptr) {
    const bool large = genere == Genere::Carta || genere == Genere::CartaPrimaria;
    etichetta_->setFont(FontDi(large                        ? Carattere::Schermata
                               : genere == Genere::Primario ? Carattere::Riquadro
                                                            : Carattere::Corpo));
    etichetta_->setAlignment(large ? Qt::AlignHCenter | Qt::AlignTop : Qt::AlignVCenter);
    etichetta_->setWordWrap(large);
  }
  if (Carta()) setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  Colora();
  updateGeometry();
  Disponi();
  update();
}

void Coppia::ImpostaIcona(const char* icona) {
  icona_ = QLatin1String(icona);
  update();
}

void Coppia::ImpostaMnemonico(QChar lettera) {
  mnemonico_ = lettera;
  setShortcut(TastoDi(lettera));
  if (sottolineato_) update();
}

void Coppia::MostraMnemonico(bool mostra) {
  if (sottolineato_ == mostra) return;
  sottolineato_ = mostra;
  update();
}

int Coppia::LatoIcona() const {
  return Carta() ? kCardIcon : kIcon;
}

QSize Coppia::sizeHint() const {
  const int height = (genere_ == Genere::Primario ? spazi::kPrimario : spazi::kPulsante);
  if (etichetta_ == nullptr) return {height, height};
  const QSize text = etichetta_->sizeHint();
  if (Carta()) {
    return {220, kCardIcon + spazi::kMedio + text.height() + 2 * spazi::kLargo};
  }
  return {2 * kPadding + kIcon + spazi::kStretto + text.width(), height};
}

QRect Coppia::PostoIcona(bool sola) const {
  const int side = LatoIcona();
  if (Carta()) {
    const int text = etichetta_->heightForWidth(width() - 2 * spazi::kLargo);
    const int top = (height() - side - spazi::kMedio - text) / 2;
    return {(width() - side) / 2, top, side, side};
  }
  if (sola) return {(width() - side) / 2, (height() - side) / 2, side, side};
  const int content = side + spazi::kStretto + etichetta_->sizeHint().width();
  return {std::max(kPadding, (width() - content) / 2), (height() - side) / 2, side, side};
}

void Coppia::Disponi() {
  if (etichetta_ == nullptr) return;
  const QRect icon = PostoIcona(false);  // a label that is hidden now has its place to come back
  if (Carta()) {
    const int wide = width() - 2 * spazi::kLargo;
    etichetta_->setGeometry(spazi::kLargo, icon.bottom() + 1 + spazi::kMedio, wide,
                            etichetta_->heightForWidth(wide));
    return;
  }
  const int left = icon.right() + 1 + spazi::kStretto;
  etichetta_->setGeometry(left, 0, std::max(0, width() - left - 2), height());
}

QColor Coppia::ColoreTesto() const {
  const Tema& tema = Tema::Corrente();
  if (!isEnabled()) return tema.Disabilitato;
  if (genere_ == Genere::Primario || genere_ == Genere::CartaPrimaria) return tema.SuPrimario;
  return genere_ == Genere::Pericolo ? tema.Errore : tema.Testo;
}

void Coppia::Colora() {
  if (etichetta_ == nullptr) return;
  QPalette palette = etichetta_->palette();
  palette.setColor(QPalette::WindowText, ColoreTesto());
  etichetta_->setPalette(palette);
}

/// A line below the letter, where the label draws its text: in one line, from its left or centred.
void Coppia::Sottolinea(QPainter& painter) const {
  const QString text = etichetta_->text();
  const qsizetype at = PostoLettera(text, mnemonico_);
  const QFontMetrics metrics = etichetta_->fontMetrics();
  const QRect room = etichetta_->geometry();
  const QRect written = metrics.boundingRect(room, static_cast<int>(etichetta_->alignment()), text);
  if (at < 0 || written.width() > room.width()) return;
  constexpr int kBelow = 2;
  const int left = written.left() + metrics.horizontalAdvance(text.left(at));
  const int width = metrics.horizontalAdvance(text.at(at));
  painter.fillRect(left, written.top() + metrics.ascent() + kBelow, width, 1, ColoreTesto());
}

void Coppia::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  DipingiPulsante(
      painter, rect(),
      {.Genere = genere_, .Abilitato = isEnabled(), .Sopra = underMouse(), .Premuto = isDown()});
  if (hasFocus()) DipingiFuoco(painter, rect());
  const bool card = genere_ == Genere::Carta && isEnabled();
  const bool alone = etichetta_ == nullptr || etichetta_->isHidden();
  DipingiIcona(painter, PostoIcona(alone), icona_,
               card ? Tema::Corrente().Primario : ColoreTesto());
  if (sottolineato_ && !mnemonico_.isNull() && !alone) Sottolinea(painter);
}

void Coppia::resizeEvent(QResizeEvent* event) {
  QAbstractButton::resizeEvent(event);
  Disponi();
}

void Coppia::changeEvent(QEvent* event) {
  QAbstractButton::changeEvent(event);
  if (event->type() == QEvent::EnabledChange) Colora();
}

void Coppia::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (enter && !event->isAutoRepeat()) {
    click();
    return;
  }
  QAbstractButton::keyPressEvent(event);
}

}  // namespace kvr5
