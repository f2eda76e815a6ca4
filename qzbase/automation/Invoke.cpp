#include "qzbase/automation/Invoke.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "qzbase/automation/NameIndex.h"
#include "qzbase/runtime/AutomationError.h"

namespace qzbase::automation {
namespace {

using runtime::CallKind;
using runtime::Object;
using runtime::Raise;
using runtime::RuntimeError;
using runtime::Variant;

using ArgumentList = std::span<Variant* const>;

bool Includes(CallKind pKind, CallKind pFlag) {
  return (static_cast<std::uint16_t>(pKind) & static_cast<std::uint16_t>(pFlag)) != 0;
}

bool HoldsObject(ArgumentList pArguments) {
  return !pArguments.empty() && pArguments.back() && pArguments.back()->Kind() == runtime::VariantKind::Object;
}

std::int16_t RowOf(const RowsOfId& pRows, MemberKind pKind) {
  return pRows[static_cast<std::size_t>(pKind)];
}

// The row for a let, a set or either of them, -1 if there is none or neither is asked for.
std::int16_t PutRow(const RowsOfId& pRows, CallKind pKind, ArgumentList pArguments) {
  if (!Includes(pKind, CallKind::Let) && !Includes(pKind, CallKind::Set)) return -1;
  const bool isObject = HoldsObject(pArguments);
  const bool wantsSet = Includes(pKind, CallKind::Set) && (isObject || !Includes(pKind, CallKind::Let));
  const MemberKind wanted = wantsSet ? MemberKind::Set : MemberKind::Let;
  const MemberKind other = wantsSet ? MemberKind::Let : MemberKind::Set;
  const std::int16_t row = RowOf(pRows, wanted);
  return row < 0 && isObject ? RowOf(pRows, other) : row;
}

bool IsComplete(ArgumentList pArguments) {
  for (const Variant* argument : pArguments)
    if (!argument) return false;
  return true;
}

// The arguments of one call, put into the order of the parameters, with defaults where none is given.
class OrderedArguments {
 public:
  OrderedArguments(const MemberTable& pTable, const MemberDesc& pRow, ArgumentList pGiven,
                   std::span<const NamedArgument> pNamed)
      : parameters_(pTable.Parameters(pRow)) {
    PlacePositional(pRow, pGiven);
    for (const NamedArgument& named : pNamed) PlaceNamed(pTable, pRow, named);
    PlaceDefaults();
  }

  Variant* const* Data() const noexcept { return arguments_.data(); }

 private:
  void PlacePositional(const MemberDesc& pRow, ArgumentList pGiven) {
    if (pGiven.size() > parameters_.size()) Raise(RuntimeError::WrongNumberOfArguments);
    std::copy(pGiven.begin(), pGiven.end(), arguments_.begin());
    if (pRow.IsPut() && !pGiven.empty()) std::swap(arguments_[pGiven.size() - 1], arguments_[parameters_.size() - 1]);
  }

  void PlaceNamed(const MemberTable& pTable, const MemberDesc& pRow, const NamedArgument& pNamed) {
    const std::int32_t at = pTable.FindParameter(pRow.id, pNamed.name);
    if (at < 0) Raise(RuntimeError::NamedArgumentNotFound);
    Variant*& argument = arguments_[static_cast<std::size_t>(at)];
    if (argument) Raise(RuntimeError::WrongNumberOfArguments);  // given twice
    argument = pNamed.value;
  }

  void PlaceDefaults() {
    for (std::size_t i = 0; i < parameters_.size(); ++i) {
      if (arguments_[i]) continue;
      if (!parameters_[i].IsOptional()) Raise(RuntimeError::ArgumentNotOptional);
      defaults_[i] = DefaultOf(parameters_[i]);
      arguments_[i] = &defaults_[i];
    }
  }

