// The vocabulary of the member tables: one table a class, one row a member, in the order of the interface's slots.
//
//   template <>
//   inline constexpr auto members<CDblVector> = table(
//       get<&CDblVector::Size>("Size", "The number of elements."),
//       let<&CDblVector::LetSize>("Size"),
//       method<&CDblVector::InsertValue>("InsertValue", {"pAtPos", opt("pValue", kInvalidDouble)},
//                                        "Inserts a value at a position."), ...);
//
// A row names the function and its parameters, types come from the function's signature. The function may be a member
// of the class or of a base, or static. A let or set takes the new value last; that parameter is not named. One row of
// each member says in one line what the member does. `byRef("X")` marks a parameter that callers pass by reference
// although the function does not change it, `out("X")` one that it sets whatever was there. A fault in a table stops
// the compiler, which then names one of the functions `Fault...` below.
//
// Members have ids, counted from 1 in order of first appearance: get, let and set of one name share one.
// No class has a default member. Names are found ignoring case.
//
// What the automation server, the type library and every other way to a class are made from:
//
//   identity<C>                  name, GUIDs, help and whether the class is a global one (Identities.h)
//   members<C>.rows[i]           name, help, kind, id, result type, marks of slot i
//   memberTable<C>               the same without types, with look-up: Parameters(row), Find(name), rowsOfId
//   MemberOf<C, i>::kFunction    the function itself: Signature<decltype(kFunction)> has its C++ types
//   MemberOf<C, i>::kParameters  what is known of each parameter, known to the compiler
//   fields<R>, items<E>          the fields of a record, the items of an enumeration
//
// Call.h makes the calls, the same for every way.
//
// Include the tables before any system header of Windows, whose macros rename members.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "qzbase/automation/NameIndex.h"
#include "qzbase/automation/Records.h"
#include "qzbase/automation/Rows.h"
#include "qzbase/automation/Types.h"

