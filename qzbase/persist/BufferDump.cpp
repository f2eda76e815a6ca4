// The dump of a buffer, for people who look for a fault.
#include "qzbase/persist/CBuffer.h"
#include "qzbase/runtime/Convert.h"
#include "qzbase/runtime/DatePattern.h"
#include "qzbase/runtime/NumberText.h"

namespace qzbase {
namespace {

using runtime::AppendNumberText;

constexpr std::int32_t kLongestShownBound = 4;  // a block with a higher upper bound is only named

// A closing tag follows what it closes; any other one begins a line.
void AppendTag(std::u16string& pText, std::u16string_view pTag) {
  if (!pTag.starts_with(u'\\')) pText += u"\n/";
  pText += pTag;
}

void AppendHex(std::u16string& pText, std::uint8_t pByte) {
  constexpr std::u16string_view kDigits = u"0123456789ABCDEF";
  if (pByte >= 16) pText += kDigits[pByte / 16];
  pText += kDigits[pByte % 16];
}

// The upper bound and every byte but the last one.
void AppendData(std::u16string& pText, const runtime::Array<std::uint8_t>& pData) {
  const std::int32_t upper = pData.UpperBound();
  if (upper > kLongestShownBound) {
    pText += u"#DATA#";
    return;
  }
  pText += u'#';
  AppendNumberText(pText, upper);
  for (std::int32_t i = 1; i <= upper; ++i) {
    pText += u",<";
    AppendHex(pText, pData[i - 1]);
    pText += u'>';
  }
}

// A record may hold any double; one outside the calendar shows as its number of days, for a dump has to go on.
void AppendDate(std::u16string& pText, runtime::Date pDate) {
  if (runtime::IsInCalendar(pDate))
    pText += runtime::FormatDate(pDate, u"dd.mm.yyyy hh:nn:ss");
  else
    AppendNumberText(pText, pDate.days);
}

}  // namespace

// Appends the record at the cursor; false where there is none.
bool CBuffer::AppendNextItem(std::u16string& pText) {
  switch (static_cast<RecordMarker>(PeekByte())) {
    case RecordMarker::Tag:
      AppendTag(pText, NextTag());
      return true;
    case RecordMarker::Data:
      AppendData(pText, NextData());
      return true;
    case RecordMarker::String:
      pText += NextString();
      return true;
    case RecordMarker::Double:
      AppendNumberText(pText, NextDouble());
      return true;
    case RecordMarker::Long:
      AppendNumberText(pText, NextLong());
      return true;
    case RecordMarker::Boolean:
      pText += runtime::BooleanText(NextBoolean());
      return true;
    case RecordMarker::Date:
      AppendDate(pText, NextDate());
      return true;
    case RecordMarker::Byte:
      AppendNumberText(pText, std::int32_t{NextByte()});
      return true;
    case RecordMarker::Color:
      AppendNumberText(pText, NextColor());
      return true;
    case RecordMarker::None:
      break;
  }
  return false;
}

std::u16string CBuffer::GetString() {
  ResetPos();
  std::u16string text;
  do {
    const std::int32_t start = cursor_;
    const bool shown = AppendNextItem(text);
    if (shown) text += u';';
    // A byte that only looks like a marker, in an untyped buffer, may move nothing: the dump would never end.
    if (!shown || cursor_ == start) {
      text += u"INVALIDTYPE!!";
      break;
    }
  } while (cursor_ < size_);
  if (text.starts_with(u'\n')) text.erase(0, 1);
  return text;
}

}  // namespace qzbase