  std::span<const ParameterDesc> parameters_;
  std::array<Variant*, kMaxParameters> arguments_{};
  std::array<Variant, kMaxParameters> defaults_;
};

}  // namespace

bool MemberTable::Has(MemberId pId) const noexcept {
  if (pId < 0 || static_cast<std::size_t>(pId) >= rowsOfId.size()) return false;
  for (const std::int16_t row : rowsOfId[static_cast<std::size_t>(pId)])
    if (row >= 0) return true;
  return false;
}

MemberId MemberTable::Find(std::u16string_view pName) const noexcept {
  if (pName.empty()) return Has(kDefaultMember) ? kDefaultMember : kNoMember;
  const std::int32_t row = FindName(buckets, pName, [this](std::size_t pRow) { return rows[pRow].name; });
  return row < 0 ? kNoMember : rows[static_cast<std::size_t>(row)].id;
}

std::int32_t MemberTable::FindParameter(MemberId pId, std::u16string_view pName) const noexcept {
  if (!Has(pId)) return -1;
  for (const std::int16_t row : rowsOfId[static_cast<std::size_t>(pId)]) {
    if (row < 0) continue;
    const MemberDesc& member = rows[static_cast<std::size_t>(row)];
    const auto named = Parameters(member).first(member.parameterCount - (member.IsPut() ? 1U : 0U));
    for (std::size_t i = 0; i < named.size(); ++i)
      if (EqualNames(named[i].name, pName)) return static_cast<std::int32_t>(i);
  }
  return -1;
}

Variant DefaultOf(const ParameterDesc& pParameter) {
  const DefaultValue& value = pParameter.defaultValue;
  switch (value.kind) {
    case DefaultValue::Kind::Boolean:
      return Variant(value.number != 0);
    case DefaultValue::Kind::Long:
      return Variant(value.number);
    case DefaultValue::Kind::Double:
      return Variant(value.real);
    case DefaultValue::Kind::Text:
      return Variant(value.text);
    default:
      return {};
  }
}

std::size_t SelectRow(const MemberTable& pTable, MemberId pId, CallKind pKind, ArgumentList pArguments) {
  if (pId < 0 || static_cast<std::size_t>(pId) >= pTable.rowsOfId.size()) Raise(RuntimeError::MemberNotFound);
  const RowsOfId& rows = pTable.rowsOfId[static_cast<std::size_t>(pId)];
  std::int16_t row = -1;
  if (Includes(pKind, CallKind::Method)) row = RowOf(rows, MemberKind::Method);
  if (row < 0 && Includes(pKind, CallKind::Get)) row = RowOf(rows, MemberKind::Get);
  if (row < 0) row = PutRow(rows, pKind, pArguments);
  if (row < 0) Raise(RuntimeError::MemberNotFound);
  return static_cast<std::size_t>(row);
}

Variant InvokeRow(const ClassEntry& pEntry, Object& pObject, std::size_t pRow, ArgumentList pArguments,
                  std::span<const NamedArgument> pNamed) {
  const MemberTable& table = *pEntry.members;
  const MemberDesc& row = table.rows[pRow];
  Variant result;
  if (pNamed.empty() && pArguments.size() == row.parameterCount && IsComplete(pArguments)) {
    pEntry.thunks[pRow](pObject, pArguments.data(), result);
  } else {
    const OrderedArguments ordered(table, row, pArguments, pNamed);
    pEntry.thunks[pRow](pObject, ordered.Data(), result);
  }
  return result;
}

Variant InvokeById(const ClassEntry& pEntry, Object& pObject, MemberId pId, CallKind pKind, ArgumentList pArguments,
                   std::span<const NamedArgument> pNamed) {
  return InvokeRow(pEntry, pObject, SelectRow(*pEntry.members, pId, pKind, pArguments), pArguments, pNamed);
}

Variant InvokeByName(const ClassEntry& pEntry, Object& pObject, std::u16string_view pName, CallKind pKind,
                     ArgumentList pArguments, std::span<const NamedArgument> pNamed) {
  return InvokeById(pEntry, pObject, pEntry.members->Find(pName), pKind, pArguments, pNamed);
}

}  // namespace qzbase::automation
