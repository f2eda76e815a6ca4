// The element types of the vectors, one row of traits each.
//
//                   double     long       text     boolean     variant
//   default value   invalid    invalid    "~"      false       invalid double
//   reported type   EVTDouble  EVTDouble  none     EVTBoolean  its own
//   block size      16         16         16       1, fixed    16
//   equality        exact      exact      by text  exact       of variants, texts exact
//
// The default value is the one that InsertValue takes when none is given; the invalid ones are skipped by NrValid and
// Sum. An insertion cuts the storage of variants to the number of elements.
#pragma once

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "qzbase/core/Arithmetic.h"
#include "qzbase/core/QZVarType.h"
#include "qzbase/persist/CBuffer.h"
#include "qzbase/runtime/CheckedNarrow.h"
#include "qzbase/runtime/Compare.h"
#include "qzbase/runtime/Convert.h"
#include "qzbase/runtime/NumberReader.h"
#include "qzbase/runtime/NumberText.h"
#include "qzbase/runtime/TextCompare.h"

namespace qzbase {

inline constexpr std::int32_t kDefaultBlockSize = 16;

// What element types have in common unless their rows say otherwise.
struct AnyElement {
  static constexpr bool kTrimmedByInsert = false;
};
template <class T>
struct PlainElement : AnyElement {
  using Type = T;
  using Argument = T;  // as a vector takes it
  using Result = T;    // as a vector gives it
  using IndexOfClosest = std::int32_t;

  static bool Equal(T pLeft, T pRight, const runtime::LocaleRules&) { return pLeft == pRight; }
};

// Numbers: `Read` leaves the value alone and says false where the text is no number.
template <class T>
struct NumberElement : PlainElement<T> {
  static constexpr QZVarType kVarType = EVTDouble;  // of longs as well: callers rely on it
  static constexpr std::int32_t kBlockSize = kDefaultBlockSize;

  static bool Read(std::u16string_view pText, T& pValue, const runtime::LocaleRules& pRules) {
    return runtime::ReadNumber(pText, pValue, pRules) == runtime::ReadResult::Read;
  }
};

struct DoubleElement : NumberElement<double> {
  static constexpr double kDefault = kInvalidDouble;
  static constexpr auto kAdd = &CBuffer::AddDouble;
  static constexpr auto kNext = &CBuffer::NextDouble;

  // Both raise error 6 where finite numbers give an infinite one.
  static double Plus(double pLeft, double pRight) { return Add(pLeft, pRight); }
  static double Distance(double pLeft, double pRight) { return std::fabs(Add(pLeft, -pRight)); }
  static void AppendText(std::u16string& pText, double pValue, const runtime::LocaleRules& pRules) {
    runtime::AppendNumberText(pText, pValue, pRules);
  }
};

struct LongElement : NumberElement<std::int32_t> {
  using IndexOfClosest = double;  // callers rely on it
  static constexpr std::int32_t kDefault = kInvalidLong;
  static constexpr auto kAdd = &CBuffer::AddLong;
  static constexpr auto kNext = &CBuffer::NextLong;

  // Both raise error 6 past 32 bits.
  static std::int32_t Plus(std::int32_t pLeft, std::int32_t pRight) {
    return runtime::CheckedNarrow<std::int32_t>(std::int64_t{pLeft} + pRight);
  }
  static std::int32_t Distance(std::int32_t pLeft, std::int32_t pRight) {
    return runtime::CheckedNarrow<std::int32_t>(std::abs(std::int64_t{pLeft} - pRight));
  }
  static void AppendText(std::u16string& pText, std::int32_t pValue, const runtime::LocaleRules&) {
    runtime::AppendNumberText(pText, pValue);
  }
};

struct TextElement : AnyElement {
  using Type = std::u16string;
  using Argument = std::u16string_view;
  using Result = const std::u16string&;  // good until the vector changes
  using IndexOfClosest = std::int32_t;
  static constexpr QZVarType kVarType = EVTInvalid;
  static constexpr std::int32_t kBlockSize = kDefaultBlockSize;
  static constexpr std::u16string_view kDefault = kInvalidString;
  static constexpr auto kAdd = &CBuffer::AddString;
  static constexpr auto kNext = &CBuffer::NextString;

  static bool Equal(std::u16string_view pLeft, std::u16string_view pRight, const runtime::LocaleRules& pRules) {
    return runtime::EqualText(pLeft, pRight, pRules);
  }
  static void AppendText(std::u16string& pText, std::u16string_view pValue, const runtime::LocaleRules&) {
    pText += pValue;
  }
  static bool Read(std::u16string_view pText, std::u16string& pValue, const runtime::LocaleRules&) {
    pValue = pText;
    return true;
  }
};

struct BooleanElement : PlainElement<bool> {
  static constexpr QZVarType kVarType = EVTBoolean;
  static constexpr std::int32_t kBlockSize = 1;
  static constexpr bool kDefault = false;
  static constexpr auto kAdd = &CBuffer::AddBoolean;
  static constexpr auto kNext = &CBuffer::NextBoolean;

  static void AppendText(std::u16string& pText, bool pValue, const runtime::LocaleRules&) {
    pText += runtime::BooleanText(pValue);
  }
  static bool Read(std::u16string_view pText, bool& pValue, const runtime::LocaleRules& pRules) {
    return runtime::ReadBoolean(pText, pValue, pRules) == runtime::ReadResult::Read;
  }
};

struct VariantElement : AnyElement {
  using Type = runtime::Variant;
  using Argument = const runtime::Variant&;
  using Result = const runtime::Variant&;  // good until the vector changes
  static constexpr std::int32_t kBlockSize = kDefaultBlockSize;
  static constexpr bool kTrimmedByInsert = true;
  static constexpr double kDefault = kInvalidDouble;

  // Both raise error 13 for objects and arrays; the text of null raises 94.
  static bool Equal(const runtime::Variant& pLeft, const runtime::Variant& pRight, const runtime::LocaleRules& pRules) {
    return runtime::EqualExact(pLeft, pRight, pRules);
  }
  static void AppendText(std::u16string& pText, const runtime::Variant& pValue, const runtime::LocaleRules& pRules) {
    pText += runtime::ToText(pValue, pRules);
  }
};

}  // namespace qzbase