namespace qzbase::automation {

// Specialised once per class: THE tables.
template <class C>
inline constexpr auto members = nullptr;

namespace detail {

// Never defined: calling one while a table is made stops the compiler, which then says its name.
void FaultTwoRowsOfOneNameAndKind();
void FaultMethodAndPropertyOfOneName();
void FaultMemberWithoutHelp();
void FaultMandatoryParameterAfterOptionalOne();
void FaultDefaultDoesNotFitItsParameter();

constexpr bool DefaultFits(const ParameterDesc& pParameter) {
  using Kind = DefaultValue::Kind;
  const BaseType base = pParameter.type.base;
  const Kind kind = pParameter.defaultValue.kind;
  if (kind == Kind::None) return true;
  if (pParameter.type.isArray) return false;
  if (base == BaseType::Variant) return true;
  switch (kind) {
    case Kind::Unset:
      return (base == BaseType::Object || base == BaseType::Class) && !pParameter.mustBeSet;
    case Kind::Boolean:
      return base == BaseType::Boolean;
    case Kind::Text:
      return base == BaseType::Text;
    case Kind::Double:
      return base == BaseType::Double || base == BaseType::Single || base == BaseType::Date;
    default:
      return base == BaseType::Long || base == BaseType::Enumeration || base == BaseType::Integer ||
             base == BaseType::Byte || base == BaseType::Double || base == BaseType::Single;
  }
}

constexpr void CheckParameters(const MemberDesc& pMember, std::span<const ParameterDesc> pParameters) {
  bool optional = false;
  for (std::size_t i = 0; i < pParameters.size(); ++i) {
    if (!DefaultFits(pParameters[i])) FaultDefaultDoesNotFitItsParameter();
    const bool isNewValue = pMember.IsPut() && i + 1 == pParameters.size();
    if (optional && !isNewValue && !pParameters[i].IsOptional()) FaultMandatoryParameterAfterOptionalOne();
    optional |= pParameters[i].IsOptional();
  }
}

// Whether the rows of one name, from its first one on, are of different kinds, and either one method or properties.
constexpr void CheckKinds(std::span<const MemberDesc> pRows) {
  std::array<bool, kMemberKinds> seen{};
  std::size_t count = 0;
  for (const MemberDesc& row : pRows) {
    if (row.name != pRows.front().name) continue;
    bool& kind = seen[static_cast<std::size_t>(row.kind)];
    if (kind) FaultTwoRowsOfOneNameAndKind();
    kind = true;
    ++count;
  }
  if (count > 1 && seen[static_cast<std::size_t>(MemberKind::Method)]) FaultMethodAndPropertyOfOneName();
}

// Gives the rows of one name, from its first one on, their id, and what one of them says to all of them.
constexpr void JoinRows(std::span<MemberDesc> pRows, MemberId pId) {
  const std::string_view name = pRows.front().name;
  std::string_view help;
  for (const MemberDesc& row : pRows)
    if (row.name == name && help.empty()) help = row.help;
  if (help.empty()) FaultMemberWithoutHelp();
  for (MemberDesc& row : pRows) {
    if (row.name != name) continue;
    row.id = pId;
    if (row.help.empty()) row.help = help;
  }
}

constexpr void FinishRows(std::span<MemberDesc> pRows) {
  MemberId next = 1;
  for (std::size_t i = 0; i < pRows.size(); ++i) {
    if (pRows[i].id != kNoMember) continue;
    CheckKinds(pRows.subspan(i));
    JoinRows(pRows.subspan(i), next++);
  }
}

template <auto...>
struct Functions {};
template <auto... kLeft, auto... kRight>
constexpr Functions<kLeft..., kRight...> operator+(Functions<kLeft...>, Functions<kRight...>) {
  return {};
}
template <auto... kFunctions>
constexpr Functions<kFunctions...> FunctionsOf(const Rows<kFunctions...>&) {
  return {};
}

template <auto... kFunctions, class... Part>
constexpr Rows<kFunctions...> Join(Functions<kFunctions...>, const Part&... pParts) {
  Rows<kFunctions...> result;
  std::size_t row = 0;
  std::size_t parameter = 0;
  const auto append = [&](std::span<const MemberDesc> pRows, std::span<const ParameterDesc> pParameters) {
    for (const MemberDesc& each : pRows) {
      result.rows[row] = each;
      result.rows[row++].firstParameter = static_cast<std::uint16_t>(parameter + each.firstParameter);
    }
    for (const ParameterDesc& each : pParameters) result.parameters[parameter++] = each;
  };
  (append(pParts.rows, pParts.parameters), ...);
  return result;
}

}  // namespace detail

// Rows that several classes have in common, to be put into their tables like one row.
template <class... Part>
constexpr auto rows(const Part&... pParts) {
  return detail::Join((detail::Functions<>{} + ... + detail::FunctionsOf(pParts)), pParts...);
}

template <class... Part>
constexpr auto table(const Part&... pParts) {
  auto result = rows(pParts...);
  for (const MemberDesc& row : result.rows) detail::CheckParameters(row, result.Parameters(row));
  detail::FinishRows(result.rows);
  return result;
}

// One slot of a class, with its C++ function.
template <class C, std::size_t kSlot>
struct MemberOf {
  static constexpr auto kFunction = decltype(members<C>)::template kFunction<kSlot>;
  using Parts = Signature<decltype(kFunction)>;
  static constexpr const MemberDesc& kMember = members<C>.rows[kSlot];
  static constexpr std::span<const ParameterDesc> kParameters = members<C>.Parameters(kMember);
};

// ---- The same without types, with look-up.

// The rows of one id by their kind, -1 where there is none.
using RowsOfId = std::array<std::int16_t, kMemberKinds>;

struct MemberTable {
  std::span<const MemberDesc> rows;  // in slot order
  std::span<const ParameterDesc> parameters;
  std::span<const RowsOfId> rowsOfId;
  std::span<const std::uint16_t> buckets;

  std::span<const ParameterDesc> Parameters(const MemberDesc& pRow) const {
    return parameters.subspan(pRow.firstParameter, pRow.parameterCount);
  }
  // Ignoring case; `kNoMember` where there is none.
  MemberId Find(std::u16string_view pName) const noexcept;
  // The position of a named parameter of a member, -1 if there is none. A new value has no name.
  std::int32_t FindParameter(MemberId pId, std::u16string_view pName) const noexcept;
  bool Has(MemberId pId) const noexcept;
};

namespace detail {

template <class C>
constexpr auto MakeRowsOfId() {
  std::array<RowsOfId, members<C>.kSize + 1> result{};
  for (RowsOfId& ofId : result) ofId.fill(-1);
  for (std::size_t i = 0; i < members<C>.kSize; ++i) {
    const MemberDesc& row = members<C>.rows[i];
    result[static_cast<std::size_t>(row.id)][static_cast<std::size_t>(row.kind)] = static_cast<std::int16_t>(i);
  }
  return result;
}

template <class C>
inline constexpr auto rowsOfId = MakeRowsOfId<C>();
template <class C>
inline constexpr auto nameBuckets = MakeNameBuckets<members<C>.kSize>([](std::size_t pRow) {
  return members<C>.rows[pRow].name;
});

}  // namespace detail

template <class C>
inline constexpr MemberTable memberTable = {members<C>.rows, members<C>.parameters, detail::rowsOfId<C>,
                                            detail::nameBuckets<C>};

}  // namespace qzbase::automation
