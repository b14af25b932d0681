#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollArea>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QStyleOptionComboBox>
#include <QTableView>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include "core/screens/Coppia.h"
#include "core/screens/EtichettaElisa.h"
#include "core/screens/Tema.h"
#include "flashcard/screens/ModelloRiscontri.h"
#include "house/SourceTree.h"
#include "playerconfig/screens/VociAssegnati.h"
#include "road/screens/GiroSchermi.h"
#include "support/Lingue.h"

// What every window owes the eye, in every language, for all models and in all states.

namespace kvr5 {
namespace {

using test::SchermoVisto;

/// What a walk found at fault, by the check that found it.
struct Findings {
  std::vector<std::string> Cut, Covered, Cramped, Leaderless, Mute;
  std::set<std::string> Seen;  ///< the objectNames of the windows
  std::size_t Windows = 0;     ///< in all their states
  double Scale = 0;            ///< the pixels of a point
};

std::string NameOf(const QObject& control) {
  return control.objectName().toStdString();
}

/// The width of the widest word that can't be broken.
int WidestWord(const QLabel& label) {
  return label.fontMetrics()
      .boundingRect(QRect(0, 0, 1, 1 << 20), Qt::TextWordWrap, label.text())
      .width();
}

/// The part of a text that a label has no room for, in pixels; 0 or less where it fits.
int Lacks(const QLabel& label) {
  if (label.text().isEmpty() || dynamic_cast<const EtichettaElisa*>(&label) != nullptr) return 0;
  if (!label.wordWrap()) return label.sizeHint().width() - label.width();
  const int room = label.contentsRect().width() - 2 * label.margin();
  return std::max(label.heightForWidth(label.width()) - label.height(), WidestWord(label) - room);
}

/// The same of a button; a picture alone draws no text.
int Lacks(const QAbstractButton& button) {
  const auto* pair = dynamic_cast<const Coppia*>(&button);
  const bool bare = pair != nullptr && pair->Etichetta() == nullptr;
  return bare || button.text().isEmpty() ? 0 : button.sizeHint().width() - button.width();
}

template <class T>
void FindCutIn(const SchermoVisto& screen, std::vector<std::string>& found) {
  for (const T* control : screen.Finestra.findChildren<T*>()) {
    if (!control->isVisible() || Lacks(*control) <= 0) continue;
    found.push_back(screen.Nome + ": " + NameOf(*control) + " \"" + control->text().toStdString() +
                    "\" lacks " + std::to_string(Lacks(*control)));
  }
}

/// The words of a closed list, but for names of files and languages, which have any length.
void FindCutLists(const SchermoVisto& screen, std::vector<std::string>& found) {
  for (const QComboBox* list : screen.Finestra.findChildren<QComboBox*>()) {
    if (!list->isVisible() || list->objectName() == QLatin1String("cmbFileMp3")) continue;
    QStyleOptionComboBox option;
    option.initFrom(list);
    option.editable = list->isEditable();
    const int room =
        list->style()
            ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, list)
            .width();
    for (int i = 0; i < list->count(); ++i) {
      const int lacks = list->fontMetrics().horizontalAdvance(list->itemText(i)) - room;
      if (lacks <= 0) continue;
      found.push_back(screen.Nome + ": " + NameOf(*list) + " \"" + list->itemText(i).toStdString() +
                      "\" lacks " + std::to_string(lacks));
    }
  }
}

/// The same of a cell, with the sign that may stand before it.
int WidestWord(const QTableView& table, int row, int column) {
  const QModelIndex cell = table.model()->index(row, column);
  int widest = 0;
  for (const QString& word : cell.data().toString().split(QLatin1Char(' '))) {
    widest = std::max(widest, table.fontMetrics().horizontalAdvance(word));
  }
  const QStyle& style = *table.style();
  const int margin = style.pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &table) + 1;
  const int sign = style.pixelMetric(QStyle::PM_SmallIconSize, nullptr, &table) + 2 * margin;
  return widest + 2 * margin + (cell.data(Qt::DecorationRole).isNull() ? 0 : sign);
}

