// The calls with arguments and result in variants of the library's own: natively by name.
#pragma once

#include <utility>

#include "qzbase/automation/Call.h"
#include "qzbase/automation/RecordObject.h"
#include "qzbase/automation/VariantValue.h"

namespace qzbase::automation {

// `pArguments` are as many as the member has parameters, null where one is left out. The object is of the class of the
// table.
using VariantFunction = void (*)(runtime::Object& pObject, runtime::Variant* const* pArguments,
                                 runtime::Variant& pResult);

struct VariantGiven {
  runtime::Variant* variable;

  bool IsOmitted() const noexcept { return !variable; }
  template <class T>
  const T* Peek() const {
    return VariantValue<T>::Peek(*variable);
  }
  std::optional<std::u16string_view> PeekText() const noexcept {
    const auto* text = variable->If<std::u16string>();
    return text ? std::optional<std::u16string_view>(*text) : std::nullopt;
  }
  template <class T>
  T Read(const ParameterDesc&) const {
    return VariantValue<T>::From(*variable);
  }

  template <class T>
  class Store {
   public:
    void Prepare(const VariantGiven& pGiven, T pValue) {
      if constexpr (detail::kIsArray<T>)
        fresh_ = VariantValue<T>::ToLike(*pGiven.variable, std::move(pValue));
      else
        fresh_ = VariantValue<T>::To(std::move(pValue));
      target_ = pGiven.variable;
    }
    void Commit() noexcept {
      if (target_) *target_ = std::move(fresh_);
    }

   private:
    runtime::Variant* target_ = nullptr;
    runtime::Variant fresh_;
  };
};

struct VariantAnswer {
  runtime::Variant& result;

  template <class T>
  void Make(T pValue) {
    result = VariantValue<T>::To(std::move(pValue));
  }
  void MakeAsGiven(const VariantGiven& pGiven) { result = *pGiven.variable; }
  void Commit() noexcept {}
};

template <class C, std::size_t kRow>
struct VariantCall {
  static void Run(runtime::Object& pObject, runtime::Variant* const* pArguments, runtime::Variant& pResult) {
    CallWithList<C, kRow, VariantGiven>(pObject, pArguments, VariantAnswer{pResult});
  }
};

}  // namespace qzbase::automation
