#include "data/engine/Recordset.h"

#include "data/engine/RecordsetImpl.h"
#include "data/engine/RowValue.h"
#include "data/types/DatabaseError.h"

Recordset::Recordset(std::unique_ptr<Impl> impl) : impl_(std::move(impl)) {}
Recordset::~Recordset() = default;

bool Recordset::EOF_() const {
    impl_->requireOpen();
    return impl_->cursor >= impl_->rows;
}
bool Recordset::BOF_() const {
    impl_->requireOpen();
    return impl_->rows == 0 || impl_->cursor < 0;
}
long Recordset::RecordCount() const {
    impl_->requireOpen();
    return impl_->rows;
}
long Recordset::AbsolutePosition() const {
    impl_->requireOpen();
    return impl_->cursor >= 0 && impl_->cursor < impl_->rows ? impl_->cursor : -1;
}

namespace {
void moveTo(Recordset::Impl& impl, long row) {
    impl.requireOpen();
    impl.editing = Recordset::Impl::Editing::None;
    impl.deleted = false;
    impl.cursor = row;
}
} // namespace

void Recordset::MoveFirst() {
    impl_->requireOpen();
    if (impl_->rows == 0)
        throw DatabaseError(3021, "No current record");
    moveTo(*impl_, 0);
}
void Recordset::MoveLast() {
    impl_->requireOpen();
    if (impl_->rows == 0)
        throw DatabaseError(3021, "No current record");
    moveTo(*impl_, impl_->rows - 1);
}
void Recordset::MoveNext() {
    impl_->requireOpen();
    if (impl_->cursor >= impl_->rows)
        throw DatabaseError(3021, "No current record");
    // After a delete the next row has already moved up.
    moveTo(*impl_, impl_->deleted ? impl_->cursor : impl_->cursor + 1);
}
void Recordset::MovePrevious() {
    impl_->requireOpen();
    if (impl_->cursor < 0 || impl_->rows == 0)
        throw DatabaseError(3021, "No current record");
    moveTo(*impl_, impl_->cursor - 1);
}

using Direction = Recordset::Impl::Direction;

void Recordset::FindFirst(std::string_view expression) {
    impl_->requireOpen();
    impl_->search(expression, 0, Direction::Forward);
}
void Recordset::FindNext(std::string_view expression) {
    impl_->requireOpen();
    impl_->search(expression, impl_->deleted ? impl_->cursor : impl_->cursor + 1, Direction::Forward);
}
void Recordset::FindLast(std::string_view expression) {
    impl_->requireOpen();
    impl_->search(expression, impl_->rows - 1, Direction::Backward);
}
void Recordset::FindPrevious(std::string_view expression) {
    impl_->requireOpen();
    impl_->search(expression, impl_->cursor - 1, Direction::Backward);
}
bool Recordset::NoMatch() const {
    impl_->requireOpen();
    return impl_->noMatch;
}

int Recordset::fieldCount() const {
    impl_->requireOpen();
    return impl_->columns();
}
const jet::ResultColumn& Recordset::field(int position) const {
    impl_->requireOpen();
    if (position < 0 || position >= impl_->columns())
        throw DatabaseError(3265, "There is no field number " + std::to_string(position));
    return impl_->program.columns[static_cast<std::size_t>(position)];
}
const Value& Recordset::value(int position) const {
    field(position);
    if (impl_->editing != Impl::Editing::None)
        return impl_->buffer[static_cast<std::size_t>(position)];
    impl_->requireRow();
    return impl_->cell(impl_->cursor, position);
}
const Value& Recordset::value(std::string_view name) const {
    impl_->requireOpen();
    return value(impl_->position(name));
}

void Recordset::Edit() {
    impl_->requireRow();
    impl_->requireEditable();
    impl_->buffer.clear();
    for (int column = 0; column < impl_->columns(); ++column)
        impl_->buffer.push_back(impl_->cell(impl_->cursor, column));
    impl_->touched.assign(impl_->buffer.size(), false);
    impl_->editing = Impl::Editing::Existing;
}
void Recordset::AddNew() {
    impl_->requireOpen();
    impl_->requireEditable();
    impl_->beginNew();
}
void Recordset::set(int position, Value newValue) {
    field(position);
    if (impl_->editing == Impl::Editing::None)
        throw DatabaseError(3020, "A field can be set only between Edit or AddNew and Update");
    const auto at = static_cast<std::size_t>(position);
    impl_->buffer[at] = storedValue(impl_->tableField(position), newValue);
    impl_->touched[at] = true;
}
void Recordset::set(std::string_view name, Value newValue) {
    impl_->requireOpen();
    set(impl_->position(name), std::move(newValue));
}
void Recordset::Update() {
    impl_->requireOpen();
    switch (impl_->editing) {
    case Impl::Editing::None:
        throw DatabaseError(3020, "There is no Edit or AddNew to update");
    case Impl::Editing::Existing:
        impl_->file->named([&] { impl_->writeExisting(); });
        break;
    case Impl::Editing::New:
        impl_->file->named([&] { impl_->writeNew(); });
        break;
    }
    impl_->editing = Impl::Editing::None;
}
void Recordset::CancelUpdate() {
    impl_->requireOpen();
    impl_->editing = Impl::Editing::None;
}

void Recordset::Delete() {
    impl_->requireRow();
    impl_->requireEditable();
    impl_->file->named([&] { impl_->removeRow(); });
}

void Recordset::Requery() {
    impl_->requireOpen();
    impl_->file->named([&] { impl_->requery(); });
}
void Recordset::Close() {
    impl_->requireOpen();
    impl_->forgetChange();
    impl_->file.reset();
    impl_->edited.reset();
    impl_->cells = {};
    impl_->rowids = {};
}
