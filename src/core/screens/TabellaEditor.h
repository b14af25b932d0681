#pragma once

#include <QTableView>
#include <cstdint>
#include <functional>

namespace kvr5 {

/// A list of an editor: rows of the database, each with its ID, of which the user comes to one and
/// does things with it by the keyboard.
class TabellaEditor : public QTableView {
 public:
  /// The role under which a model gives the ID of a row.
  static constexpr int kRuoloId = Qt::UserRole;

  TabellaEditor(const char* nome, QAbstractItemModel& modello, int altezza, QWidget* padre);

  /// The ID of the current row; -1 for none.
  std::int64_t IdCorrente() const;
  /// The row of an ID; -1 for none.
  int RigaDi(std::int64_t id) const;
  /// Makes a row the current and only selected one, in view; calls nobody.
  void VaiA(std::int64_t id);
  /// What an empty list says.
  void ImpostaVuota(const QString& testo);

  /// Called when the user comes to another row, with its ID.
  std::function<void(std::int64_t)> SuRiga;
  /// Called for Del, Alt+Up, Alt+Down and Space.
  std::function<void()> SuRimuovi, SuSposta, SuSpostaGiu, SuAscolta;
  QSize sizeHint() const override { return {320, 200}; }

 protected:
  /// While one lives, coming to another row calls nobody.
  class Muta {
   public:
    explicit Muta(TabellaEditor& tabella) : tabella_(tabella), prima_(tabella.muta_) {
      tabella_.muta_ = true;
    }
    ~Muta() { tabella_.muta_ = prima_; }
    Muta(const Muta&) = delete;
    Muta& operator=(const Muta&) = delete;

   private:
    TabellaEditor& tabella_;
    bool prima_;
  };

  void currentChanged(const QModelIndex& ora, const QModelIndex& prima) override;
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& indice,
                                                       const QEvent* evento) const override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  const std::function<void()>* Azione(const QKeyEvent& event) const;

  QString vuota_;
  bool muta_ = false;
};

}  // namespace kvr5
