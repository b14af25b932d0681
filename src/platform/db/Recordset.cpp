#include "platform/db/Recordset.h"

#include <optional>
#include <utility>

#include "platform/db/Criterion.h"
#include "platform/db/DbError.h"
#include "platform/db/JetGrammar.h"
#include "platform/db/Names.h"
#include "platform/db/RowSource.h"

namespace kvr5 {

/// Where the cursor stands and what is being edited. All of it only while it is open.
struct Recordset::Body {
  enum class Standing { Before, OnRow, After };
  enum class Editing { Nothing, OldRow, NewRow };

  std::unique_ptr<RowSource> rows;
  Standing standing = Standing::After;
  std::size_t slot = 0;  ///< of the current row or hole
  Editing editing = Editing::Nothing;
  RowChanges changes;

  int Living() const { return rows->Rows().Living(); }
  bool OnHole() const { return standing == Standing::OnRow && !rows->Rows().Lives(slot); }

  void DropChanges() {
    editing = Editing::Nothing;
    changes.clear();
  }

  /// The stored values of the current row.
  Result<const RowValues*> Current() {
    if (standing != Standing::OnRow || OnHole()) return Error(errors::NoCurrentRecord);
    Result<const RowValues*> row = rows->Read(slot);
    if (row && row.Value() == nullptr) return Error(errors::NoCurrentRecord);
    return row;
  }

  /// Goes to the row at `place`; where rows turn out to be gone, on in the direction of `step`
  /// (1 or -1), if need be off the rows.
  Error Visit(int place, int step) {
    rows->Refresh();
    while (place >= 1 && place <= Living()) {
      const std::size_t next = rows->Rows().SlotAt(place);
      const Result<const RowValues*> row = rows->Read(next);
      if (!row) return row.Err();
      if (row.Value() != nullptr) {
        standing = Standing::OnRow;
        slot = next;
        return {};
      }
      // The rows behind the missing one have moved up by a place.
      if (step < 0) --place;
    }
    standing = place < 1 ? Standing::Before : Standing::After;
    return {};
  }

  /// To the first or the last row.
  Error VisitEnd(int place, int step) {
    if (Error error = Visit(place, step)) return error;
    if (standing == Standing::OnRow) return {};
    standing = Standing::After;
    return Error(errors::NoCurrentRecord);
  }

  Error Store() {
    if (editing == Editing::OldRow) {
      Error error = OnHole() ? Error(errors::NoCurrentRecord) : rows->Store(slot, changes);
      // A row that is gone leaves nothing to try again.
      if (!error || error.Number() == errors::NoCurrentRecord) DropChanges();
      return error;
    }
    const Result<std::size_t> added = rows->Add(changes);
    if (!added) return added.Err();
    DropChanges();
    standing = Standing::OnRow;
    slot = added.Value();
    return {};
  }

  Error StoreChanges() { return editing == Editing::Nothing ? Error() : Store(); }

  const DbValue* Changed(std::size_t column) const {
    for (const auto& [changed, value] : changes) {
      if (changed == column) return &value;
    }
    return nullptr;
  }

