#pragma once

#include <algorithm>
#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace kvr5::test {

/// A schedule in plain containers, by the rules of the editor, written without its code.
class ModelloPalinsesto {
 public:
  struct Seg {
    std::int64_t Id = 0;
    int Day = 0;
    int Minutes = 0;  ///< since midnight
  };
  struct Row {
    std::int64_t Id = 0;
    int Day = 0;
    std::int64_t Of = 0;
    int Pos = 0;
    std::string Name;
    std::string Alias;
  };

  ModelloPalinsesto(int giorno, bool bloccate) : day(giorno), locked_(bloccate) {}

  int day;
  std::int64_t selected = 0;
  std::vector<Seg> segs;
  std::vector<Row> rows;

  /// The segments of the day by time.
  std::vector<Seg> OfDay() const {
    std::vector<Seg> some;
    for (const Seg& each : segs) {
      if (each.Day == day) some.push_back(each);
    }
    std::stable_sort(some.begin(), some.end(),
                     [](const Seg& a, const Seg& c) { return a.Minutes < c.Minutes; });
    return some;
  }
  /// The rows of the selected segment on the day, by Pos.
  std::vector<Row*> Detail() {
    std::vector<Row*> some;
    for (Row& each : rows) {
      if (each.Day == day && each.Of == selected && selected > 0) some.push_back(&each);
    }
    std::stable_sort(some.begin(), some.end(),
                     [](const Row* a, const Row* c) { return a->Pos < c->Pos; });
    return some;
  }
  void Day(int which) {
    day = which;
    First();
  }
  void First() {
    const auto some = OfDay();
    selected = some.empty() ? 0 : some.front().Id;
  }
  Seg* Selected() { return ById(selected); }

  /// False for a day that is full.
  bool Add() {
    const auto some = OfDay();
    if (some.size() > 60) return false;
    int start = some.empty() ? 0 : (some.back().Minutes + 1) % (24 * 60);
    if (locked_) start %= 60;
    selected = NewSegment(day, start);
    return true;
  }
  std::int64_t NewSegment(int itsDay, int minutes) {
    segs.push_back({++lastSegment_, itsDay, minutes});
    return lastSegment_;
  }
  void NewRow(int itsDay, std::int64_t of, int pos, const std::string& name,
              const std::string& alias = "") {
    rows.push_back({++lastRow_, itsDay, of, pos, name, alias});
  }
  void Duplicate() {
    const std::int64_t from = selected;
    selected = NewSegment(day, Selected()->Minutes);
    const std::vector<Row> before = rows;
    for (auto each = before.rbegin(); each != before.rend(); ++each) {
      if (each->Of == from) NewRow(0, selected, each->Pos, each->Name, each->Alias);
    }
  }
  void Remove() {
    const auto some = OfDay();
    std::size_t at = 0;
    while (some[at].Id != selected) ++at;
    const std::int64_t next = at + 1 < some.size() ? some[at + 1].Id : at > 0 ? some[at - 1].Id : 0;
    std::erase_if(segs, [this](const Seg& each) { return each.Id == selected; });
    std::erase_if(rows, [this](const Row& each) { return each.Of == selected; });
    selected = next;
  }
  /// True where another of the day has the time.
  bool Time(int minutes) {
    Selected()->Minutes = minutes;
    return std::any_of(segs.begin(), segs.end(), [&](const Seg& each) {
      return each.Day == day && each.Id != selected && each.Minutes == minutes;
    });
  }

  int OnDay() const {
    return static_cast<int>(std::count_if(rows.begin(), rows.end(),
                                          [this](const Row& each) { return each.Day == day; }));
  }
  /// False where the slot's row isn't there.
  bool Put(int slot, const std::string& name) {
    const auto detail = Detail();
    if (slot >= static_cast<int>(detail.size())) {
      NewRow(day, selected, slot + 1, name);
      return true;
    }
    Row* const row = At(slot);
    if (row == nullptr) return false;
    row->Name = name;
    return true;
  }
  void Drop(int slot) {
    std::erase_if(rows,
                  [&](const Row& each) { return each.Of == selected && each.Pos == slot + 1; });
    Renumber(selected);
  }
  void Move(int slot, bool down) {
    Row* const row = At(slot);
    if (row == nullptr) return;
    const auto detail = Detail();
    const auto place = std::find(detail.begin(), detail.end(), row);
    if (down ? place + 1 == detail.end() : place == detail.begin()) return;
    std::swap(row->Pos, (*(down ? place + 1 : place - 1))->Pos);
    Renumber(selected);
  }

  /// What a save does to the rows.
  void Name() {
    std::vector<std::int64_t> ids;
    for (const Row& each : rows) ids.push_back(each.Of);
    for (const std::int64_t id : ids) Renumber(id);
    std::map<int, std::map<std::int64_t, int>> numbers;
    for (const Row& each : rows) numbers[each.Day][each.Of] = 0;
    for (auto& [itsDay, some] : numbers) {
      int number = 0;
      for (auto& [id, its] : some) its = ++number;
    }
    for (Row& each : rows) {
      const std::string number = std::to_string(1000 + numbers[each.Day][each.Of]).substr(1);
      each.Alias =
          "F" + std::to_string(each.Day) + "-" + number + std::to_string(each.Pos) + ".mp3";
    }
  }
  /// The lines of named rows, by the file's digit; all in 0 for the one file.
  std::map<int, std::string> Lines(bool one) {
    std::vector<Row> sorted;
    for (const Row& each : rows) {
      if (ById(each.Of) != nullptr) sorted.push_back(each);
    }
    std::stable_sort(sorted.begin(), sorted.end(), [](const Row& a, const Row& c) {
      return std::tie(a.Day, a.Of, a.Pos) < std::tie(c.Day, c.Of, c.Pos);
    });
    std::map<int, std::string> files;
    std::string* line = nullptr;
    std::int64_t before = 0;
    for (const Row& each : sorted) {
      if (line == nullptr || each.Of != before) {
        if (line != nullptr) *line += "\r\n";
        line = &files[one ? 0 : each.Day];
        *line += Clock(ById(each.Of)->Minutes, ':');
      }
      before = each.Of;
      *line += "\t" + each.Alias.substr(0, each.Alias.size() - 4) + "\t";
    }
    if (line != nullptr) *line += "\r\n";
    return files;
  }
  static std::string Clock(int minutes, char mark) {
    return std::to_string(100 + minutes / 60).substr(1) + mark +
           std::to_string(100 + minutes % 60).substr(1);
  }

 private:
  Seg* ById(std::int64_t id) {
    for (Seg& each : segs) {
      if (each.Id == id) return &each;
    }
    return nullptr;
  }
  /// The first row of the detail at the place of a slot.
  Row* At(int slot) {
    for (Row* each : Detail()) {
      if (each->Pos == slot + 1) return each;
    }
    return nullptr;
  }
  /// The rows of a segment on all days get 1, 2, 3 ... by Pos.
  void Renumber(std::int64_t id) {
    std::vector<Row*> some;
    for (Row& each : rows) {
      if (each.Of == id) some.push_back(&each);
    }
    std::stable_sort(some.begin(), some.end(),
                     [](const Row* a, const Row* c) { return a->Pos < c->Pos; });
    for (std::size_t i = 0; i < some.size(); ++i) some[i]->Pos = static_cast<int>(i) + 1;
  }

  bool locked_;
  std::int64_t lastSegment_ = 0;
  std::int64_t lastRow_ = 0;
};

}  // namespace kvr5::test
