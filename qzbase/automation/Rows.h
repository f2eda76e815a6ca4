// One row of a member table: a function, its name and parameters, and what they mean. The vocabulary of Members.h.
#pragma once

#include <array>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <tuple>
#include <type_traits>

#include "qzbase/automation/Types.h"

namespace qzbase::automation {

using MemberId = std::int32_t;
inline constexpr MemberId kNoMember = -1;
inline constexpr std::size_t kMaxParameters = 16;

enum class MemberKind : std::uint8_t { Method, Get, Let, Set };
inline constexpr std::size_t kMemberKinds = 4;

// What an omitted argument stands for.
struct DefaultValue {
  enum class Kind : std::uint8_t {
    None,   // the argument is not optional
    Unset,  // an empty variant or an unset object
    Boolean,
    Long,
    Double,  // also for dates
    Text,
  };
  Kind kind = Kind::None;
  std::int32_t number = 0;  // Boolean: 1 or 0
  double real = 0;
  std::u16string_view text{};
};

// How a parameter's argument goes to the member and what comes back.
enum class Passing : std::uint8_t {
  Value,    // handed over
  Whole,    // handed over, of whatever kind it is, and handed back as it came where it is the result
  Pointer,  // by reference, as the callers' programs want it; the member does not change it
  Change,   // by reference: the caller's variable changes when the member has changed it, and else is not touched
  Output,   // by reference: the caller's variable always takes what the member has made of it
};

// All that is known of a parameter.
struct ParameterDesc {
  std::string_view name;
  TypeDesc type;
  Passing passing = Passing::Value;
  bool mustBeSet = false;  // an unset object raises error 91 before the member is called
  DefaultValue defaultValue;

  constexpr bool IsByRef() const { return passing == Passing::Pointer || MayChange(); }
  constexpr bool MayChange() const { return passing == Passing::Change || passing == Passing::Output; }
  constexpr bool IsOptional() const { return defaultValue.kind != DefaultValue::Kind::None; }
};

struct MemberDesc {
  std::string_view name;
  std::string_view help;
  MemberKind kind = MemberKind::Method;
  bool isHidden = false;
  std::uint8_t parameterCount = 0;   // the new value of a let or set included
  std::uint16_t firstParameter = 0;  // in the table's list of parameters
  MemberId id = kNoMember;
  TypeDesc result;

  constexpr bool IsPut() const { return kind == MemberKind::Let || kind == MemberKind::Set; }
};

// The name of the last parameter of every let and set.
inline constexpr std::string_view kNewValueName = "pNewValue";

// ---- Parameters, as a row names them.

struct Parameter {
  constexpr Parameter(const char* pName) : name(pName) {}
  constexpr Parameter(const char* pName, DefaultValue pDefault) : name(pName), defaultValue(pDefault) {}

  const char* name;
  DefaultValue defaultValue;
  Passing passing = Passing::Value;
};

// An optional variant or object, which then is empty or unset.
constexpr Parameter opt(const char* pName) {
  return {pName, {DefaultValue::Kind::Unset, 0, 0, {}}};
}

template <class T>
constexpr Parameter opt(const char* pName, T pDefault) {
  using Kind = DefaultValue::Kind;
  if constexpr (std::is_same_v<T, bool>)
    return {pName, {Kind::Boolean, pDefault ? 1 : 0, 0, {}}};
  else if constexpr (std::is_integral_v<T> || std::is_enum_v<T>)
    return {pName, {Kind::Long, static_cast<std::int32_t>(pDefault), 0, {}}};
  else if constexpr (std::is_same_v<T, runtime::Date>)
    return {pName, {Kind::Double, 0, pDefault.days, {}}};
  else if constexpr (std::is_floating_point_v<T>)
    return {pName, {Kind::Double, 0, pDefault, {}}};
  else
    return {pName, {Kind::Text, 0, 0, std::u16string_view(pDefault)}};
}

constexpr Parameter byRef(Parameter pParameter) {
  pParameter.passing = Passing::Pointer;
  return pParameter;
}

// Of a parameter `const Variant&` of a function that returns one of its arguments.
constexpr Parameter whole(Parameter pParameter) {
  pParameter.passing = Passing::Whole;
  return pParameter;
}

// Of a parameter `T&`: the variable is stored in any case, also where the value in it happens to be the same.
constexpr Parameter out(Parameter pParameter) {
  pParameter.passing = Passing::Output;
  return pParameter;
}

// ---- Rows.

// One row a function, each with its parameters.
template <auto... kFunctions>
struct Rows {
  static constexpr std::size_t kSize = sizeof...(kFunctions);
  static constexpr std::size_t kParameterCount =
      (Signature<decltype(kFunctions)>::Parameters::kSize + ... + std::size_t{0});
  template <std::size_t kSlot>
  static constexpr auto kFunction = std::get<kSlot>(std::tuple(kFunctions...));

