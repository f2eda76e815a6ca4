// How a variant is passed as a parameter, by the parameter's declared type.
//
//   T, const T&        the value inside the variant where it is of type T, else a converted one
//   T&                 a converted copy, stored into the variant once the call has succeeded
//   const C&, C&       for a class C: the object, which must be set (91)
//   const C*, C*       the object or null
//
// An argument is made from the variant, passed, and then, when the call and the conversion of its result have
// succeeded, prepared and committed: only `Commit` changes the caller's variable, and it cannot fail.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include "qzbase/automation/RecordObject.h"
#include "qzbase/automation/VariantValue.h"

namespace qzbase::automation {

// The type that holds a value of a declared type.
template <class Declared>
using ValueOf = std::conditional_t<std::is_same_v<std::remove_cvref_t<Declared>, std::u16string_view>, std::u16string,
                                   std::remove_cvref_t<Declared>>;

template <class Declared>
class Argument {
  using T = ValueOf<Declared>;

 public:
  explicit Argument(const runtime::Variant& pGiven) : inside_(VariantValue<T>::Peek(pGiven)) {
    if (!inside_) converted_.emplace(VariantValue<T>::From(pGiven));
  }

  const T& Pass() const noexcept { return inside_ ? *inside_ : *converted_; }
  void Prepare() noexcept {}
  void Commit() noexcept {}

 private:
  const T* inside_;
  std::optional<T> converted_;
};

// What can be passed by reference and changed by it; objects are passed by reference without being replaced.
template <class T>
concept Changeable = !std::is_const_v<T> && !ObjectType<T>;

template <Changeable T>
class Argument<T&> {
 public:
  explicit Argument(runtime::Variant& pGiven) : given_(pGiven), value_(VariantValue<T>::From(pGiven)) {}

  T& Pass() noexcept { return value_; }
  void Prepare() { result_ = VariantValue<T>::ToLike(given_, std::move(value_)); }
  void Commit() noexcept { given_ = std::move(result_); }

 private:
  runtime::Variant& given_;
  T value_;
  runtime::Variant result_;
};

// A variable that holds no record yet gets one.
template <Changeable R>
requires RecordType<R>
class Argument<R&> {
 public:
  explicit Argument(runtime::Variant& pGiven) : given_(pGiven), record_(RecordIn<R>(pGiven)) {
    if (record_) value_ = record_->value;
  }

  R& Pass() noexcept { return value_; }
  void Prepare() {
    if (!record_) result_ = VariantValue<R>::To(std::move(value_));
  }
  void Commit() noexcept {
    if (record_)
      record_->value = std::move(value_);
    else
      given_ = std::move(result_);
  }

 private:
  runtime::Variant& given_;
  RecordObject<R>* record_;
  R value_{};
  runtime::Variant result_;
};

template <class C>
requires ObjectType<std::remove_const_t<C>>
class Argument<C&> {
 public:
  explicit Argument(const runtime::Variant& pGiven) : object_(ObjectIn<std::remove_const_t<C>>(pGiven)) {
    if (!object_) runtime::Raise(runtime::RuntimeError::ObjectNotSet);
  }

  C& Pass() const noexcept { return *object_; }
  void Prepare() noexcept {}
  void Commit() noexcept {}

 private:
  C* object_;
};

template <class C>
requires ObjectType<std::remove_const_t<C>>
class Argument<C*> {
 public:
  explicit Argument(const runtime::Variant& pGiven) : object_(ObjectIn<std::remove_const_t<C>>(pGiven)) {}

  C* Pass() const noexcept { return object_; }
  void Prepare() noexcept {}
  void Commit() noexcept {}

 private:
  C* object_;
};

}  // namespace qzbase::automation
