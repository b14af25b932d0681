#include "playerconfig/screens/CasellaCifre.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QToolButton>
#include <QVBoxLayout>
#include <QVariant>
#include <utility>

#include "core/screens/Form.h"
#include "core/screens/Icona.h"
#include "core/screens/TastoDigitato.h"
#include "core/screens/Tema.h"
#include "core/screens/Testo.h"

namespace kvr5 {
namespace {

QToolButton* NewArrow(const char* name, const char* icon, QWidget* parent) {
  auto* arrow = new QToolButton(parent);
  arrow->setObjectName(QLatin1String(name) + QLatin1Char('_') + QLatin1String(icon));
  arrow->setIcon(IconaDi(QLatin1String(icon), Tema::Corrente().Testo));
  arrow->setIconSize({12, 12});
  arrow->setFixedSize(20, spazi::kControllo / 2);
  arrow->setAutoRepeat(true);
  arrow->setAutoRaise(true);
  arrow->setFocusPolicy(Qt::NoFocus);  // the box has the arrow keys
  return arrow;
}

QLineEdit* NewField(const char* name, QWidget* parent) {
  auto* field = new QLineEdit(parent);
  field->setObjectName(QLatin1String(name));
  field->setFixedWidth(46);
  field->setAlignment(Qt::AlignRight);
  field->setProperty(kLasciaAlClic, true);
  field->setAttribute(Qt::WA_InputMethodEnabled, false);  // digits are typed key by key
  return field;
}

}  // namespace

CasellaCifre::CasellaCifre(std::unique_ptr<CasellaNumero> numero, const char* campo,
                           const char* frecce, QWidget* padre)
    : QWidget(padre), numero_(std::move(numero)) {
  auto* line = new QHBoxLayout(this);
  line->setContentsMargins(0, 0, 0, 0);
  line->setSpacing(4);
  Campo = NewField(campo, this);
  Campo->installEventFilter(this);
  Su = NewArrow(frecce, "su", this);
  Giu = NewArrow(frecce, "giu", this);
  auto* arrows = new QVBoxLayout();
  arrows->setSpacing(0);
  arrows->addWidget(Su);
  arrows->addWidget(Giu);
  line->addWidget(Campo);
  line->addLayout(arrows);
  connect(Campo, &QLineEdit::textChanged, this, [this](const QString& text) {
    if (mostra_) return;
    numero_->Cambia(Std(text));
    Cambiata();
  });
  for (const QToolButton* arrow : {Su, Giu}) {
    // A field that is left by the press gets its check.
    connect(arrow, &QToolButton::pressed, this, [this] { Campo->setFocus(Qt::MouseFocusReason); });
  }
  connect(Su, &QToolButton::clicked, this, [this] {
    numero_->Su();
    Cambiata();
  });
  connect(Giu, &QToolButton::clicked, this, [this] {
    numero_->Giu();
    Cambiata();
  });
  Mostra();
}

void CasellaCifre::Mostra() {
  const bool before = std::exchange(mostra_, true);
  if (Campo->text() != Qs(numero_->Testo())) Campo->setText(Qs(numero_->Testo()));
  mostra_ = before;
}

void CasellaCifre::Controlla() {
  numero_->PerdeFuoco();
  Cambiata();
}

void CasellaCifre::ImpostaNome(const QString& nome) {
  Campo->setToolTip(nome);
  Campo->setAccessibleName(nome);
  Su->setAccessibleName(nome + QStringLiteral(": +1"));
  Giu->setAccessibleName(nome + QStringLiteral(": -1"));
}

void CasellaCifre::Cambiata() {
  Mostra();
  if (SuCambio) SuCambio();
}

bool CasellaCifre::SuTasto(const QKeyEvent& tasto) {
  if (tasto.key() == Qt::Key_Up || tasto.key() == Qt::Key_Down) {
    (tasto.key() == Qt::Key_Up ? Su : Giu)->click();
    return true;
  }
  const char32_t character = TastoDigitato(tasto);
  const bool passes = character == 0 || numero_->Tasto(character);
  if (character == U'\r') Cambiata();  // it was checked
  return !passes;
}

bool CasellaCifre::eventFilter(QObject* object, QEvent* event) {
  if (event->type() == QEvent::KeyPress) return SuTasto(*static_cast<QKeyEvent*>(event));
  if (event->type() == QEvent::FocusOut && LasciaIlCampo(*static_cast<QFocusEvent*>(event))) {
    Controlla();
  }
  return QWidget::eventFilter(object, event);
}

}  // namespace kvr5
