#include "examples/plot/TableFromCsv.h"

#include <algorithm>

#include "qzbase/platform/GCBase.h"
#include "qzbase/text/GCConvert.h"

using namespace qzbase;

namespace {

constexpr std::u16string_view kDateFormat = u"yyyy-mm-dd";

QZVarType TypeOf(const CsvTable& pCsv, std::size_t pColumn) {
  const auto filled =
      std::find_if(pCsv.rows.begin(), pCsv.rows.end(), [&](const auto& pRow) { return !pRow[pColumn].empty(); });
  if (filled == pCsv.rows.end()) return EVTString;
  const std::u16string& text = (*filled)[pColumn];
  if (GCConvert::IsNumber(text)) return EVTDouble;
  const bool isDate = text.size() == kDateFormat.size() && GCConvert::StringToDate(text, kDateFormat) != kInvalidDate;
  return isDate ? EVTDate : EVTString;
}

}  // namespace

Ref<CTable> TableFromCsv(const CsvTable& pCsv) {
  auto table = New<CTable>();
  for (std::size_t column = 0; column < pCsv.header.size(); ++column)
    table->AddCol(GCBase::NewEntryDesc(pCsv.header[column], TypeOf(pCsv, column)));
  table->LetNrRows(static_cast<std::int32_t>(pCsv.rows.size()));
  for (std::int32_t column = 1; column <= table->NrCols(); ++column) {
    const QZVarType type = table->ColDescRef(column)->VarType();
    const std::u16string_view format = type == EVTDate ? kDateFormat : u"";
    for (std::int32_t row = 1; row <= table->NrRows(); ++row) {
      const std::u16string& text = pCsv.rows[static_cast<std::size_t>(row) - 1][static_cast<std::size_t>(column) - 1];
      table->LetValue(column, row, GCConvert::StringToValue(text, type, format, false));
    }
  }
  return table;
}
