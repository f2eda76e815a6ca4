// A file of comma-separated values as a table: a typed column for each field, with a descriptor that says how people
// read it.
#pragma once

#include <string_view>

#include "examples/support/Csv.h"
#include "qzbase/data/CTable.h"

// How a known field is shown. Fields that are not listed are shown by their own name.
struct FieldDisplay {
  std::u16string_view id;  // as the header of the file spells it
  std::u16string_view name;
  std::u16string_view unit;
  std::u16string_view format;
};

// A column is one of dates where every cell that is not empty is a date like 2012-01-31, else of whole numbers, else of
// numbers ("." as decimal point, whatever the user's locale says), else of texts. An empty cell is the invalid value of
// its column.
qzbase::Ref<qzbase::CTable> TableFromCsv(const CsvTable& pCsv, std::u16string_view pID);
