// A one-based, growable list of values of one scalar type: CDblVector, CLngVector, CStrVector and CBoolVector.
//
// It is an ElementVector that reads arrays and texts. What grows in blocks and sorts is a BlockVector; what can be
// added up and measured is a NumberVector.
//
// The invalid value marks a missing element. `Size` counts it, `NrValid` does not. Booleans have none.
//
// Record: that of ElementVector.h, each element in the record of its type.
#pragma once

#include <concepts>
#include <cstdint>
#include <string_view>

#include "qzbase/data/ElementVector.h"
#include "qzbase/runtime/Array.h"

namespace qzbase {

template <class Self, class ElementTraits>
class TypedVector : public ElementVector<Self, ElementTraits> {
  using Base = ElementVector<Self, ElementTraits>;

 public:
  using Element = ElementTraits;
  using Base::LetSize;
  using Base::Size;
  using typename Base::Type;

  QZVarType VarType() const noexcept requires(Element::kVarType != EVTInvalid) { return Element::kVarType; }

  // Any lower bound will do.
  void SetFromArray(const runtime::Array<Type>& InArray);
  // All slots, from 1 to the capacity.
  runtime::Array<Type> GetArray() const { return {1, storage_.AllSlots()}; }

  // Reads what `GetString` gives. Parentheses, and braces within them, may be missing; a piece that says no value
  // leaves its slot as it was. Never raises an error.
  void SetFromString(std::u16string_view pString);

  std::int32_t NrValid() const requires(!std::same_as<Type, bool>) {
    const runtime::LocaleRules& rules = runtime::ThreadLocale();
    const auto isValid = [&](const Type& pValue) { return !Element::Equal(pValue, Element::kDefault, rules); };
    std::int32_t count = 0;
    storage_.Walk(
        Size(), [&](const Type& pValue) { count += isValid(pValue); },
        [&](const Type& pZero, std::int32_t pCount) { count += isValid(pZero) ? pCount : 0; });
    return count;
  }

 protected:
  using Base::storage_;

 private:
  void SaveElements(CBuffer& pBuffer) const final;
  void LoadElements(CBuffer& pBuffer) final;
};

}  // namespace qzbase
