// From a file of comma-separated values to a table with typed, described columns: shown, sorted, a row taken out, saved
// together with the settings of its window, and read back by a newer version of the program.
//
//   table FILE.csv SORT-COLUMN OUTPUT.qzb
#include <cstdio>
#include <exception>
#include <stdexcept>
#include <string>

#include "examples/support/Files.h"
#include "examples/support/TableFromCsv.h"
#include "examples/table/Statistics.h"
#include "examples/table/ViewSettings.h"
#include "qzbase/os/Utf8.h"
#include "qzbase/text/GCConvert.h"

using namespace qzbase;

namespace {

void ShowInfo(const CTypedInfo& pInfo) {
  for (std::int32_t i = 1; i <= pInfo.NrInfos(); ++i) {
    const Ref<TEntryDesc>& desc = pInfo.DescRef(i);
    std::printf("  %s = %s %s\n", os::ToUtf8(desc->Name()).c_str(),
                os::ToUtf8(GCConvert::ValueToStringVD(pInfo.Value(i), *desc->VarDesc())).c_str(),
                os::ToUtf8(desc->Unit()).c_str());
  }
}

// Sorts as the settings say.
void SortBy(CTable& pTable, const CTypedInfo& pSettings) {
  const auto column = pSettings.GetValue(u"SortColumn");
  const std::int32_t position = pTable.ColIndex(*column.If<std::u16string>());
  if (position < 0) throw std::runtime_error("has no column \"" + os::ToUtf8(*column.If<std::u16string>()) + "\"");
  pTable.Sort(position, *pSettings.GetValue(u"Ascending").If<bool>());
}

// What the newer program does when it starts: its own settings, with the values that the older one saved.
void Reopen(const std::string& pPath, const CTable& pTable) {
  const Ref<CBuffer> saved = LoadFile(pPath);
  CTable table;
  CTypedInfo old;
  table.LoadFromBuffer(saved.get());
  old.LoadFromBuffer(saved.get(), true);
  const Ref<CTypedInfo> settings = NewSettings();
  settings->UpdateFrom(old);
  std::printf("\nThe settings of version 1 in the layout of version 2:\n");
  ShowInfo(*settings);
  if (!table.IsEqual(pTable)) throw std::runtime_error("does not read back as it was written");
}

void Run(const std::string& pCsvPath, std::u16string_view pSortColumn, const std::string& pOutputPath) {
  const Ref<CTable> table = TableFromCsv(ParseCsv(ReadFile(pCsvPath)), os::FromUtf8(pCsvPath));
  std::printf("%s: %d rows\n", pCsvPath.c_str(), table->NrRows());
  ShowColumns(*table);

  const Ref<CTypedInfo> settings = OldSettings(pSortColumn);
  SortBy(*table, *settings);
  std::printf("\nThe first rows, sorted downwards by %s:\n", os::ToUtf8(pSortColumn).c_str());
  ShowRows(*table, 4);
  if (table->NrRows() > 0) {
    std::printf("\nThe first of them as a record of its own:\n");
    ShowInfo(*table->Row(1));
  }

  CBuffer buffer;
  table->SaveToBuffer(&buffer);
  settings->SaveToBuffer(&buffer, true);
  SaveFile(pOutputPath, buffer);
  Reopen(pOutputPath, *table);
  std::printf("\nSaved %d bytes into %s, checksum %08X; the table was read back equal.\n", buffer.Size(),
              pOutputPath.c_str(), static_cast<unsigned>(buffer.CheckSum()));
}

}  // namespace

int main(int pCount, char** pArguments) {
  if (pCount != 4) {
    std::fprintf(stderr, "usage: table FILE.csv SORT-COLUMN OUTPUT.qzb\n");
    return 2;
  }
  try {
    Run(pArguments[1], os::FromUtf8(pArguments[2]), pArguments[3]);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "table: %s: %s\n", pArguments[1], error.what());
    return 1;
  }
  return 0;
}
