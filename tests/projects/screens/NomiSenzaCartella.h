#pragma once

#include <gtest/gtest.h>

#include "core/screens/Tema.h"
#include "core/screens/Testo.h"
#include "support/screens/Mano.h"

namespace kvr5::test {

/// On a screen that asks for a project's name: each name that no folder can have, though none of
/// the eight characters is in it, is told while it stands there, in words, colour and for a screen
/// reader; a good one takes the warning away.
template <class Schermo>
void ProvaNomiSenzaCartella(Schermo& form) {
  const auto colour = [&] { return form.lblCartella->palette().color(QPalette::WindowText); };
  for (const char* name : {"Hall ", "Hall.", "CON", "nul.txt", "a*b", "\u65E5"}) {
    form.txtNomeProgetto->setText(Qs(name));
    EXPECT_EQ(
        Scritta(form, "lblCartella"),
        "No folder can be called so: take away a blank or dot at the end, or use other letters")
        << name;
    EXPECT_EQ(colour(), Tema::Corrente().Avviso) << name;
    EXPECT_EQ(form.txtNomeProgetto->accessibleDescription(), form.lblCartella->text()) << name;
    form.txtNomeProgetto->setText(QStringLiteral("Hall"));
    EXPECT_NE(Scritta(form, "lblCartella").find("Hall"), std::string::npos) << name;
    EXPECT_EQ(colour(), Tema::Corrente().Attenuato) << name;
    EXPECT_EQ(form.txtNomeProgetto->accessibleDescription(), "") << name;
  }
}

}  // namespace kvr5::test
