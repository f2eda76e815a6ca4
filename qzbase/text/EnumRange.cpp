#include "qzbase/text/EnumRange.h"

#include <utility>
#include <vector>

#include "qzbase/runtime/NumberText.h"
#include "qzbase/runtime/TextCompare.h"
#include "qzbase/text/ModString.h"

namespace qzbase::ModString {
namespace {

constexpr char16_t kDelimiter = u';';

std::u16string_view WithoutBraces(std::u16string_view pRange) {
  if (pRange.starts_with(u'{')) pRange.remove_prefix(1);
  if (pRange.ends_with(u'}')) pRange.remove_suffix(1);
  return pRange;
}

// Walks through the items that `SplitList` would give, without copying them.
class EnumItems {
 public:
  explicit EnumItems(std::u16string_view pRange) : rest_(WithoutBraces(pRange)), more_(!rest_.empty()) {}

  // False behind the last item; `pItem` is left as it was then.
  bool Next(std::u16string_view& pItem) {
    if (!more_) return false;
    const std::size_t end = rest_.find(kDelimiter);
    pItem = rest_.substr(0, end);
    more_ = end != std::u16string_view::npos;
    if (more_) rest_.remove_prefix(end + 1);
    return true;
  }

 private:
  std::u16string_view rest_;
  bool more_;
};

// Whether all items are single values, as far as braces and brackets tell.
bool HoldsValues(std::u16string_view pRange) {
  return HasBraces(pRange) && pRange.find(u'[') == std::u16string_view::npos;
}

bool HasAsterisk(std::u16string_view pRange) {
  return pRange.find(u'*') != std::u16string_view::npos;
}

}  // namespace

std::u16string MakeEnumRange(const runtime::Array<std::u16string>& Item, std::u16string_view FirstItem) {
  std::u16string range;
  InitEnumRange(range);
  if (!FirstItem.empty()) range.append(FirstItem) += kDelimiter;
  for (const std::u16string& item : Item) range.append(item) += kDelimiter;
  FinalizeEnumRange(range);
  return range;
}

void InitEnumRange(std::u16string& pRange) {
  pRange = u"{";
}

void FinalizeEnumRange(std::u16string& pRange) {
  if (pRange.ends_with(kDelimiter)) pRange.pop_back();
  pRange += u'}';
}

std::int32_t ParseEnumRange(std::u16string_view Range, runtime::Array<std::u16string>& Item) {
  return SplitList(WithoutBraces(Range), {&kDelimiter, 1}, Item);
}

std::int32_t EnumOrd(std::u16string_view Item, std::u16string_view Range) {
  EnumItems items(Range);
  std::int32_t position = 0;
  for (std::u16string_view item; items.Next(item);) {
    ++position;
    if (item == Item) return position;
  }
  return -1;
}

std::u16string EnumVal(std::int32_t ItemNr, std::u16string_view Range) {
  EnumItems items(Range);
  std::int32_t position = 0;
  for (std::u16string_view item; items.Next(item);)
    if (++position == ItemNr) return std::u16string(item);
  return {};
}

std::u16string MakeValueList(const runtime::Array<double>& Value) {
  const runtime::LocaleRules& rules = runtime::ThreadLocale();
  std::u16string list;
  InitEnumRange(list);
  for (const double value : Value) {
    runtime::AppendNumberText(list, value, rules);
    list += kDelimiter;
  }
  FinalizeEnumRange(list);
  return list;
}

std::int32_t ParseValueList(std::u16string_view List, runtime::Array<double>& Value) {
  std::vector<double> values;
  EnumItems items(List);
  for (std::u16string_view item; items.Next(item);) values.push_back(runtime::LeadingNumber(item));
  const auto count = static_cast<std::int32_t>(values.size());
  if (values.empty()) values.push_back(0);
  Value = runtime::Array<double>(1, std::move(values));
  return count;
}

bool HasBraces(std::u16string_view Range) {
  return Range.size() >= 2 && runtime::EqualText(Range.substr(0, 1), u"{") &&
         runtime::EqualText(Range.substr(Range.size() - 1), u"}");
}

bool IsMember(std::u16string_view Value, std::u16string_view Range) {
  if (!HasBraces(Range)) return false;
  const auto delimited = [](std::u16string_view pText) {
    return (std::u16string(1, kDelimiter).append(pText) += kDelimiter);
  };
  return runtime::FindText(delimited(Range.substr(1, Range.size() - 2)), delimited(Value)) != std::u16string_view::npos;
}

bool IsList(std::u16string_view Range) {
  return HoldsValues(Range) && !HasAsterisk(Range);
}

bool IsCombo(std::u16string_view Range) {
  return HoldsValues(Range) && HasAsterisk(Range);
}

}  // namespace qzbase::ModString
