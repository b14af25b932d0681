#pragma once

namespace kvr5 {

/// Bridge mode on the screen of extra parameters: the box chkPonte (INVR) and the list cmbOMON that
/// it holds at 1 while it is ticked.
class Ponte {
 public:
  /// As the file was read: a ticked box leaves OMON as it is, only a click forces it.
  Ponte(bool acceso, int omon)
      : acceso_(acceso), omonLibero_(!acceso), omon_(omon), omonPrimaDelPonte_(omon) {}

  bool Acceso() const { return acceso_; }
  /// List index of cmbOMON, 0 or 1.
  int Omon() const { return omon_; }
  /// Whether cmbOMON can be used.
  bool OmonLibero() const { return omonLibero_; }

  /// The box is clicked into this state; nothing when it has it already.
  void Spunta(bool acceso);
  /// An item of cmbOMON is chosen.
  void ScegliOmon(int omon) { omon_ = omonPrimaDelPonte_ = omon; }
  /// Both go to 0 without a click: a list that was held stays so until the box is clicked.
  void Predefinisci() {
    acceso_ = false;
    omon_ = 0;
  }

 private:
  bool acceso_;
  bool omonLibero_;
  int omon_;
  int omonPrimaDelPonte_;  ///< what cmbOMON goes back to
};

}  // namespace kvr5
