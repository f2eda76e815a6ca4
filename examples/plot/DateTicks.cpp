#include "examples/plot/DateTicks.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "examples/plot/Ticks.h"

using namespace qzbase;

namespace plot {

namespace {

constexpr double kMostTicks = 500;
constexpr double kDaySeconds = 86400;
constexpr std::int64_t kDay = 86400;
constexpr std::int64_t kWeek = 7 * kDay;
constexpr double kMonthDays = 30.436875;
constexpr std::int32_t kYearMonths = 12;
constexpr double kFirstMonday = 2;  // 1900-01-01

constexpr std::array<std::int64_t, 16> kSecondSteps = {
    1, 5, 15, 30, 60, 5 * 60, 15 * 60, 30 * 60, 3600, 10800, 6 * 3600, 12 * 3600, kDay, 2 * kDay, kWeek, 2 * kWeek};
constexpr std::array<std::int32_t, 3> kMonthSteps = {1, 3, 6};

bool Fits(double pDays, double pStepDays, double pMost) {
  return pDays / pStepDays <= pMost;
}

// Months since the year 0.
std::int32_t MonthOf(double pEvenDays) {
  const runtime::DateParts parts = runtime::SplitDate(DateAt(pEvenDays));
  return parts.year * kYearMonths + parts.month - 1;
}

std::vector<double> MonthTicks(Range pRange, std::int32_t pStep) {
  std::vector<double> ticks;
  const std::int32_t first = MonthOf(pRange.min) / pStep * pStep;
  const std::int32_t last = MonthOf(pRange.max);
  if ((last - first) / pStep > kMostTicks) return ticks;
  for (std::int32_t month = first; month <= last; month += pStep) {
    const std::int32_t year = month / kYearMonths;
    if (!runtime::IsValidDay(year, month % kYearMonths + 1, 1)) continue;
    const double days = runtime::MakeDate({.year = year, .month = month % kYearMonths + 1, .day = 1}).days;
    if (pRange.Holds(days)) ticks.push_back(days);
  }
  return ticks;
}

}  // namespace

double EvenDays(double pDate) {
  const double day = std::trunc(pDate);
  return day + std::abs(pDate - day);
}

runtime::Date DateAt(double pEvenDays) {
  const double day = std::floor(pEvenDays);
  const double time = pEvenDays - day;
  return {day < 0 ? day - time : day + time};
}

DateStep NiceDateStep(double pDays, double pMost) {
  for (const std::int64_t seconds : kSecondSteps)
    if (Fits(pDays, static_cast<double>(seconds) / kDaySeconds, pMost)) return {.seconds = seconds};
  for (const std::int32_t months : kMonthSteps)
    if (Fits(pDays, months * kMonthDays, pMost)) return {.months = months};
  const double years = std::max(1.0, NiceStep(pDays / (kYearMonths * kMonthDays), pMost));
  return {.months = static_cast<std::int32_t>(std::min(years, 1e4)) * kYearMonths};
}

DateStep DateStepOf(double pDays) {
  constexpr double kShortestMonth = 28;
  if (pDays >= kShortestMonth)
    return {.months = static_cast<std::int32_t>(std::clamp(std::round(pDays / kMonthDays), 1.0, 1e6))};
  return {.seconds = std::max<std::int64_t>(1, std::llround(pDays * kDaySeconds))};
}

std::vector<double> DateTicks(Range pRange, DateStep pStep) {
  const Range range{std::max(pRange.min, runtime::kFirstDate), std::min(pRange.max, runtime::kLastDate - 1)};
  if (!(range.min <= range.max)) return {};
  if (pStep.months > 0) return MonthTicks(range, pStep.months);
  // Whole weeks begin on Mondays.
  const double shift = pStep.seconds % kWeek == 0 ? kFirstMonday : 0;
  const Range shifted{(range.min - shift) * kDaySeconds, (range.max - shift) * kDaySeconds};
  std::vector<double> ticks = StepTicks(shifted, static_cast<double>(pStep.seconds));
  for (double& tick : ticks) tick = tick / kDaySeconds + shift;
  return ticks;
}

std::u16string_view DateFormat(DateStep pStep, double pEvenDays) {
  if (pStep.months > 0) return pStep.months % kYearMonths == 0 ? u"yyyy" : u"mmm yyyy";
  if (pStep.seconds % kDay == 0) return u"Short Date";
  if (pEvenDays == std::floor(pEvenDays)) return u"d mmm";
  return pStep.seconds % 60 == 0 ? u"hh:nn" : u"hh:nn:ss";
}

}  // namespace plot
