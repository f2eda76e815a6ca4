// A table of the rows of a file of comma-separated values, a column for each of its own.
#pragma once

#include "examples/support/Csv.h"
#include "qzbase/data/CTable.h"

// A column is one of numbers ("." as decimal point), of dates ("2020-04-01") or of texts, by its first cell that is not
// empty. An empty cell, or one of another kind, is the invalid value of the type.
qzbase::Ref<qzbase::CTable> TableFromCsv(const CsvTable& pCsv);
