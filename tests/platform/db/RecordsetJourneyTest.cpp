// Long random journeys of a recordset beside a plain model of it.

#include <algorithm>
#include <optional>
#include <random>

#include "DatabaseTest.h"
#include "RecordsetModel.h"

namespace kvr5::test {
namespace {

std::string Small(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
  return text;
}

/// One journey; its seed tells all that happens in it.
class Journey : public DatabaseTest {
 public:
  explicit Journey(unsigned seed) : random_(seed) {
    SetUp();
    // A commit waits for the disk: most journeys are one run.
    if (seed % 10 != 0) run_.emplace(connection);
    const int size = Any(12);
    for (int i = 0; i < size; ++i) InsertByStatement();
    Same(rows_.Open(connection, kAll), 0);
    model_.Requery();
  }

  void Play() {
    for (int step = 0; step < 60 && !HasFailure(); ++step) {
      SCOPED_TRACE("step " + std::to_string(step));
      Step();
      Compare();
    }
    rows_.Close();
    run_.reset();
    Texts ids;
    Texts names;
    for (const auto& [id, track] : model_.Table) {
      ids.push_back(std::to_string(id));
      names.push_back(track.Name);
    }
    EXPECT_EQ(Column("SELECT * FROM [List] ORDER BY ID", "ID"), ids);
    EXPECT_EQ(Column("SELECT * FROM [List] ORDER BY ID", "FileName"), names);
  }

 private:
  void TestBody() override {}

  int Any(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }

  std::string AnyName() {
    const char first = Any(2) != 0 ? 'a' : 'A';
    return {static_cast<char>(first + Any(4))};
  }

  std::int64_t AnyId() { return 1 + Any(static_cast<int>(model_.LastId) + 1); }

  void InsertByStatement() {
    const RecordsetModel::Track track{Any(3), Any(9), AnyName()};
    AddTrack(track.Playlist, track.Pos, track.Name);
    model_.Insert(track);
  }

  void ChangeByStatement() {
    const std::int64_t id = AnyId();
    const int pos = Any(9);
    Run("UPDATE [List] SET [Pos]=" + std::to_string(pos) + " WHERE ID=" + std::to_string(id));
    if (model_.Table.contains(id)) model_.Table[id].Pos = pos;
  }

  void DeleteByStatement() {
    if (Any(4) == 0) {
      const int playlist = Any(3);
      Run("DELETE * FROM [List] WHERE [NPlaylist]=" + std::to_string(playlist));
      std::erase_if(model_.Table, [=](const auto& row) { return row.second.Playlist == playlist; });
    } else {
      const std::int64_t id = AnyId();
      Run("DELETE * FROM [List] WHERE [ID]=" + std::to_string(id));
      model_.Table.erase(id);
    }
  }

  void RenameByStatement() {
    const std::string from = AnyName();
    const std::string to = AnyName();
    Run("UPDATE [List] SET [FileName]='" + to + "' WHERE [FileName]='" + from + "'");
    for (auto& [id, track] : model_.Table) {
      if (Small(track.Name) == Small(from)) track.Name = to;
    }
  }

  void Find() {
    const int pos = Any(9);
    const std::int64_t id = AnyId();
    const std::string name = AnyName();
    switch (Any(4)) {
      case 0:
        Same(rows_.Find("ID=" + std::to_string(id)),
             model_.Find([=](std::int64_t row, const auto&) { return row == id; }));
        break;
      case 1:
        Same(rows_.Find("[Pos]>" + std::to_string(pos)),
             model_.Find([=](std::int64_t, const auto& track) { return track.Pos > pos; }));
        break;
      case 2:
        Same(rows_.Find("Filename='" + name + "'"),
             model_.Find([=](std::int64_t, const auto& track) {
               return Small(track.Name) == Small(name);
             }));
        break;
      default:
        Same(rows_.Find("Pos<>" + std::to_string(pos)),
             model_.Find([=](std::int64_t, const auto& track) { return track.Pos != pos; }));
    }
  }

  void SetSome() {
    if (Any(2) == 0) {
      const int pos = Any(9);
      Same(rows_.Set("Pos", pos), model_.SetPos(pos));
    } else {
      const std::string name = AnyName();
      Same(rows_.Set("FileName", name), model_.SetName(name));
    }
  }

  void AddOne() {
    Same(rows_.AddNew(), model_.AddNew());
    const int pos = Any(9);
    const std::string name = AnyName();
    Same(rows_.Set("NPlaylist", 0), 0);
    Same(rows_.Set("Pos", pos), model_.SetPos(pos));
    Same(rows_.Set("FileName", name), model_.SetName(name));
    if (Any(4) != 0) Same(rows_.Update(), model_.Update());
  }

  void Move() {
    switch (Any(6)) {
      case 0:
        return Same(rows_.MoveFirst(), model_.MoveFirst());
      case 1:
        return Same(rows_.MoveLast(), model_.MoveLast());
      case 2:
      case 3:
        return Same(rows_.MovePrevious(), model_.MovePrevious());
      default:
        return Same(rows_.MoveNext(), model_.MoveNext());
    }
  }

  void Step() {
    switch (Any(20)) {
      case 0:
        return InsertByStatement();
      case 1:
        return ChangeByStatement();
      case 2:
        return DeleteByStatement();
      case 3:
        return RenameByStatement();
      case 4:
        return Same(rows_.Requery(), model_.Requery());
      case 5:
      case 6:
        return Find();
      case 7:
      case 8:
      case 9:
        return SetSome();
      case 10:
        return Same(rows_.Update(), model_.Update());
      case 11:
        rows_.CancelUpdate();
        return model_.CancelUpdate();
      case 12:
        return Same(rows_.Delete(), model_.Delete());
      case 13:
        return AddOne();
      default:
        return Move();
    }
  }

  static void Same(const Error& outcome, int expected) { EXPECT_EQ(outcome.Number(), expected); }

  void Compare() {
    const RecordsetModel::Track* const shown = model_.Shown();
    ASSERT_EQ(static_cast<bool>(rows_.Get("Pos")), shown != nullptr);
    EXPECT_EQ(rows_.RecordCount(), model_.RecordCount());
    EXPECT_EQ(rows_.Bof(), model_.Bof());
    EXPECT_EQ(rows_.Eof(), model_.Eof());
    EXPECT_EQ(rows_.AbsolutePosition(), model_.AbsolutePosition());
    EXPECT_EQ(rows_.Number("ID"), model_.Id());
    if (shown == nullptr) return;
    EXPECT_EQ(rows_.Number("Pos"), shown->Pos);
    EXPECT_EQ(rows_.Text("FileName"), shown->Name);
  }

  std::mt19937 random_;
  std::optional<Transaction> run_;
  Recordset rows_;
  RecordsetModel model_;
};

class RecordsetJourneys : public testing::TestWithParam<unsigned> {};

TEST_P(RecordsetJourneys, AgreeWithTheModel) {
  for (unsigned seed = GetParam(); seed < GetParam() + 30 && !HasFailure(); ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    Journey(seed).Play();
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RecordsetJourneys, testing::Range(1U, 301U, 30U));

}  // namespace
}  // namespace kvr5::test
