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
/// the end and count at once. Values are read when a row is visited or asked for, so that a change
/// made by a statement in between is seen; a row deleted by others is passed over by the moves.
/// After its own Delete the cursor stands on a hole: reads and Update fail (3021), and it is
/// neither at BOF nor at EOF. A query with a join or computed columns is read-only: AddNew,
/// Set, Update and Delete fail with 3251.
class Recordset {
 public:
  Recordset();
  ~Recordset();
  Recordset(const Recordset&) = delete;
  Recordset& operator=(const Recordset&) = delete;

  /// Opens on the first row, or at BOF and EOF when there is none; 3704 when the connection is
  /// closed, -2147217900 on a bad statement. An open recordset fails with 3705.
  Error Open(Connection& connection, std::string_view statement);
  void Close();
  /// False also once the connection was closed.
  bool IsOpen() const;
  /// Runs the query again and stands on the first row.
  Error Requery();

  /// Rows of the keyset that still exist, own additions included; -1 when closed.
  int RecordCount() const;
  bool Bof() const;
  bool Eof() const;
  /// 1 for the first row; -2 at BOF, -3 at EOF, -1 when closed or on a hole.
  int AbsolutePosition() const;

  Error MoveFirst();
  Error MoveLast();
  Error MoveNext();      ///< from the last row to EOF; 3021 at EOF
  Error MovePrevious();  ///< from the first row to BOF; 3021 at BOF
  /// Goes forward from the current row (included) to the first that meets `criterion`, such as
  /// "ID=7" or "Pos=3" or "FileName='a'"; EOF when none does. 3021 when there is no current row.
  Error Find(std::string_view criterion);

  /// The value of a column of the current row, by name without regard to case: 3021 without a
  /// current row, 3265 on an unknown column. While a new row is being made, what was set.
  Result<DbValue> Get(std::string_view column) const;
  /// The value as text: Null gives "", a whole number plain decimal. "" where Get fails.
  std::string Text(std::string_view column) const;
  /// The value as a whole number; Null, a failure and a text that isn't a number give `fallback`.
  std::int64_t Number(std::string_view column, std::int64_t fallback = 0) const;

  /// Starts a new row; it becomes current with Update.
  Error AddNew();
  /// Sets a column of the current or the new row; nothing is stored before Update.
  Error Set(std::string_view column, DbValue value);
  /// Stores what was set; the row is current afterwards.
  Error Update();
  /// Drops what was set and a row being made.
  void CancelUpdate();
  /// Deletes the current row.
  Error Delete();

 private:
  struct Body;
  std::unique_ptr<Body> body_;
};

}  // namespace kvr5
