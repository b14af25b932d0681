#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "platform/Error.h"
#include "platform/db/Connection.h"
#include "platform/db/Value.h"

namespace kvr5 {

/// A keyset cursor over a query.
///
/// The rows and their order are fixed when it is opened or requeried; its own additions join at
/// the end and count at once. Values are those of the file at the visit, or later ones when this
/// connection has changed something since; so a change made by a statement in between is seen. A
/// row deleted by others is passed over by the moves. After its own Delete the cursor stands on a
/// hole: reads and Update fail (3021), and it is neither at BOF nor at EOF; the moves go on from
/// there. The same holds when the current row is deleted by a statement.
///
/// Rows can be changed when the query is of one table and shows its plain columns. A query with a
/// join, computed or renamed columns or DISTINCT is read-only, and its rows are a copy: AddNew,
/// Set, Update and Delete fail with 3251.
///
/// Each change is stored at once and by itself unless a Transaction is under way. What was set
/// and not yet stored is stored by a move, by Find and by AddNew as if Update had been called
/// (and where that fails, they do and stay); Requery, Close and Delete drop it.
///
/// All calls fail with 3704 when it is closed; -2147467259 tells of a file that is locked, can't
/// be written or is damaged.
class Recordset {
 public:
  Recordset();
  ~Recordset();
  Recordset(const Recordset&) = delete;
  Recordset& operator=(const Recordset&) = delete;

  /// Opens a SELECT on its first row, or at BOF and EOF when there is none; 3704 when the
  /// connection is closed, -2147217900 on a bad statement. An open recordset fails with 3705.
  Error Open(Connection& connection, std::string_view statement);
  void Close();
  /// False also once the connection was closed.
  bool IsOpen() const;
  /// Runs the query again and stands on the first row.
  Error Requery();

  /// Rows of the keyset, own additions included, without those that it knows to be gone: deleted
  /// by itself or missed at a visit; -1 when closed. Takes no time.
  int RecordCount() const;
  /// True when closed, too.
  bool Bof() const;
  bool Eof() const;
  /// 1 for the first row of those that RecordCount counts; -2 at BOF, -3 at EOF (and in an empty
  /// recordset), -1 when closed, on a hole and while a new row is being made.
  int AbsolutePosition() const;

  Error MoveFirst();     ///< 3021 when there are no rows
  Error MoveLast();      ///< 3021 when there are no rows
  Error MoveNext();      ///< from the last row to EOF; 3021 at EOF
  Error MovePrevious();  ///< from the first row to BOF; 3021 at BOF
  /// Goes forward from the current row (included) to the first that meets `criterion`, such as
  /// "ID=7" or "Pos=3" or "FileName='a'" (also <>, <, >, <=, >=); EOF when none does. 3021 when
  /// there is no current row; 3001 on a bad criterion and 3265 on an unknown column, which leave
  /// the place.
  Error Find(std::string_view criterion);

  /// The value of a column of the current row, by name without regard to case: 3021 without a
  /// current row, 3265 on an unknown column. What was set counts; in a new row all else is Null.
  Result<DbValue> Get(std::string_view column) const;
  /// The value as text: Null gives "", a number plain decimal. "" where Get fails.
  std::string Text(std::string_view column) const;
  /// The value as a whole number, a real rounded half to even; Null, a failure and a text that
  /// isn't a number give `fallback`.
  std::int64_t Number(std::string_view column, std::int64_t fallback = 0) const;

  /// Starts a new row; it becomes current with Update.
  Error AddNew();
  /// Sets a column of the current or the new row; nothing is stored before Update. 13 when the
  /// value doesn't suit the column (a whole number takes digits, a time "HH.MM", "HH:MM" and
  /// "HH:MM:SS"); 3251 for the counter `ID`, which the database gives.
  Error Set(std::string_view column, DbValue value);
  /// Stores what was set; the row is current afterwards. 3021 when it is gone. On another failure
  /// what was set is kept, for a second try or CancelUpdate.
  Error Update();
  /// Drops what was set and a row being made; the row that was current before is so again.
  void CancelUpdate();
  /// Deletes the current row.
  Error Delete();

 private:
  struct Body;
  std::unique_ptr<Body> body_;
};

}  // namespace kvr5
