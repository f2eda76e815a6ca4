// How what a caller has given becomes what a member takes, by the declared type of the parameter. The one place for it:
// natively by name, late bound and early bound calls differ only in `Given`, the form in which an argument arrives.
//
//   T, const T&        the value, in place where it lies there as a T, else converted
//   T&                 a copy, which goes back to the caller's variable when the call has succeeded and changed it
//   const C&, C&       for a class C: the object, which must be set (91)
//   const C*, C*       the object or null; objects are held while they are used
//
// A `Given` has
//
//   IsOmitted()        the parameter's default is meant, which must exist (449)
//   Peek<T>()          where the value lies as a T that stays there during the call, else null
//   PeekText()         the same for a text without a terminating zero of its own
//   Read<T>(parameter) the value converted; raises 13, 6, 94 or 91
//   Store<T>           what is to be stored: `Prepare(given, value)` makes it, `Commit()` stores it
//
// An argument is made, passed, and then, when the call and the conversion of its result have succeeded, prepared and
// committed: only `Commit` changes anything, and it cannot fail.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include "qzbase/automation/Rows.h"
#include "qzbase/automation/SameValue.h"
#include "qzbase/runtime/AutomationError.h"

namespace qzbase::automation {

// The default as the argument that it stands for; the parameter is optional.
runtime::Variant DefaultOf(const ParameterDesc& pParameter);

namespace detail {

// The tables' compiler has checked that the default fits.
template <class T>
T DefaultAs([[maybe_unused]] const ParameterDesc& pParameter) {
  [[maybe_unused]] const DefaultValue& value = pParameter.defaultValue;
  if constexpr (std::is_same_v<T, runtime::Variant>)
    return DefaultOf(pParameter);
  else if constexpr (std::is_same_v<T, std::u16string>)
    return T(value.text);
  else if constexpr (std::is_same_v<T, runtime::Date>)
    return {value.real};
  else if constexpr (std::is_floating_point_v<T>)
    return static_cast<T>(value.kind == DefaultValue::Kind::Double ? value.real : value.number);
  else if constexpr (std::is_integral_v<T> || std::is_enum_v<T>)
    return static_cast<T>(value.number);
  else
    return {};
}

template <class Given>
bool IsOmitted(const Given& pGiven, const ParameterDesc& pParameter) {
  if (!pGiven.IsOmitted()) return false;
  if (!pParameter.IsOptional()) runtime::Raise(runtime::RuntimeError::ArgumentNotOptional);
  return true;
}

template <class T, class Given>
T ReadOrDefault(const Given& pGiven, const ParameterDesc& pParameter) {
  return IsOmitted(pGiven, pParameter) ? DefaultAs<T>(pParameter) : pGiven.template Read<T>(pParameter);
}

// Nothing goes back to the caller.
struct InOnly {
  void Prepare() noexcept {}
  void Commit() noexcept {}
};

}  // namespace detail

template <class Declared, class Given>
class Argument : public detail::InOnly {
  using T = ValueOf<Declared>;

 public:
  Argument(const Given& pGiven, const ParameterDesc& pParameter) {
    if (!pGiven.IsOmitted()) inside_ = pGiven.template Peek<T>();
    if (!inside_) converted_.emplace(detail::ReadOrDefault<T>(pGiven, pParameter));
  }
  const T& Pass() const noexcept { return inside_ ? *inside_ : *converted_; }

 private:
  const T* inside_ = nullptr;
  std::optional<T> converted_;
};

template <class Given>
class Argument<std::u16string_view, Given> : public detail::InOnly {
 public:
  Argument(const Given& pGiven, const ParameterDesc& pParameter) {
    if (detail::IsOmitted(pGiven, pParameter))
      text_ = pParameter.defaultValue.text;
    else if (const std::optional<std::u16string_view> inside = pGiven.PeekText())
      text_ = *inside;
    else
      text_ = converted_ = pGiven.template Read<std::u16string>(pParameter);
  }
  Argument(const Argument&) = delete;
  Argument& operator=(const Argument&) = delete;
  std::u16string_view Pass() const noexcept { return text_; }

 private:
  std::u16string converted_;
  std::u16string_view text_;
};

// What can be passed by reference and changed by it; objects are passed by reference without being replaced.
template <class T>
concept Changeable = !std::is_const_v<T> && !ObjectType<T>;

template <Changeable T, class Given>
class Argument<T&, Given> {
 public:
  Argument(const Given& pGiven, const ParameterDesc& pParameter)
      : given_(pGiven), value_(detail::ReadOrDefault<T>(pGiven, pParameter)) {
    if (pParameter.passing == Passing::Change) before_.emplace(value_);
  }

  T& Pass() noexcept { return value_; }
  void Prepare() {
    if (!given_.IsOmitted() && !(before_ && SameValue(*before_, value_))) change_.Prepare(given_, std::move(value_));
  }
  void Commit() noexcept { change_.Commit(); }

 private:
  Given given_;
  T value_;
  std::optional<T> before_;
  typename Given::template Store<T> change_;
};

template <class C, class Given>
requires ObjectType<std::remove_const_t<C>>
class Argument<C*, Given> : public detail::InOnly {
 public:
  Argument(const Given& pGiven, const ParameterDesc& pParameter)
      : object_(detail::ReadOrDefault<runtime::Ref<std::remove_const_t<C>>>(pGiven, pParameter)) {}
  C* Pass() const noexcept { return object_.get(); }

 private:
  const runtime::Ref<std::remove_const_t<C>> object_;
};

template <class C, class Given>
requires ObjectType<std::remove_const_t<C>>
class Argument<C&, Given> : public Argument<C*, Given> {
 public:
  Argument(const Given& pGiven, const ParameterDesc& pParameter) : Argument<C*, Given>(pGiven, pParameter) {
    if (!Argument<C*, Given>::Pass()) runtime::Raise(runtime::RuntimeError::ObjectNotSet);
  }
  C& Pass() const noexcept { return *Argument<C*, Given>::Pass(); }
};

}  // namespace qzbase::automation
