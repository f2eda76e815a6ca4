#include "qzbase/runtime/DateReader.h"

#include <cstddef>
#include <span>

#include "qzbase/os/LocalePicture.h"
#include "qzbase/runtime/DateItems.h"
#include "qzbase/runtime/DatePictureReader.h"

namespace qzbase::runtime {
namespace {

constexpr std::size_t kNone = static_cast<std::size_t>(-1);

// Which item of a date is what.
struct ItemOrder {
  std::size_t day = kNone;
  std::size_t month = kNone;
  std::size_t year = kNone;
};

constexpr ItemOrder kYearMonthDay = {.day = 2, .month = 1, .year = 0};
constexpr ItemOrder kMonthDayYear = {.day = 1, .month = 0, .year = 2};
constexpr ItemOrder kDayMonthYear = {.day = 0, .month = 1, .year = 2};
constexpr ItemOrder kYearDayMonth = {.day = 1, .month = 2, .year = 0};
constexpr ItemOrder kMonthDay = {.day = 1, .month = 0};
constexpr ItemOrder kDayMonth = {.day = 0, .month = 1};
constexpr ItemOrder kMonthYear = {.month = 0, .year = 1};
constexpr ItemOrder kYearMonth = {.month = 1, .year = 0};

// After the locale's own order the others are tried as they stand here.
constexpr ItemOrder kOrdersOfThree[] = {kYearMonthDay, kMonthDayYear, kDayMonthYear, kYearDayMonth};
constexpr ItemOrder kOrdersOfTwo[] = {kMonthDay, kDayMonth, kMonthYear, kYearMonth};

// The order in which a picture has day, month and year, of two items without the year.
ItemOrder OrderOf(std::u16string_view pPicture, std::size_t pItems) {
  ItemOrder order;
  std::size_t place = 0;
  os::PicturePieces pieces(pPicture);
  for (os::PicturePiece piece; pieces.Next(piece);) {
    std::size_t* item = piece.letter == u'M'                         ? &order.month
                        : piece.letter == u'd' && !piece.IsWeekDay() ? &order.day
                        : piece.letter == u'y' && pItems > 2         ? &order.year
                                                                     : nullptr;
    if (item != nullptr && *item == kNone) *item = place++;
  }
  return place == pItems ? order : pItems > 2 ? kMonthDayYear : kMonthDay;
}

// A run of items: first one and number.
struct ItemRun {
  std::size_t first = 0;
  std::size_t count = 0;
};

// Works the items of one text out into a day and a time.
class DateSolver {
 public:
  DateSolver(const DateItems& pItems, const LocaleRules& pRules, YearClock pClock)
      : items_(pItems), rules_(pRules), clock_(pClock) {}

  // A time may stand before or behind the date, or alone.
  bool Solve() {
    ItemRun time;
    if (!FindTime(time) || !SolveTime(time)) return false;
    const ItemRun date = {time.first == 0 ? time.count : 0, items_.Size() - time.count};
    return date.count == 0 ? time.count > 0 : SolveDay(date);
  }

  const DateParts& Parts() const { return parts_; }

 private:
  bool FindTime(ItemRun& pTime) const;
  bool SolveTime(ItemRun pTime);
  bool SolveDay(ItemRun pDate);
  bool TryOrder(ItemRun pDate, const ItemOrder& pOrder);

  const DateItems& items_;
  const LocaleRules& rules_;
  YearClock clock_;
  DateParts parts_;
};

// The time is the one run of items that go on as a time or bear a mark for the half of the day. False when there are
// more such runs or it stands in the middle.
bool DateSolver::FindTime(ItemRun& pTime) const {
  for (std::size_t i = 0; i < items_.Size(); ++i) {
    if (!items_[i].isTimeGoingOn && items_[i].half == HalfDay::None) continue;
    if (pTime.count > 0) return false;
    pTime.first = i;
    while (items_[i].isTimeGoingOn) ++i;
    pTime.count = i - pTime.first + 1;
  }
  return pTime.count <= 3 && (pTime.first == 0 || pTime.first + pTime.count == items_.Size());
}

bool DateSolver::SolveTime(ItemRun pTime) {
  HalfDay half = HalfDay::None;
  std::int32_t numbers[3] = {};
  for (std::size_t i = 0; i < pTime.count; ++i) {
    const DateItem& item = items_[pTime.first + i];
    numbers[i] = item.value;
    if (item.half == HalfDay::None) continue;
    if (half != HalfDay::None) return false;
    half = item.half;
  }
  if (numbers[0] > 23 || numbers[1] > 59 || numbers[2] > 59) return false;
  if (half == HalfDay::Pm && numbers[0] < 12) numbers[0] += 12;
  if (half == HalfDay::Am && numbers[0] == 12) numbers[0] = 0;
  parts_.hour = numbers[0];
  parts_.minute = numbers[1];
  parts_.second = numbers[2];
  return true;
}

bool DateSolver::SolveDay(ItemRun pDate) {
  if (pDate.count != 2 && pDate.count != 3) return false;
  if (TryOrder(pDate, OrderOf(rules_.shortDate, pDate.count))) return true;
  for (const ItemOrder& order : pDate.count == 2 ? kOrdersOfTwo : kOrdersOfThree)
    if (TryOrder(pDate, order)) return true;
  return false;
}

// Takes the order when it gives a valid day and has the month where the first name stands. Without a day it is the
// first of the month, without a year it is this one.
bool DateSolver::TryOrder(ItemRun pDate, const ItemOrder& pOrder) {
  const auto item = [&](std::size_t pIndex) -> const DateItem& { return items_[pDate.first + pIndex]; };
  for (std::size_t i = 0; i < pDate.count; ++i) {
    if (!item(i).isNamed) continue;
    if (i != pOrder.month) return false;
    break;
  }
  const std::int32_t year = pOrder.year == kNone ? clock_() : FullYear(item(pOrder.year).value);
  const std::int32_t month = item(pOrder.month).value;
  const std::int32_t day = pOrder.day == kNone ? 1 : item(pOrder.day).value;
  if (!IsValidDay(year, month, day)) return false;
  parts_.year = year;
  parts_.month = month;
  parts_.day = day;
  return true;
}

}  // namespace

bool ReadDate(std::u16string_view pText, Date& pDate, const LocaleRules& pRules, YearClock pClock) {
  DateParts parts;
  if (ReadPictures(pText, parts, pRules)) return pDate = MakeDate(parts), true;
  DateItems items;
  if (!items.Read(pText, pRules)) return false;
  DateSolver solver(items, pRules, pClock);
  if (!solver.Solve()) return false;
  pDate = MakeDate(solver.Parts());
  return true;
}

}  // namespace qzbase::runtime