/// How high a cell is with all its words; a name of a file, of any length, may end in "…".
int HeightOf(const QTableView& table, int row, int column) {
  if (column == ModelloRiscontri::File) return 0;
  QStyleOptionViewItem option;
  option.initFrom(&table);
  option.widget = &table;
  option.font = table.font();
  option.rect = QRect(0, 0, table.columnWidth(column), 1 << 16);
  option.features = QStyleOptionViewItem::WrapText;
  return table.itemDelegate()->sizeHint(option, table.model()->index(row, column)).height();
}

/// The titles of columns, and the rows of tables whose words go on in further lines.
void FindCutCells(const SchermoVisto& screen, std::vector<std::string>& found) {
  for (const QTableView* table : screen.Finestra.findChildren<QTableView*>()) {
    if (!table->isVisible()) continue;
    const QHeaderView* titles = table->horizontalHeader();
    for (int column = 0; titles->isVisible() && column < titles->count(); ++column) {
      if (titles->isSectionHidden(column)) continue;
      if (titles->sectionSize(column) >= titles->sectionSizeHint(column)) continue;
      found.push_back(screen.Nome + ": " + NameOf(*table) + ", title " + std::to_string(column));
    }
    for (int row = 0; table->wordWrap() && row < table->model()->rowCount(); ++row) {
      for (int column = 0; column < table->model()->columnCount(); ++column) {
        if (WidestWord(*table, row, column) <= table->columnWidth(column)) continue;
        found.push_back(screen.Nome + ": " + NameOf(*table) + ", a word of row " +
                        std::to_string(row) + ", column " + std::to_string(column));
      }
      for (int column = 0; column < table->model()->columnCount(); ++column) {
        if (HeightOf(*table, row, column) <= table->rowHeight(row)) continue;
        found.push_back(screen.Nome + ": " + NameOf(*table) + ", row " + std::to_string(row));
      }
    }
  }
}

/// The marks of the rows of assignments, which a delegate draws.
void FindCutMarks(const SchermoVisto& screen, std::vector<std::string>& found) {
  const auto* list = screen.Finestra.findChild<QListWidget*>(QStringLiteral("lstAssegnati"));
  if (list == nullptr || !list->isVisible()) return;
  constexpr int kBeside = 46;  // the sign, and the edges
  const QFontMetrics metrics(FontDi(Carattere::Suggerimento), list);
  const QStandardItemModel unmarked(1, 1);
  const int words = list->itemDelegate()->sizeHint({}, unmarked.index(0, 0)).height();
  for (int row = 0; row < list->count(); ++row) {
    const QRect place = list->visualItemRect(list->item(row));
    const QString mark = list->item(row)->data(VociAssegnati::Segno).toString();
    const QRect room(0, 0, place.width() - kBeside, 1 << 16);
    const int lacks =
        metrics.boundingRect(room, Qt::TextWordWrap, mark).height() + words - place.height();
    if (mark.isEmpty() || lacks <= 0) continue;
    found.push_back(screen.Nome + ": mark \"" + mark.toStdString() + "\" lacks " +
                    std::to_string(lacks));
  }
}

/// Of the card's line the figures may be shortened, never what state the card is in.
void FindCutState(const SchermoVisto& screen, std::vector<std::string>& found) {
  const auto* state = screen.Finestra.findChild<QLabel*>(QStringLiteral("lblStatoScheda"));
  if (state == nullptr || !state->isVisible()) return;
  const QString words = state->text().section(QLatin1Char(','), 0, 0) + QChar(0x2026);
  const int lacks = state->fontMetrics().horizontalAdvance(words) - state->width();
  if (lacks <= 0) return;
  found.push_back(screen.Nome + ": state \"" + words.toStdString() + "\" lacks " +
                  std::to_string(lacks));
}

void FindCut(const SchermoVisto& screen, std::vector<std::string>& found) {
  FindCutMarks(screen, found);
  FindCutState(screen, found);
  FindCutIn<QLabel>(screen, found);
  FindCutIn<QAbstractButton>(screen, found);
  FindCutLists(screen, found);
  FindCutCells(screen, found);
}

