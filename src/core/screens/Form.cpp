#include "core/screens/Form.h"

#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QRadioButton>
#include <QShortcut>
#include <QWindow>
#include <utility>

#include "core/Aiuto.h"
#include "core/screens/Davanti.h"
#include "core/screens/Mnemonici.h"

namespace kvr5 {
namespace {

/// What the user does with mouse and keyboard.
bool IsInput(QEvent::Type type) {
  switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
      return true;
    default:
      return false;
  }
}

/// Has Esc send away an open list of the form first: by itself that closes and lets the key go on
/// to the form.
class EscDellaLista : public QObject {
 public:
  EscDellaLista(const QWidget& form, QObject* parent) : QObject(parent), form_(form) {}

 protected:
  bool eventFilter(QObject* /*object*/, QEvent* event) override {
    if (event->type() != QEvent::ShortcutOverride ||
        static_cast<QKeyEvent*>(event)->key() != Qt::Key_Escape) {
      return false;
    }
    QWidget* const open = QApplication::activePopupWidget();
    auto* list = open == nullptr ? nullptr : qobject_cast<QComboBox*>(open->parentWidget());
    if (list == nullptr || list->window() != &form_) return false;
    event->accept();
    list->hidePopup();
    return true;
  }

 private:
  const QWidget& form_;
};

bool IsEnter(const QEvent& event) {
  if (event.type() != QEvent::KeyPress) return false;
  const int key = static_cast<const QKeyEvent&>(event).key();
  return key == Qt::Key_Return || key == Qt::Key_Enter;
}

/// Boxes, options and closed lists, which some desktops have Enter press or open. An open list is
/// another control.
bool IsChoice(const QObject* object) {
  return qobject_cast<const QCheckBox*>(object) != nullptr ||
         qobject_cast<const QRadioButton*>(object) != nullptr ||
         qobject_cast<const QComboBox*>(object) != nullptr;
}

}  // namespace

Form::Form(Ambiente& ambiente, const char* nome) : ambiente_(ambiente) {
  setObjectName(QLatin1String(nome));
  setWindowFlag(Qt::Window);
}

Form::~Form() {
  FineAttesa();
}

void Form::Carica() {
  if (stato_ != Stato::Nuova) return;
  stato_ = Stato::Caricata;
  ambiente_.Vita.Caricata();
  for (QWidget* each : findChildren<QWidget*>()) {
    if (suInvio_ != nullptr && IsChoice(each)) each->installEventFilter(this);
  }
  AlCaricamento();
}

void Form::Mostra() {
  ++mostrata_;
  Carica();
  if (Scaricata()) return;  // its own load may have sent it away
  if (!isVisible()) CentraSu(*this, FinestraSotto());
  show();
  raise();
  activateWindow();
}

void Form::MostraModale() {
  Carica();
  if (Scaricata()) return;
  QWidget* before = FinestraSotto();
  setWindowModality(Qt::ApplicationModal);
  setWindowFlag(Qt::Dialog);
  MettiDavanti(*this, before);
  show();
  activateWindow();
  QEventLoop loop;
  attesa_ = &loop;
  loop.exec();
}

void Form::Nascondi() {
  hide();
  FineAttesa();
}

void Form::FineAttesa() {
  if (attesa_) attesa_->quit();
}

void Form::ChiudiDa(Causa causa) {
  if (!Caricata() || chiude_) return;
  if (impegni_ > 0) {
    rinviata_ = causa;
    return;
  }
  chiude_ = true;  // to the end: the unload lets events run, and must not begin once more
  if (!PuoChiudere(causa)) {
    chiude_ = false;
    return;
  }
  AlloScarico();
  stato_ = Stato::Scaricata;
  Nascondi();
  deleteLater();
  ambiente_.Vita.Scaricata();
}

void Form::FineImpegno() {
  if (--impegni_ > 0 || !rinviata_) return;
  // Until it runs the form knows that it is about to close.
  QMetaObject::invokeMethod(
      this,
      [this] {
        if (rinviata_) ChiudiDa(*std::exchange(rinviata_, std::nullopt));
      },
      Qt::QueuedConnection);
}

void Form::SuTasto(const QKeySequence& tasto, std::function<void()> azione) {
  auto* key = new QShortcut(tasto, this);
  key->setAutoRepeat(false);  // a key that is held down is one press
  connect(key, &QShortcut::activated, this, std::move(azione));
  if (tasto != QKeySequence(Qt::Key_Escape)) return;
  qApp->installEventFilter(new EscDellaLista(*this, key));
}

void Form::SuSalva(QAbstractButton& pulsante) {
  ImpostaTurno(pulsante, TurnoLettera::SalvaERegistra);
  SuTasto(QKeySequence::Save, [&pulsante] {
    pulsante.setFocus(Qt::ShortcutFocusReason);
    pulsante.click();
  });
}

void Form::Aiuto() {
  const Impegno stays(*this);  // events run on the way
  ApriAiuto(C(), ambiente_.Documenti);
}

bool Form::event(QEvent* event) {
  const bool done = QWidget::event(event);
  if (event->type() == QEvent::WindowActivate && Caricata() && isVisible()) AllAttivazione();
  return done;
}

void Form::setVisible(bool visible) {
  const bool screen = !windowFlags().testFlag(Qt::Dialog);
  if (!visible && isVisible() && screen) RicordaPosto(*this);  // its frame is still known
  QWidget::setVisible(visible);
  if (visible && windowHandle() != nullptr) windowHandle()->installEventFilter(this);
}

bool Form::eventFilter(QObject* object, QEvent* event) {
  // A click or key that was on its way when the window went would still reach its controls: a
  // second press of a button whose first one closed the window would run it once more.
  if (object == windowHandle() && !isVisible() && IsInput(event->type())) return true;
  if (suInvio_ != nullptr && IsChoice(object) && IsEnter(*event)) {
    keyPressEvent(static_cast<QKeyEvent*>(event));
    return true;
  }
  return QWidget::eventFilter(object, event);
}

void Form::closeEvent(QCloseEvent* event) {
  event->ignore();  // what becomes of the window is the form's own affair
  ChiudiDa(Causa::Utente);
}

void Form::mousePressEvent(QMouseEvent* event) {
  // A click beside the controls leaves the field that has the focus, with its check.
  QWidget* field = focusWidget();
  if (field != nullptr && field->property(kLasciaAlClic).toBool()) field->clearFocus();
  QWidget::mousePressEvent(event);
}

void Form::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  const bool text = qobject_cast<QLineEdit*>(focusWidget()) != nullptr;
  if (!enter || event->isAutoRepeat() || text || suInvio_ == nullptr || !suInvio_->isVisible()) {
    QWidget::keyPressEvent(event);
    return;
  }
  suInvio_->click();
}

}  // namespace kvr5
