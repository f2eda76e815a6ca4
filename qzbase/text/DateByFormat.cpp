#include "qzbase/text/DateByFormat.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>

#include "qzbase/runtime/NumberReader.h"

namespace qzbase::ModConvert {
namespace {

using runtime::Date;
using runtime::DateParts;

enum Part : std::size_t { kYear, kMonth, kDay, kHour, kMinute, kSecond, kPartCount };

constexpr std::u16string_view kCapitals = u"YMDHNS";  // in the order of Part
constexpr std::u16string_view kSmalls = u"ymdhns";

// `kPartCount` for a character that separates.
Part PartOf(char16_t pLetter) {
  return static_cast<Part>(std::min({kCapitals.find(pLetter), kSmalls.find(pLetter), std::size_t{kPartCount}}));
}

struct Field {
  Part part = kPartCount;
  std::u16string_view piece;
};

constexpr std::size_t kMaxFields = 6;

// The result is the number of fields.
std::size_t SplitFields(std::u16string_view pText, std::u16string_view pFormat,
                        std::array<Field, kMaxFields>& pFields) {
  std::size_t count = 0;
  std::size_t end = 0;
  for (std::size_t start = 0; start < pFormat.size() && count < kMaxFields; start = end) {
    const Part part = PartOf(pFormat[start]);
    for (end = start + 1; end < pFormat.size() && PartOf(pFormat[end]) == part;) ++end;
    if (part != kPartCount) pFields[count++] = {part, pText.substr(std::min(start, pText.size()), end - start)};
  }
  return count;
}

using PartValues = std::array<std::int32_t, kPartCount>;

bool ReadParts(std::u16string_view pText, std::u16string_view pFormat, PartValues& pValues,
               const runtime::LocaleRules& pRules) {
  using Bounds = std::numeric_limits<std::int16_t>;
  std::array<Field, kMaxFields> fields;
  const std::size_t count = SplitFields(pText, pFormat, fields);
  for (std::size_t i = 0; i < count; ++i) {
    std::int32_t& value = pValues[fields[i].part];
    if (runtime::ReadNumber(fields[i].piece, value, pRules) != runtime::ReadResult::Read) return false;
    if (value < Bounds::min() || value > Bounds::max()) return false;
  }
  return true;
}

constexpr std::int32_t FloorDivide(std::int32_t pNumber, std::int32_t pDivisor) {
  return pNumber / pDivisor - (pNumber % pDivisor < 0 ? 1 : 0);
}

// The count of whole days of a year, a month and a day that may lie outside their bounds.
bool CountDays(std::int32_t pYear, std::int32_t pMonth, std::int32_t pDay, double& pDays) {
  constexpr std::int32_t kMonths = 12;
  const std::int32_t month = (pYear < 1900 ? pYear + 2000 : pYear) * kMonths + pMonth - 1;  // from January of year 0
  const DateParts first = {
      .year = FloorDivide(month, kMonths), .month = month - FloorDivide(month, kMonths) * kMonths + 1, .day = 1};
  if (!runtime::IsValidDay(first.year, first.month, first.day)) return false;
  pDays = runtime::MakeDate(first).days + pDay - 1;
  return true;
}

}  // namespace

bool ReadDateByFormat(std::u16string_view pText, std::u16string_view pFormat, Date& pDate,
                      const runtime::LocaleRules& pRules) {
  constexpr std::int32_t kSecondsPerDay = 86400;
  PartValues value{};
  if (!ReadParts(pText, pFormat, value, pRules)) return false;
  double days = 0;
  if (!CountDays(value[kYear], value[kMonth], value[kDay], days)) return false;
  const std::int32_t seconds = value[kHour] * 3600 + value[kMinute] * 60 + value[kSecond];
  days += FloorDivide(seconds, kSecondsPerDay);
  if (!runtime::IsInCalendar({days})) return false;

  DateParts date = runtime::SplitDate({days});
  const std::int32_t second = seconds - FloorDivide(seconds, kSecondsPerDay) * kSecondsPerDay;
  date.hour = second / 3600;
  date.minute = second / 60 % 60;
  date.second = second % 60;
  pDate = runtime::MakeDate(date);
  return true;
}

}  // namespace qzbase::ModConvert
