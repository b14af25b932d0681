#include "road/screens/TabellaTesti.h"

#include <gtest/gtest.h>

#include "core/Aiuti.h"
#include "core/screens/LocalizzaForm.h"
#include "house/SourceTree.h"
#include "playerconfig/Parametri.h"
#include "road/screens/GiroSchermi.h"
#include "support/Lingue.h"

namespace kvr5::test {
namespace {

struct Walked {
  UsoDeiTesti Use;
  std::map<std::string, std::string> Forms;
};

/// The keys that a form asks for by its number: its own caption and each control's.
void AddControls(const QWidget& form, Walked& walked) {
  const QVariant property = form.property(kNumero);
  if (!property.isValid()) return;
  const auto number = static_cast<std::int16_t>(property.toInt());
  const std::string title = ChiaveTitolo(number);
  const std::string name = form.objectName().toStdString();
  walked.Forms[title.substr(0, 3)] = name;
  constexpr std::int16_t kWizard = 16;
  if (number != kWizard) walked.Use[title].insert(name);  // that has the program's name
  for (const QWidget* control : form.findChildren<QWidget*>()) {
    const std::string key = ChiaveScritta(number, *control);
    if (!key.empty()) walked.Use[key].insert(name + "." + control->objectName().toStdString());
  }
}

void AddSources(UsoDeiTesti& use) {
  for (const auto& file : SourceFiles()) {
    const std::string place = file.Path.substr(0, file.Path.rfind('.'));
    for (const auto& literal : Literals(file.Text)) {
      if (IsKey(literal)) use[std::string(Rifila(literal))].insert(place);  // one ends in a blank
    }
  }
  for (const auto& key : ChiaviDelleVoci())
    use[key].insert("playerconfig/Parametri, item of a list");
}

const Walked& All() {
  static const Walked walked = [] {
    Walked found;
    GiroSchermi("English.lan").Percorri([&found](const SchermoVisto& screen) {
      AddControls(screen.Finestra, found);
    });
    AddSources(found.Use);
    return found;
  }();
  return walked;
}

/// A text as a cell of a table takes it.
std::string Cell(const std::string& text) {
  std::string cell;
  for (const char each : text) {
    if (each == '|') cell += '\\';
    cell += each;
  }
  return cell;
}

std::string Joined(const std::set<std::string>& places) {
  std::string all;
  for (const auto& place : places) all += (all.empty() ? "`" : ", `") + place + "`";
  return all;
}

}  // namespace

const UsoDeiTesti& TestiInUso() {
  return All().Use;
}

const std::map<std::string, std::string>& NumeriDelleForm() {
  return All().Forms;
}

std::string TabellaTesti() {
  std::string page =
      "# The texts and where they are used\n\n"
      "Made by `script/texts` from the sources and from a walk past every window; a test "
      "compares.\n"
      "`form.control` is a control that takes its caption by its number; anything else is a "
      "source\n"
      "below `src` that asks for the key. The texts are those of `data/Language/English.lan`.\n";
  std::string group;
  for (const auto& [key, text] : VociDiLingua("English.lan", "Strings")) {
    const std::string prefix = key.substr(0, 3);
    if (prefix != group) {
      group = prefix;
      const auto form = NumeriDelleForm().find(prefix);
      page += "\n## " + prefix +
              (form == NumeriDelleForm().end() ? "" : " `" + form->second + "`") +
              "\n\n| Key | English | Used in |\n|---|---|---|\n";
    }
    const auto use = TestiInUso().find(key);
    page += "| " + key + " | " + Cell(text) + " | " +
            (use == TestiInUso().end() ? "" : Joined(use->second)) + " |\n";
  }
  return page;
}

}  // namespace kvr5::test