/// Whether a widget lays out what is in it for the eye, as a page does, and is no control that is
/// made of several.
bool IsPage(const QWidget& parent) {
  return parent.isVisible() && qobject_cast<const QAbstractButton*>(&parent) == nullptr &&
         qobject_cast<const QAbstractScrollArea*>(&parent) == nullptr &&
         qobject_cast<const QComboBox*>(&parent) == nullptr &&
         qobject_cast<const QLineEdit*>(&parent) == nullptr &&
         qobject_cast<const QAbstractSpinBox*>(&parent) == nullptr &&
         !parent.objectName().startsWith(QLatin1String("qt_"));
}

void FindCoveredIn(const std::string& screen, const QWidget& parent,
                   std::vector<std::string>& found) {
  const auto children = parent.findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
  for (qsizetype i = 0; i < children.size(); ++i) {
    if (!children[i]->isVisible() || children[i]->isWindow()) continue;
    if (!parent.rect().contains(children[i]->geometry())) {
      found.push_back(screen + ": " + NameOf(*children[i]) + " goes over " + NameOf(parent));
    }
    for (qsizetype k = i + 1; k < children.size(); ++k) {
      if (!children[k]->isVisible() || children[k]->isWindow()) continue;
      if (!children[i]->geometry().intersects(children[k]->geometry())) continue;
      found.push_back(screen + ": " + NameOf(*children[i]) + " and " + NameOf(*children[k]));
    }
  }
}

void FindCovered(const SchermoVisto& screen, std::vector<std::string>& found) {
  FindCoveredIn(screen.Nome, screen.Finestra, found);
  for (const QWidget* parent : screen.Finestra.findChildren<QWidget*>()) {
    if (parent->window() == &screen.Finestra && IsPage(*parent)) {
      FindCoveredIn(screen.Nome, *parent, found);
    }
  }
}

/// What a window lacks on a screen of 1920x1080 at 200 %, less the frame; a dialog on half of an
/// old one, for it stands before others.
void FindCramped(const SchermoVisto& screen, std::vector<std::string>& found) {
  const QSize room = screen.Piccolo ? QSize(640, 480) : QSize(944, 500);
  const QSize before = screen.Finestra.size();
  screen.Finestra.resize(before.boundedTo(room));
  for (int i = 0; i < 4; ++i) QCoreApplication::processEvents();
  const QSize over = screen.Finestra.size() - room;
  if (over.width() > 0 || over.height() > 0) {
    found.push_back(screen.Nome + ": over by " + std::to_string(over.width()) + "x" +
                    std::to_string(over.height()));
  }
  FindCut(screen, found);
  FindCovered(screen, found);
  for (const QScrollArea* area : screen.Finestra.findChildren<QScrollArea*>()) {
    const int hidden = area->horizontalScrollBar()->maximum();
    if (hidden > 0) found.push_back(screen.Nome + ": scrolls by " + std::to_string(hidden));
  }
  screen.Finestra.resize(before);
}

/// Whether a button is dressed as the one thing to do.
bool IsPrimary(const Coppia& button) {
  const auto kind = button.GenereOra();
  return kind == Coppia::Genere::Primario || kind == Coppia::Genere::CartaPrimaria;
}

void FindLeaderless(const SchermoVisto& screen, std::vector<std::string>& found) {
  std::vector<const Coppia*> primary;
  for (const auto* each : screen.Finestra.findChildren<QAbstractButton*>()) {
    const auto* button = dynamic_cast<const Coppia*>(each);
    if (button == nullptr) continue;
    // The hub's save stands out already, though its screen is still to come.
    const bool counts = button->isEnabled() || button->objectName() == QLatin1String("picSave");
    if (button->isVisible() && counts && IsPrimary(*button)) primary.push_back(button);
  }
  if (primary.size() != (screen.Attende ? 0U : 1U)) {
    found.push_back(screen.Nome + ": has " + std::to_string(primary.size()));
  }
  const bool box = screen.Nome.starts_with("message") || screen.Nome.starts_with("frmSiNo");
  if (box && !primary.empty() && !primary.front()->hasFocus()) {
    found.push_back(screen.Nome + ": the keyboard is elsewhere");
  }
}

