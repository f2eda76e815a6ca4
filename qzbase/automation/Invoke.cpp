#include "qzbase/automation/Invoke.h"

#include <cstddef>
#include <cstdint>

#include "qzbase/automation/ArgumentList.h"
#include "qzbase/runtime/AutomationError.h"

namespace qzbase::automation {
namespace {

using runtime::CallKind;
using runtime::Object;
using runtime::Raise;
using runtime::RuntimeError;
using runtime::Variant;

using Variables = std::span<Variant* const>;

bool Includes(CallKind pKind, CallKind pFlag) {
  return (static_cast<std::uint16_t>(pKind) & static_cast<std::uint16_t>(pFlag)) != 0;
}

std::int16_t RowOf(const RowsOfId& pRows, MemberKind pKind) {
  return pRows[static_cast<std::size_t>(pKind)];
}

// The row for a let, a set or either of them, -1 if there is none or neither is asked for.
std::int16_t PutRow(const RowsOfId& pRows, CallKind pKind, bool pIsObject) {
  if (!Includes(pKind, CallKind::Let) && !Includes(pKind, CallKind::Set)) return -1;
  const bool wantsSet = Includes(pKind, CallKind::Set) && (pIsObject || !Includes(pKind, CallKind::Let));
  const MemberKind wanted = wantsSet ? MemberKind::Set : MemberKind::Let;
  const MemberKind other = wantsSet ? MemberKind::Let : MemberKind::Set;
  const std::int16_t row = RowOf(pRows, wanted);
  return row < 0 && pIsObject ? RowOf(pRows, other) : row;
}

bool EndsWithObject(Variables pArguments) {
  return !pArguments.empty() && pArguments.back() && pArguments.back()->Kind() == runtime::VariantKind::Object;
}

// Whether there is nothing to be put into order.
bool IsComplete(const MemberDesc& pRow, Variables pArguments) {
  if (pArguments.size() != pRow.parameterCount) return false;
  for (const Variant* argument : pArguments)
    if (!argument) return false;
  return true;
}

}  // namespace

std::size_t SelectRow(const MemberTable& pTable, MemberId pId, CallKind pKind, bool pIsObject) {
  if (pId < 0 || static_cast<std::size_t>(pId) >= pTable.rowsOfId.size()) Raise(RuntimeError::MemberNotFound);
  const RowsOfId& rows = pTable.rowsOfId[static_cast<std::size_t>(pId)];
  std::int16_t row = -1;
  if (Includes(pKind, CallKind::Method)) row = RowOf(rows, MemberKind::Method);
  if (row < 0 && Includes(pKind, CallKind::Get)) row = RowOf(rows, MemberKind::Get);
  if (row < 0) row = PutRow(rows, pKind, pIsObject);
  if (row < 0) Raise(RuntimeError::MemberNotFound);
  return static_cast<std::size_t>(row);
}

Variant InvokeById(const ClassEntry& pEntry, Object& pObject, MemberId pId, CallKind pKind, Variables pArguments,
                   std::span<const NamedArgument> pNamed) {
  const MemberTable& table = *pEntry.members;
  const std::size_t at = SelectRow(table, pId, pKind, EndsWithObject(pArguments));
  const MemberDesc& row = table.rows[at];
  Variant result;
  if (pNamed.empty() && IsComplete(row, pArguments)) {
    pEntry.functions[at](pObject, pArguments.data(), result);
    return result;
  }
  ArgumentList<Variant> list(table, row);
  const std::size_t positional = pArguments.size() - (row.IsPut() && !pArguments.empty() ? 1 : 0);
  for (std::size_t i = 0; i < positional; ++i) list.Place(i, pArguments[i]);
  if (positional < pArguments.size()) list.PlaceLast(pArguments[positional]);
  for (const NamedArgument& named : pNamed) list.PlaceNamed(table.FindParameter(row.id, named.name), named.value);
  pEntry.functions[at](pObject, list.Complete(), result);
  return result;
}

Variant InvokeByName(const ClassEntry& pEntry, Object& pObject, std::u16string_view pName, CallKind pKind,
                     Variables pArguments, std::span<const NamedArgument> pNamed) {
  return InvokeById(pEntry, pObject, pEntry.members->Find(pName), pKind, pArguments, pNamed);
}

}  // namespace qzbase::automation
