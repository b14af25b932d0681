#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

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
  const std::string end = "No folder can be called so: take away the blank or dot at its end";
  const std::string kept =
      "No folder can be called so: this name is kept for a device. Choose another one.";
  const std::vector<std::pair<std::string, std::string>> cases{
      {"Hall ", end},
      {"Hall.", end},
      {"CON", kept},
      {"nul.txt", kept},
      {"a*b", "This name holds a character that isn't allowed"},
      {"\u65E5", "The project's file can't keep a character of this name. Choose other letters."},
      {std::string(100, 'x'),
       "This name is too long: the project's file keeps 99 characters of it. Choose a shorter "
       "one."}};
  for (const auto& [name, words] : cases) {
    form.txtNomeProgetto->setText(Qs(name));
    EXPECT_EQ(Scritta(form, "lblCartella"), words) << name;
    EXPECT_EQ(colour(), Tema::Corrente().Avviso) << name;
    EXPECT_EQ(form.txtNomeProgetto->accessibleDescription(), form.lblCartella->text()) << name;
    form.txtNomeProgetto->setText(QStringLiteral("Hall"));
    EXPECT_NE(Scritta(form, "lblCartella").find("Hall"), std::string::npos) << name;
    EXPECT_EQ(colour(), Tema::Corrente().Attenuato) << name;
    EXPECT_EQ(form.txtNomeProgetto->accessibleDescription(), "") << name;
  }
}

}  // namespace kvr5::test
