#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/Error.h"

namespace kvr5::test {

/// What a recordset over all rows of `List`, by `NPlaylist` and `Pos`, has to do: the same rules
/// told in the plainest way, in memory.
class RecordsetModel {
 public:
  struct Track {
    int Playlist = 0;
    int Pos = 0;
    std::string Name;
    bool operator==(const Track&) const = default;
  };

  // The table, as statements change it
  std::map<std::int64_t, Track> Table;
  std::int64_t LastId = 0;

  std::int64_t Insert(const Track& track);

  // The recordset; the calls that may fail return the number of the error
  int Requery();
  int RecordCount() const;
  bool Bof() const;
  bool Eof() const;
  int AbsolutePosition() const;
  int MoveFirst();
  int MoveLast();
  int MoveNext();
  int MovePrevious();
  /// To the first row from the current one on of which `test` is true.
  template <typename Test>
  int Find(Test test) {
    StoreChanges();
    if (Current() == nullptr) return errors::NoCurrentRecord;
    for (std::size_t i = *at_; i < keys_.size(); ++i) {
      if (keys_[i].Gone) continue;
      if (!Table.contains(keys_[i].Id)) {
        keys_[i].Gone = true;
      } else if (test(keys_[i].Id, Table.at(keys_[i].Id))) {
        at_ = i;
        return 0;
      }
    }
    at_ = keys_.size();
    return 0;
  }
  int AddNew();
  int SetPos(int pos);
  int SetName(const std::string& name);
  int Update();
  void CancelUpdate();
  int Delete();

  /// The row as it is shown, with what was set; null without one. Notes when it is gone.
  const Track* Shown();
  std::int64_t Id();

 private:
  struct Key {
    std::int64_t Id;
    bool Gone = false;
  };

  Track* Current();
  int Visit(std::size_t from, int step);
  int VisitEnd(std::size_t from, int step);
  int StoreChanges();
  bool OnRow() const { return at_ && *at_ < keys_.size(); }

  std::vector<Key> keys_;
  std::optional<std::size_t> at_;  ///< nothing before the rows, their number behind them
  bool editing_ = false;
  bool adding_ = false;
  Track edited_;
  std::optional<int> newPos_;
  std::optional<std::string> newName_;
};

}  // namespace kvr5::test