void FindMute(const SchermoVisto& screen, std::vector<std::string>& found) {
  for (const QWidget* control : screen.Finestra.findChildren<QWidget*>()) {
    const bool used = qobject_cast<const QAbstractButton*>(control) != nullptr ||
                      qobject_cast<const QComboBox*>(control) != nullptr ||
                      qobject_cast<const QLineEdit*>(control) != nullptr;
    if (!used || !control->isVisible() || control->isEnabled()) continue;
    if (control->toolTip().isEmpty()) found.push_back(screen.Nome + ": " + NameOf(*control));
  }
}

/// One walk in a language does for all that is asked of it.
const Findings& FoundIn(const std::string& language) {
  static std::map<std::string, Findings> walked;
  if (const auto known = walked.find(language); known != walked.end()) return known->second;
  Findings& found = walked[language];
  test::GiroSchermi(language).Percorri([&found](const SchermoVisto& screen) {
    found.Seen.insert(NameOf(screen.Finestra));
    ++found.Windows;
    found.Scale = screen.Finestra.devicePixelRatioF();
    FindCut(screen, found.Cut);
    FindCovered(screen, found.Covered);
    FindLeaderless(screen, found.Leaderless);
    FindMute(screen, found.Mute);
    FindCramped(screen, found.Cramped);
  });
  return found;
}

class Looks : public testing::TestWithParam<std::string> {};

/// The names of all classes of the sources that are a window.
std::set<std::string> WindowClasses() {
  const std::regex window("class (\\w+)(?: final)? : public (?:Form|SchermoParametri|QDialog)\\b");
  std::set<std::string> names;
  for (const auto& file : test::SourceFiles()) {
    for (std::sregex_iterator at(file.Text.begin(), file.Text.end(), window), end; at != end;
         ++at) {
      names.insert((*at)[1]);
    }
  }
  names.erase("SchermoParametri");  // what the screens of parameters share
  // The window of the host's copying is called by what it stands for.
  names.erase("RiquadroCopia");
  names.insert("FinestraCopia");
  return names;
}

TEST_P(Looks, AreLookedAtInEveryWindowThatTheSourcesHaveAndAtTheScaleThatWasAskedFor) {
  const Findings& walked = FoundIn(GetParam());
  const auto classes = WindowClasses();
  EXPECT_GT(classes.size(), 15U);
  EXPECT_THAT(walked.Seen, testing::IsSupersetOf(classes));
  EXPECT_GT(walked.Windows, 80U);
  const QByteArray scale = qgetenv("QT_SCALE_FACTOR");
  EXPECT_EQ(walked.Scale, scale.isEmpty() ? 1 : scale.toDouble());
}

TEST_P(Looks, NoTextIsCut) {
  EXPECT_THAT(FoundIn(GetParam()).Cut, testing::IsEmpty());
}

TEST_P(Looks, NothingLiesOnSomethingElse) {
  EXPECT_THAT(FoundIn(GetParam()).Covered, testing::IsEmpty());
}

TEST_P(Looks, ASmallScreenHasRoomForEach) {
  EXPECT_THAT(FoundIn(GetParam()).Cramped, testing::IsEmpty());
}

TEST_P(Looks, OneThingToDoStandsOut) {
  EXPECT_THAT(FoundIn(GetParam()).Leaderless, testing::IsEmpty());
}

TEST_P(Looks, WhatIsDisabledSaysWhy) {
  EXPECT_THAT(FoundIn(GetParam()).Mute, testing::IsEmpty());
}

TEST(LooksWithoutALanguage, EveryButtonHasItsBuiltInWords) {
  std::vector<std::string> blank;
  test::GiroSchermi("Missing.lan").Percorri([&blank](const SchermoVisto& screen) {
    for (const auto* each : screen.Finestra.findChildren<QAbstractButton*>()) {
      const auto* button = dynamic_cast<const Coppia*>(each);
      if (button == nullptr || button->Etichetta() == nullptr || !button->isVisible()) continue;
      if (button->text().trimmed().isEmpty()) blank.push_back(screen.Nome + ": " + NameOf(*button));
    }
  });
  EXPECT_THAT(blank, testing::IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Languages, Looks, testing::ValuesIn(test::FileDiLingua()),
                         test::NomeDiProva);

}  // namespace
}  // namespace kvr5
