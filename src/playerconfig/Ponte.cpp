#include "playerconfig/Ponte.h"

namespace kvr5 {

void Ponte::Spunta(bool acceso) {
  if (acceso == acceso_) return;
  acceso_ = acceso;
  omonLibero_ = !acceso;
  if (acceso) {
    omonPrimaDelPonte_ = omon_;
    omon_ = 1;
  } else {
    omon_ = omonPrimaDelPonte_;
  }
}

}  // namespace kvr5
