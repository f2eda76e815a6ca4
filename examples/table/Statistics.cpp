#include "examples/table/Statistics.h"

#include <algorithm>
#include <cstdio>
#include <string>

#include "qzbase/os/Utf8.h"
#include "qzbase/runtime/Compare.h"
#include "qzbase/text/GCConvert.h"
#include "qzbase/text/GCStrings.h"

using namespace qzbase;

namespace {

constexpr std::size_t kCellWidth = 22;

std::string Cut(const std::u16string& pText) {
  return os::ToUtf8(pText.size() <= kCellWidth ? pText : pText.substr(0, kCellWidth - 3) + u"...");
}

std::u16string Shown(const runtime::Variant& pValue, const TEntryDesc& pDesc) {
  return GCConvert::ValueToStringVD(pValue, *pDesc.VarDesc());
}

// The valid values of a column, sorted.
Ref<CVector> ValidValues(const CVector& pColumn) {
  const runtime::Variant invalid = GCConvert::InvalidValue(pColumn.VarType());
  auto valid = New<CVector>();
  for (std::int32_t i = 1; i <= pColumn.Size(); ++i)
    if (runtime::Compare(pColumn.Value(i), invalid) != runtime::Order::Equal) valid->AddValue(pColumn.Value(i));
  valid->Sort();
  return valid;
}

}  // namespace

void ShowColumns(const CTable& pTable) {
  std::printf("  %-28s %-8s %7s  %-22s %-22s\n", "column", "type", "missing", "from", "to");
  for (std::int32_t i = 1; i <= pTable.NrCols(); ++i) {
    const TEntryDesc& desc = *pTable.ColDescRef(i);
    const Ref<CVector> valid = ValidValues(*pTable.ColRef(i));
    std::printf("  %-28s %-8s %7d", os::ToUtf8(desc.Name() + GCStrings::FormatUnit(desc.Unit())).c_str(),
                os::ToUtf8(GCConvert::VarTypeToString(desc.VarType())).c_str(), pTable.NrRows() - valid->Size());
    if (valid->Size() > 0)
      std::printf("  %-22s %s", Cut(Shown(valid->Value(1), desc)).c_str(),
                  Cut(Shown(valid->Value(valid->Size()), desc)).c_str());
    std::printf("\n");
  }
}

void ShowRows(const CTable& pTable, std::int32_t pCount) {
  for (std::int32_t row = 1; row <= std::min(pCount, pTable.NrRows()); ++row) {
    std::string line;
    for (std::int32_t column = 1; column <= pTable.NrCols(); ++column) {
      if (column > 1) line += " | ";
      line += Cut(Shown(pTable.Value(column, row), *pTable.ColDescRef(column)));
    }
    std::printf("  %s\n", line.c_str());
  }
}
