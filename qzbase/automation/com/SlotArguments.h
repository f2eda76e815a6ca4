// How the arguments of a slot become those of the function, by the declared type of its parameter (Arguments.h does the
// same for variants).
//
//   T, const T&        the native by value; `kByRef` says that callers pass a pointer to it
//   const R&           a record: always a pointer
//   T&                 a pointer to the caller's variable, changed when the call has succeeded
//   const C&, C&       an interface of class C, which must be set (91)
//   const C*, C*       an interface or null
//
// Null where there must be a pointer gives E_POINTER. Like there, only `Commit` changes anything, and it cannot fail.
#pragma once

#include <string_view>
#include <type_traits>
#include <utility>

#include "qzbase/automation/Arguments.h"
#include "qzbase/automation/com/Border.h"
#include "qzbase/automation/com/ErrorBorder.h"
#include "qzbase/automation/com/SafeArrays.h"

namespace qzbase::automation::com {

namespace detail {

template <class Pointee>
Pointee& Checked(Pointee* pPointer) {
  if (!pPointer) throw NullPointer();
  return *pPointer;
}

// What a caller passes, and the native behind it.
template <class NativeType, bool kByPointer>
struct PassedNative {
  using Passed = std::conditional_t<kByPointer, NativeType*, NativeType>;
  static const NativeType& In(const Passed& pPassed) {
    if constexpr (kByPointer)
      return Checked(pPassed);
    else
      return pPassed;
  }
};

// Nothing goes back to the caller.
struct InOnly {
  void Prepare() noexcept {}
  void Commit() noexcept {}
};

// An array that must stay where it is cannot be exchanged.
template <class T>
void CheckTakes(const typename Border<T>::Native& pVariable, const typename Border<T>::Native& pFresh) {
  if constexpr (std::is_same_v<typename Border<T>::Native, SAFEARRAY*>) CheckReplaceable(pVariable, pFresh);
}

template <class T>
void Exchange(typename Border<T>::Native& pVariable, OwnedNative<T>& pFresh) noexcept {
  if constexpr (std::is_same_v<typename Border<T>::Native, SAFEARRAY*>) {
    ReplaceArray(pVariable, pFresh.Release());
  } else {
    Border<T>::Clear(pVariable);
    pVariable = pFresh.Release();
  }
}

}  // namespace detail

template <class Declared, bool kByRef>
class SlotArgument : public detail::InOnly {
  using T = ValueOf<Declared>;
  using Native = detail::PassedNative<typename Border<T>::Native, kByRef || RecordType<T>>;

 public:
  using Passed = typename Native::Passed;
  explicit SlotArgument(const Passed& pPassed) : value_(Border<T>::From(Native::In(pPassed))) {}
  const T& Pass() const noexcept { return value_; }

 private:
  T value_;
};

// Texts are read where they are.
template <bool kByRef>
class SlotArgument<std::u16string_view, kByRef> : public detail::InOnly {
  using Native = detail::PassedNative<BSTR, kByRef>;

 public:
  using Passed = typename Native::Passed;
  explicit SlotArgument(const Passed& pPassed) : text_(TextIn(Native::In(pPassed))) {}
  std::u16string_view Pass() const noexcept { return text_; }

 private:
  std::u16string_view text_;
};

template <Changeable T>
class SlotArgument<T&, true> {
 public:
  using Passed = typename Border<T>::Native*;
  explicit SlotArgument(Passed pPassed) : variable_(detail::Checked(pPassed)), value_(Border<T>::From(variable_)) {}

  T& Pass() noexcept { return value_; }
  void Prepare() {
    fresh_ = OwnedNative<T>(Border<T>::To(value_));
    detail::CheckTakes<T>(variable_, fresh_.Get());
  }
  void Commit() noexcept { detail::Exchange<T>(variable_, fresh_); }

 private:
  typename Border<T>::Native& variable_;
  T value_;
  OwnedNative<T> fresh_;
};

namespace detail {

// The object is held while it is used.
template <class C, bool kByRef>
class ObjectSlotArgument : public InOnly {
  using Native = PassedNative<IDispatch*, kByRef>;

 public:
  using Passed = typename Native::Passed;
  explicit ObjectSlotArgument(const Passed& pPassed)
      : object_(Border<runtime::Ref<std::remove_const_t<C>>>::From(Native::In(pPassed))) {}

 protected:
  const runtime::Ref<std::remove_const_t<C>> object_;
};

}  // namespace detail

template <class C, bool kByRef>
requires ObjectType<std::remove_const_t<C>>
class SlotArgument<C&, kByRef> : public detail::ObjectSlotArgument<C, kByRef> {
 public:
  explicit SlotArgument(const typename SlotArgument::Passed& pPassed) : SlotArgument::ObjectSlotArgument(pPassed) {
    if (!this->object_) runtime::Raise(runtime::RuntimeError::ObjectNotSet);
  }
  C& Pass() const noexcept { return *this->object_; }
};

template <class C, bool kByRef>
requires ObjectType<std::remove_const_t<C>>
class SlotArgument<C*, kByRef> : public detail::ObjectSlotArgument<C, kByRef> {
 public:
  using detail::ObjectSlotArgument<C, kByRef>::ObjectSlotArgument;
  C* Pass() const noexcept { return this->object_.get(); }
};

}  // namespace qzbase::automation::com