  void Change(std::size_t column, DbValue value) {
    for (auto& [changed, old] : changes) {
      if (changed == column) {
        old = std::move(value);
        return;
      }
    }
    changes.emplace_back(column, std::move(value));
  }
};

Recordset::Recordset() : body_(std::make_unique<Body>()) {}

Recordset::~Recordset() = default;

Error Recordset::Open(Connection& connection, std::string_view statement) {
  if (IsOpen()) return DbError(errors::ObjectOpen);
  Close();
  if (!connection.IsOpen()) return Error(errors::ObjectClosed);
  Result<JetStatement> query = ParseJetSql(statement);
  if (!query) return query.Err();
  if (query.Value().What != JetStatement::Verb::Select) {
    return {errors::BadStatement, "The statement returns no records"};
  }
  Result<std::unique_ptr<RowSource>> rows =
      RowSource::Open(connection.Base(), std::move(query.Value()));
  if (!rows) return rows.Err();
  body_->rows = std::move(rows.Value());
  Error error = body_->Visit(1, 1);
  if (error) Close();
  return error;
}

void Recordset::Close() {
  *body_ = Body();
}

bool Recordset::IsOpen() const {
  return body_->rows != nullptr && body_->rows->IsOpen();
}

Error Recordset::Requery() {
  if (!IsOpen()) return Error(errors::ObjectClosed);
  body_->DropChanges();
  if (Error error = body_->rows->Load()) return error;
  body_->standing = Body::Standing::After;
  return body_->Visit(1, 1);
}

int Recordset::RecordCount() const {
  return IsOpen() ? body_->Living() : -1;
}

bool Recordset::Bof() const {
  if (!IsOpen()) return true;
  if (body_->editing == Body::Editing::NewRow || body_->standing == Body::Standing::OnRow) {
    return false;
  }
  return body_->standing == Body::Standing::Before || body_->Living() == 0;
}

bool Recordset::Eof() const {
  if (!IsOpen()) return true;
  if (body_->editing == Body::Editing::NewRow || body_->standing == Body::Standing::OnRow) {
    return false;
  }
  return body_->standing == Body::Standing::After || body_->Living() == 0;
}

int Recordset::AbsolutePosition() const {
  if (!IsOpen() || body_->editing == Body::Editing::NewRow || body_->OnHole()) return -1;
  if (Eof()) return -3;
  return Bof() ? -2 : body_->rows->Rows().PlaceOf(body_->slot);
}

Error Recordset::MoveFirst() {
  if (!IsOpen()) return Error(errors::ObjectClosed);
  if (Error error = body_->StoreChanges()) return error;
  return body_->VisitEnd(1, 1);
}

Error Recordset::MoveLast() {
  if (!IsOpen()) return Error(errors::ObjectClosed);
  if (Error error = body_->StoreChanges()) return error;
  return body_->VisitEnd(body_->Living(), -1);
}

Error Recordset::MoveNext() {
  if (!IsOpen()) return Error(errors::ObjectClosed);
  if (Error error = body_->StoreChanges()) return error;
  if (Eof()) return Error(errors::NoCurrentRecord);
  if (body_->standing == Body::Standing::Before) return body_->Visit(1, 1);
  return body_->Visit(body_->rows->Rows().PlaceOf(body_->slot) + 1, 1);
}

Error Recordset::MovePrevious() {
  if (!IsOpen()) return Error(errors::ObjectClosed);
  if (Error error = body_->StoreChanges()) return error;
  if (Bof()) return Error(errors::NoCurrentRecord);
  if (body_->standing == Body::Standing::After) return body_->Visit(body_->Living(), -1);
  const int place = body_->rows->Rows().PlaceOf(body_->slot);
  return body_->Visit(body_->OnHole() ? place : place - 1, -1);
}

Error Recordset::Find(std::string_view criterion) {
  if (!IsOpen()) return Error(errors::ObjectClosed);
  const Result<Criterion> parsed = ParseCriterion(criterion);
  if (!parsed) return parsed.Err();
  const Criterion& wanted = parsed.Value();
  RowSource& rows = *body_->rows;
  const std::optional<std::size_t> column = rows.Find(wanted.Name);
  if (!column) return DbError(errors::ColumnNotFound);
  if (!wanted.Suits(rows.Columns()[*column])) return DbError(errors::BadCriterion);
  if (Error error = body_->StoreChanges()) return error;
  if (const Result<const RowValues*> row = body_->Current(); !row) return row.Err();

  rows.Refresh();
  const ReadScope scope(rows.Base());
  int place = rows.Rows().PlaceOf(body_->slot);
  while (place <= body_->Living()) {
    const std::size_t slot = rows.Rows().SlotAt(place);
    const Result<const RowValues*> row = rows.Read(slot);
    if (!row) return row.Err();
    if (row.Value() == nullptr) continue;
    if (wanted.IsMetBy((*row.Value())[*column])) {
      body_->slot = slot;
      return {};
    }
    ++place;
  }
  body_->standing = Body::Standing::After;
  return {};
}

Result<DbValue> Recordset::Get(std::string_view column) const {
  if (!IsOpen()) return Error(errors::ObjectClosed);
  const std::optional<std::size_t> found = body_->rows->Find(column);
  if (body_->editing == Body::Editing::NewRow) {
    if (!found) return DbError(errors::ColumnNotFound);
    const DbValue* const set = body_->Changed(*found);
    return set != nullptr ? *set : DbValue();
  }
  const Result<const RowValues*> row = body_->Current();
  if (!row) return row.Err();
  if (!found) return DbError(errors::ColumnNotFound);
  const DbValue* const set = body_->Changed(*found);
  return set != nullptr ? *set : (*row.Value())[*found];
}

std::string Recordset::Text(std::string_view column) const {
  const Result<DbValue> value = Get(column);
  return value ? ValueText(value.Value()) : "";
}

std::int64_t Recordset::Number(std::string_view column, std::int64_t fallback) const {
  const Result<DbValue> value = Get(column);
  if (!value) return fallback;
  const Result<std::int64_t> whole = WholeNumber(value.Value());
  return whole ? whole.Value() : fallback;
}

Error Recordset::AddNew() {
  if (!IsOpen()) return Error(errors::ObjectClosed);
  if (!body_->rows->IsUpdatable()) return DbError(errors::RecordsetReadOnly);
  if (Error error = body_->StoreChanges()) return error;
  body_->editing = Body::Editing::NewRow;
  return {};
}

Error Recordset::Set(std::string_view column, DbValue value) {
  if (!IsOpen()) return Error(errors::ObjectClosed);
  if (!body_->rows->IsUpdatable()) return DbError(errors::RecordsetReadOnly);
  if (body_->editing != Body::Editing::NewRow) {
    if (const Result<const RowValues*> row = body_->Current(); !row) return row.Err();
  }
  const std::optional<std::size_t> found = body_->rows->Find(column);
  if (!found) return DbError(errors::ColumnNotFound);
  const Column& target = body_->rows->Columns()[*found];
  if (SameName(target.Name, jet::kCounter)) return DbError(errors::RecordsetReadOnly);
  Result<DbValue> fitted = Fitted(target, std::move(value));
  if (!fitted) return fitted.Err();
  body_->Change(*found, std::move(fitted.Value()));
  if (body_->editing == Body::Editing::Nothing) body_->editing = Body::Editing::OldRow;
  return {};
}

Error Recordset::Update() {
  if (!IsOpen()) return Error(errors::ObjectClosed);
  if (!body_->rows->IsUpdatable()) return DbError(errors::RecordsetReadOnly);
  if (body_->editing != Body::Editing::Nothing) return body_->Store();
  return body_->Current().Err();
}

void Recordset::CancelUpdate() {
  body_->DropChanges();
}

Error Recordset::Delete() {
  if (!IsOpen()) return Error(errors::ObjectClosed);
  if (!body_->rows->IsUpdatable()) return DbError(errors::RecordsetReadOnly);
  if (body_->editing == Body::Editing::NewRow) return Error(errors::NoCurrentRecord);
  body_->DropChanges();
  if (const Result<const RowValues*> row = body_->Current(); !row) return row.Err();
  return body_->rows->Erase(body_->slot);
}

}  // namespace kvr5
