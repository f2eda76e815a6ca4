#include "qzbase/runtime/Compare.h"

#include <compare>

#include "qzbase/runtime/Convert.h"

namespace qzbase::runtime {
namespace {

Order Reversed(Order pOrder) {
  return pOrder == Order::Less ? Order::Greater : pOrder == Order::Greater ? Order::Less : pOrder;
}

Order OrderOf(int pSign) {
  return pSign < 0 ? Order::Less : pSign > 0 ? Order::Greater : Order::Equal;
}

void RefuseObjects(const Variant& pValue) {
  if (pValue.Kind() == VariantKind::Object || pValue.Kind() == VariantKind::Array) Raise(RuntimeError::TypeMismatch);
}

// `pCompareTexts` gives the sign of one text against another.
template <class CompareTexts>
Order CompareBy(CompareTexts pCompareTexts, const Variant& pLeft, const Variant& pRight, const LocaleRules& pRules) {
  RefuseObjects(pLeft);
  RefuseObjects(pRight);
  if (pLeft.IsNull() || pRight.IsNull()) return Order::Unknown;

  const auto* leftText = pLeft.If<std::u16string>();
  const auto* rightText = pRight.If<std::u16string>();
  if (leftText && rightText) return OrderOf(pCompareTexts(*leftText, *rightText));
  if (leftText) return pRight.IsEmpty() && leftText->empty() ? Order::Equal : Order::Greater;
  if (rightText) return Reversed(CompareBy(pCompareTexts, pRight, pLeft, pRules));
  return CompareNumbers(ToDouble(pLeft, pRules), ToDouble(pRight, pRules));
}

}  // namespace

Order CompareNumbers(double pLeft, double pRight) noexcept {
  const std::partial_ordering order = pLeft <=> pRight;
  if (order == std::partial_ordering::unordered) return Order::Unknown;
  return std::is_lt(order) ? Order::Less : std::is_gt(order) ? Order::Greater : Order::Equal;
}

Order Compare(const Variant& pLeft, const Variant& pRight, CaseRule pCase, const LocaleRules& pRules) {
  return CompareBy([&](const std::u16string& pFirst,
                       const std::u16string& pSecond) { return os::CompareText(pFirst, pSecond, pCase, pRules.name); },
                   pLeft, pRight, pRules);
}

Order CompareExact(const Variant& pLeft, const Variant& pRight, const LocaleRules& pRules) {
  return CompareBy([](const std::u16string& pFirst, const std::u16string& pSecond) { return pFirst.compare(pSecond); },
                   pLeft, pRight, pRules);
}

bool EqualExact(const Variant& pLeft, const Variant& pRight, const LocaleRules& pRules) {
  return CompareExact(pLeft, pRight, pRules) == Order::Equal;
}

}  // namespace qzbase::runtime