  std::array<MemberDesc, kSize> rows{};
  std::array<ParameterDesc, kParameterCount> parameters{};

  constexpr std::span<const ParameterDesc> Parameters(const MemberDesc& pRow) const {
    return std::span(parameters).subspan(pRow.firstParameter, pRow.parameterCount);
  }
};

template <auto kFunction>
struct Row : Rows<kFunction> {
  static_assert(Row::kParameterCount <= kMaxParameters);

  // Not shown by editors.
  constexpr Row hidden() const {
    Row row = *this;
    row.rows[0].isHidden = true;
    return row;
  }
  // The new value of a let is passed by reference.
  constexpr Row valueByRef() const {
    Row row = *this;
    row.parameters.back().passing = Passing::Pointer;
    return row;
  }
};

namespace detail {

// What the declaration of a parameter says.
template <class Declared>
constexpr ParameterDesc DescribeParameter() {
  using Referred = std::remove_reference_t<Declared>;
  ParameterDesc parameter;
  parameter.type = Describe<Declared>();
  parameter.mustBeSet = ObjectType<std::remove_cv_t<Referred>>;
  const bool isVariable = std::is_lvalue_reference_v<Declared> && !std::is_const_v<Referred>;
  if (isVariable && !parameter.mustBeSet) parameter.passing = Passing::Change;
  return parameter;
}

template <class... Declared>
constexpr std::array<ParameterDesc, sizeof...(Declared)> DescribeAll(TypeList<Declared...>) {
  return {DescribeParameter<Declared>()...};
}

// Never defined: calling it while a table is made stops the compiler, which then says its name.
void FaultPassingDoesNotFitItsParameter();

// Makes the rows of one function and kind. A template, so that the four kinds have their forms in common.
template <auto kFunction, MemberKind kKind>
struct RowMaker {
  using Parts = Signature<decltype(kFunction)>;
  static constexpr bool kIsPut = kKind == MemberKind::Let || kKind == MemberKind::Set;
  static_assert(kKind != MemberKind::Get || !std::is_void_v<typename Parts::Result>, "a get returns nothing");
  static_assert(!kIsPut || std::is_void_v<typename Parts::Result>, "a let or set returns something");

  constexpr auto operator()(const char* pName) const { return Make<0>(pName, nullptr, ""); }

  // `Help` is deduced, so that a list of one parameter is not taken for it.
  template <std::convertible_to<const char*> Help>
  constexpr auto operator()(const char* pName, Help pHelp) const {
    return Make<0>(pName, nullptr, pHelp);
  }

  template <std::size_t kNamed>
  constexpr auto operator()(const char* pName, const Parameter (&pParameters)[kNamed], const char* pHelp = "") const {
    return Make<kNamed>(pName, pParameters, pHelp);
  }

 private:
  template <std::size_t kNamed>
  static constexpr Row<kFunction> Make(const char* pName, const Parameter* pNamed, const char* pHelp) {
    static_assert(kNamed + (kIsPut ? 1 : 0) == Row<kFunction>::kParameterCount,
                  "the row names more or fewer parameters than the function has");
    Row<kFunction> result;
    MemberDesc& row = result.rows[0];
    row.name = pName;
    row.help = pHelp;
    row.kind = kKind;
    row.parameterCount = static_cast<std::uint8_t>(result.parameters.size());
    row.result = Describe<typename Parts::Result>();
    result.parameters = DescribeAll(typename Parts::Parameters{});
    for (std::size_t i = 0; i < kNamed; ++i) {
      ParameterDesc& parameter = result.parameters[i];
      parameter.name = pNamed[i].name;
      parameter.defaultValue = pNamed[i].defaultValue;
      if (pNamed[i].passing == Passing::Value) continue;
      if (parameter.MayChange() != (pNamed[i].passing == Passing::Output)) FaultPassingDoesNotFitItsParameter();
      parameter.passing = pNamed[i].passing;
    }
    if constexpr (kIsPut) result.parameters.back().name = kNewValueName;
    return result;
  }
};

}  // namespace detail

template <auto kFunction>
inline constexpr detail::RowMaker<kFunction, MemberKind::Method> method{};
template <auto kFunction>
inline constexpr detail::RowMaker<kFunction, MemberKind::Get> get{};
template <auto kFunction>
inline constexpr detail::RowMaker<kFunction, MemberKind::Let> let{};
template <auto kFunction>
inline constexpr detail::RowMaker<kFunction, MemberKind::Set> set{};

}  // namespace qzbase::automation
