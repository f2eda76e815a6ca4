// The calls with arguments and result in the platform's variants: late bound, and the variants among early-bound
// arguments.
//
// A variant that holds just what a parameter takes is read where it lies; others are converted (Conversion.h).
#pragma once

#include <optional>
#include <string_view>
#include <utility>

#include "qzbase/automation/Call.h"
#include "qzbase/automation/com/SafeArrays.h"
#include "qzbase/automation/com/ServerClasses.h"
#include "qzbase/automation/com/TypedVariant.h"

namespace qzbase::automation::com {

class DispatchGiven {
 public:
  // As late-bound callers pass arguments: null for one that is left out. What is a reference is a variable.
  explicit DispatchGiven(VARIANT* pArgument) : value_(pArgument ? SeenThrough(*pArgument) : nullptr) {
    const bool isReference = pArgument && (pArgument != value_ || (pArgument->vt & VT_BYREF) != 0);
    if (isReference) variable_ = const_cast<VARIANT*>(value_);
  }
  // A variable itself, and a value that nothing is stored into.
  static DispatchGiven Variable(VARIANT* pVariable) {
    if (!pVariable) throw NullPointer();
    DispatchGiven given(Value(*pVariable));
    given.variable_ = const_cast<VARIANT*>(given.value_);
    return given;
  }
  static DispatchGiven Value(const VARIANT& pValue) {
    DispatchGiven given(nullptr);
    if (!com::IsOmitted(pValue)) given.value_ = SeenThrough(pValue);
    return given;
  }

  bool IsOmitted() const noexcept { return !value_; }

  template <class T>
  const T* Peek() const noexcept {
    return nullptr;
  }
  std::optional<std::u16string_view> PeekText() const noexcept {
    return value_->vt == VT_BSTR ? std::optional(TextIn(value_->bstrVal)) : std::nullopt;
  }

  template <class T>
  T Read(const ParameterDesc& pParameter) const {
    if constexpr (std::is_same_v<T, runtime::Variant>) {
      if (pParameter.MayChange()) return WholeVariant(*value_);
      return FromVariant(*value_, pParameter.passing == Passing::Whole ? Digits::Nearest : Digits::All);
    } else {
      if constexpr (!RecordType<T>)
        if (const auto* native = NativeIn<T>(*value_)) return Border<T>::From(*native);
      return ConvertVariant<T>(*value_);
    }
  }

  // The value as it was given, of whatever kind.
  VARIANT Copy() const { return CopyOf(*value_); }

  template <class T>
  class Store {
   public:
    void Prepare(const DispatchGiven& pGiven, T pValue) {
      if (pGiven.variable_) change_.Prepare(*pGiven.variable_, VariantValue<T>::To(std::move(pValue)));
    }
    void Commit() noexcept { change_.Commit(); }

   private:
    WriteBack change_;
  };

 private:
  const VARIANT* value_;
  VARIANT* variable_ = nullptr;
};

struct DispatchAnswer {
  VARIANT* target;
  OwnedVariant made{};

  template <class T>
  void Make(T pValue) {
    if (target) made.value = ValueToVariant(std::move(pValue));
  }
  void MakeAsGiven(const DispatchGiven& pGiven) {
    if (target) made.value = pGiven.Copy();
  }
  void Commit() noexcept {
    if (target) *target = made.Release();
  }
};

template <class C, std::size_t kRow>
struct DispatchCall {
  static void Run(runtime::Object& pObject, VARIANT* const* pArguments, VARIANT* pResult) {
    CallWithList<C, kRow, DispatchGiven>(pObject, pArguments, DispatchAnswer{pResult});
  }
};

}  // namespace qzbase::automation::com
