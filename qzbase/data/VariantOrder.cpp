// The order of variants: by plain keys where all are numbers or all are texts, else by comparing the variants.
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string>

#include "qzbase/data/VectorSort.h"
#include "qzbase/runtime/Convert.h"

namespace qzbase {
namespace {

using runtime::Variant;
using runtime::VariantKind;

struct NumberKey {
  double number;
  std::int32_t row;

  NumberKey(const Variant& pKey, std::int32_t pRow) : number(runtime::ToDouble(pKey)), row(pRow) {}
  bool operator<(const NumberKey& pOther) const { return number < pOther.number; }
};

// Most texts differ in their first characters, which are kept beside each other as one number.
struct TextKey {
  std::uint64_t beginning = 0;
  const std::u16string* text;
  std::int32_t row;

  TextKey(const Variant& pKey, std::int32_t pRow) : text(pKey.If<std::u16string>()), row(pRow) {
    for (std::size_t i = 0; i < 4; ++i) beginning = beginning << 16 | (i < text->size() ? (*text)[i] : 0u);
  }
  bool operator<(const TextKey& pOther) const {
    return beginning != pOther.beginning ? beginning < pOther.beginning : *text < *pOther.text;
  }
};

bool IsNumber(const Variant& pKey) {
  switch (pKey.Kind()) {
    case VariantKind::Single:
      return !std::isnan(*pKey.If<float>());
    case VariantKind::Double:
      return !std::isnan(*pKey.If<double>());
    case VariantKind::Date:
      return !std::isnan(pKey.If<runtime::Date>()->days);
    case VariantKind::Empty:
    case VariantKind::Integer:
    case VariantKind::Long:
    case VariantKind::Boolean:
      return true;
    default:
      return false;
  }
}

bool IsText(const Variant& pKey) {
  return pKey.Kind() == VariantKind::String;
}

template <class Key>
std::vector<std::int32_t> OrderOf(std::span<const Variant> pKeys, bool pAscending) {
  std::vector<Key> keys;
  keys.reserve(pKeys.size());
  std::int32_t row = 0;
  for (const Variant& key : pKeys) keys.emplace_back(key, row++);
  if (pAscending)
    std::stable_sort(keys.begin(), keys.end());
  else
    std::stable_sort(keys.begin(), keys.end(), [](const Key& pLeft, const Key& pRight) { return pRight < pLeft; });
  std::vector<std::int32_t> order;
  order.reserve(keys.size());
  for (const Key& key : keys) order.push_back(key.row);
  return order;
}

}  // namespace

std::vector<std::int32_t> SortedOrder(std::span<const Variant> pKeys, bool pAscending) {
  if (pKeys.size() < 2) return std::vector<std::int32_t>(pKeys.size());
  if (std::all_of(pKeys.begin(), pKeys.end(), IsNumber)) return OrderOf<NumberKey>(pKeys, pAscending);
  if (std::all_of(pKeys.begin(), pKeys.end(), IsText)) return OrderOf<TextKey>(pKeys, pAscending);
  const runtime::LocaleRules& rules = runtime::ThreadLocale();
  const auto key = [pKeys](std::int32_t pIndex) -> const Variant& { return pKeys[static_cast<std::size_t>(pIndex)]; };
  const auto orderOf = [&](std::int32_t pFirst, std::int32_t pSecond) {
    return CompareInSort(key(pFirst), key(pSecond), runtime::CaseRule::CaseSensitive, rules);
  };
  return SortedOrder(static_cast<std::int32_t>(pKeys.size()), pAscending, orderOf);
}

}  // namespace qzbase
