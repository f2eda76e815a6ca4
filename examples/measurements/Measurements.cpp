#include "examples/measurements/Measurements.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "qzbase/core/QZVarType.h"
#include "qzbase/os/Utf8.h"
#include "qzbase/runtime/NumberReader.h"

using namespace qzbase;

namespace {

// Files are written with "." as decimal point, whatever the user's locale says.
const runtime::LocaleRules kFileRules;

bool IsNumber(const std::u16string& pText) {
  double number = 0;
  return runtime::ReadNumber(pText, number, kFileRules) == runtime::ReadResult::Read;
}

bool HoldsNumbers(const CsvTable& pTable, std::size_t pColumn) {
  const auto filled =
      std::find_if(pTable.rows.begin(), pTable.rows.end(), [&](const auto& pRow) { return !pRow[pColumn].empty(); });
  return filled != pTable.rows.end() && IsNumber((*filled)[pColumn]);
}

Ref<CDblVector> ReadNumbers(const CsvTable& pTable, std::size_t pColumn) {
  auto values = New<CDblVector>();
  for (std::size_t row = 0; row < pTable.rows.size(); ++row) {
    const std::u16string& text = pTable.rows[row][pColumn];
    double number = kInvalidDouble;
    if (!text.empty() && runtime::ReadNumber(text, number, kFileRules) != runtime::ReadResult::Read)
      throw std::runtime_error("row " + std::to_string(row + 1) + ", column \"" + os::ToUtf8(pTable.header[pColumn]) +
                               "\": \"" + os::ToUtf8(text) + "\" is no number");
    values->AddValue(number);
  }
  return values;
}

Ref<CStrVector> ReadTexts(const CsvTable& pTable, std::size_t pColumn) {
  auto values = New<CStrVector>();
  for (const auto& row : pTable.rows) values->AddValue(row[pColumn]);
  return values;
}

}  // namespace

Measurements Measurements::FromCsv(const CsvTable& pTable) {
  Measurements result;
  for (std::size_t column = 0; column < pTable.header.size(); ++column) {
    Column& added = result.columns_.emplace_back();
    added.name = pTable.header[column];
    if (HoldsNumbers(pTable, column))
      added.values = ReadNumbers(pTable, column);
    else
      added.values = ReadTexts(pTable, column);
  }
  return result;
}

void Measurements::SaveToBuffer(CBuffer& pBuffer) const {
  pBuffer.Clear();
  pBuffer.AddTag(u"MS#1");
  pBuffer.AddLong(static_cast<std::int32_t>(columns_.size()));
  for (const Column& column : columns_) {
    pBuffer.AddString(column.name);
    pBuffer.AddBoolean(std::holds_alternative<Ref<CDblVector>>(column.values));
    std::visit([&](const auto& pValues) { pValues->SaveToBuffer(&pBuffer, true); }, column.values);
  }
  pBuffer.AddTag(u"\\MS");
}

Measurements Measurements::LoadFromBuffer(CBuffer& pBuffer) {
  pBuffer.ResetPos();
  if (pBuffer.NextTag() != u"MS#1") throw std::runtime_error("holds no measurements");
  Measurements result;
  const std::int32_t count = pBuffer.NextLong();
  if (count < 0 || count > pBuffer.Size()) throw std::runtime_error("is damaged");
  for (std::int32_t i = 0; i < count; ++i) {
    Column column{.name = pBuffer.NextString(), .values = {}};
    const auto load = [&](auto pValues) {
      pValues->LoadFromBuffer(&pBuffer, true);
      column.values = std::move(pValues);
    };
    if (pBuffer.NextBoolean())
      load(New<CDblVector>());
    else
      load(New<CStrVector>());
    result.columns_.push_back(std::move(column));
  }
  if (pBuffer.NextTag() != u"\\MS") throw std::runtime_error("was cut short");
  return result;
}

bool Measurements::IsEqual(const Measurements& pCompare) const {
  return std::equal(columns_.begin(), columns_.end(), pCompare.columns_.begin(), pCompare.columns_.end(),
                    [](const Column& pLeft, const Column& pRight) {
                      if (pLeft.name != pRight.name || pLeft.values.index() != pRight.values.index()) return false;
                      return std::visit(
                          [&](const auto& pValues) {
                            return pValues->IsEqual(*std::get<std::decay_t<decltype(pValues)>>(pRight.values));
                          },
                          pLeft.values);
                    });
}
