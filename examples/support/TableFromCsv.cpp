#include "examples/support/TableFromCsv.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "qzbase/core/QZVarType.h"
#include "qzbase/platform/GCBase.h"
#include "qzbase/runtime/Locale.h"
#include "qzbase/text/GCConvert.h"

using namespace qzbase;

namespace {

constexpr std::u16string_view kDateFormat = u"yyyy-mm-dd";

constexpr FieldDisplay kKnownFields[] = {
    {u"CO2", u"CO2", u"ppm", u"0.00"},
    {u"adjusted CO2", u"CO2 without the season", u"ppm", u"0.00"},
    {u"precipitation", u"Precipitation", u"mm", u"0.0"},
    {u"temp_max", u"Highest temperature", u"degC", u"0.0"},
    {u"temp_min", u"Lowest temperature", u"degC", u"0.0"},
    {u"wind", u"Wind", u"m/s", u"0.0"},
    {u"Cost Total $", u"Total cost", u"$", u"0"},
    {u"Speed IAS in knots", u"Air speed", u"kn", u"0"},
};

bool IsDate(const std::u16string& pText) {
  const auto matches = [](char16_t pCharacter, char16_t pPlace) {
    return pPlace == u'-' ? pCharacter == u'-' : pCharacter >= u'0' && pCharacter <= u'9';
  };
  return std::equal(pText.begin(), pText.end(), kDateFormat.begin(), kDateFormat.end(), matches);
}

bool IsNumber(const std::u16string& pText) {
  return GCConvert::StringToDouble(pText) != kInvalidDouble;
}

bool IsWhole(const std::u16string& pText) {
  const double number = GCConvert::StringToDouble(pText);
  return std::abs(number) < 1e9 && number == std::trunc(number) && pText.find(u'.') == std::u16string::npos;
}

template <class Test>
bool AllFilled(const CsvTable& pCsv, std::size_t pColumn, Test pTest) {
  return std::all_of(pCsv.rows.begin(), pCsv.rows.end(),
                     [&](const auto& pRow) { return pRow[pColumn].empty() || pTest(pRow[pColumn]); });
}

QZVarType TypeOfColumn(const CsvTable& pCsv, std::size_t pColumn) {
  const auto isEmpty = [](const std::u16string&) { return false; };
  if (AllFilled(pCsv, pColumn, isEmpty)) return EVTString;
  if (AllFilled(pCsv, pColumn, IsDate)) return EVTDate;
  if (AllFilled(pCsv, pColumn, IsWhole)) return EVTLong;
  return AllFilled(pCsv, pColumn, IsNumber) ? EVTDouble : EVTString;
}

Ref<TEntryDesc> Describe(std::u16string_view pField, QZVarType pType) {
  const auto known = std::find_if(std::begin(kKnownFields), std::end(kKnownFields),
                                  [&](const FieldDisplay& pKnown) { return pKnown.id == pField; });
  if (known != std::end(kKnownFields))
    return GCBase::NewVectorDesc(pField, pType, known->name, known->unit, ECTEdit, known->format);
  return GCBase::NewVectorDesc(pField, pType, pField, u"", ECTEdit, pType == EVTDate ? kDateFormat : u"");
}

runtime::Variant CellValue(const std::u16string& pText, QZVarType pType) {
  return pText.empty() ? GCConvert::InvalidValue(pType)
                       : GCConvert::StringToValue(pText, pType, pType == EVTDate ? kDateFormat : u"");
}

}  // namespace

Ref<CTable> TableFromCsv(const CsvTable& pCsv, std::u16string_view pID) {
  const runtime::ScopedLocale file{runtime::LocaleRules()};  // files are written with "." and without grouping
  auto table = New<CTable>();
  table->LetID(pID);
  for (std::size_t column = 0; column < pCsv.header.size(); ++column)
    table->AddCol(Describe(pCsv.header[column], TypeOfColumn(pCsv, column)));
  table->LetNrRows(static_cast<std::int32_t>(pCsv.rows.size()));
  for (std::int32_t column = 1; column <= table->NrCols(); ++column)
    for (std::int32_t row = 1; row <= table->NrRows(); ++row) {
      const auto& cells = pCsv.rows[static_cast<std::size_t>(row) - 1];
      table->LetValue(column, row,
                      CellValue(cells[static_cast<std::size_t>(column) - 1], table->ColDescRef(column)->VarType()));
    }
  return table;
}
