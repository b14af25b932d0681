#pragma once

#include <QAbstractButton>
#include <QEventLoop>
#include <QKeySequence>
#include <QPointer>
#include <QWidget>
#include <functional>
#include <optional>

#include "core/screens/Ambiente.h"

namespace kvr5 {

/// The property of a field that checks what it holds when it is left, and is left by a click beside
/// all controls, too.
inline constexpr const char* kLasciaAlClic = "lasciaAlClic";

/// A screen: load, show (modal or not), activate, hide, query-unload, unload.
///
/// The constructor makes the controls as they are designed and nothing else. The load runs once, at
/// the first show or when a caller asks for it before it fills controls. A hidden form stays
/// loaded. An unloaded form is done for: its FormPredefinita makes the next one, so that every
/// member begins with its initial value again.
class Form : public QWidget {
 public:
  /// Who asks a form to close.
  enum class Causa { Codice, Utente };

  /// `nome` becomes the objectName, such as "frmMain".
  Form(Ambiente& ambiente, const char* nome);
  ~Form() override;

  /// Loads the form unless it is loaded or has been unloaded.
  void Carica();
  /// Shows it, not modally, and brings it to the front.
  void Mostra();
  /// Shows it and waits until it is hidden or unloaded.
  void MostraModale();
  void Nascondi();
  /// Asks the form itself, and unloads it if it doesn't refuse.
  void Scarica() { ChiudiDa(Causa::Codice); }

  /// How many times it was asked to show itself.
  int Mostrata() const { return mostrata_; }

  void setVisible(bool visible) override;

  bool Caricata() const { return stato_ == Stato::Caricata; }
  bool Scaricata() const { return stato_ == Stato::Scaricata; }

 protected:
  /// Keeps a form in place while a handler of it lets events run: a close that is asked for in the
  /// meantime is put off until the last of them is gone.
  class Impegno {
   public:
    explicit Impegno(Form& form) : form_(form) { ++form_.impegni_; }
    ~Impegno() { form_.FineImpegno(); }
    Impegno(const Impegno&) = delete;
    Impegno& operator=(const Impegno&) = delete;

   private:
    Form& form_;
  };

  /// The form's own part of each step of its life.
  virtual void AlCaricamento() {}
  virtual void AllAttivazione() {}
  virtual bool PuoChiudere(Causa /*causa*/) { return true; }
  virtual void AlloScarico() {}

  /// Has a key of the window, wherever the focus is, run `azione`.
  void SuTasto(const QKeySequence& tasto, std::function<void()> azione);
  /// Has Enter press `pulsante`, also with the focus on a box, an option or a closed list, unless
  /// the control there takes the key for itself as buttons, open lists and lines of text do.
  void SuInvio(QAbstractButton& pulsante) { suInvio_ = &pulsante; }
  /// Has Ctrl+S press `pulsante` as a click does, which leaves the field that was being filled; it
  /// has the first choice of the letters for Alt.
  void SuSalva(QAbstractButton& pulsante);
  /// Whether it was asked to close and does so once its handlers are done.
  bool ChiusuraAttesa() const { return rinviata_.has_value(); }
  /// Drops that request.
  void DimenticaChiusura() { rinviata_.reset(); }
  /// Opens the help document, as F1 and picHelp do.
  void Aiuto();

  Contesto& C() const { return ambiente_.C; }
  Ambiente& ambiente_;

  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  enum class Stato { Nuova, Caricata, Scaricata };

  void ChiudiDa(Causa causa);
  void FineAttesa();
  void FineImpegno();

  Stato stato_ = Stato::Nuova;
  bool chiude_ = false;  ///< from a close that was granted to its end
  int impegni_ = 0;
  int mostrata_ = 0;
  QAbstractButton* suInvio_ = nullptr;
  std::optional<Causa> rinviata_;
  QPointer<QEventLoop> attesa_;
};

}  // namespace kvr5
