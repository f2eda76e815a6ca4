// What a table's columns hold, at a glance.
#pragma once

#include "qzbase/data/CTable.h"

// One line for each column: name and unit, type, number of missing values, smallest and largest value.
void ShowColumns(const qzbase::CTable& pTable);

// The first rows as users see them.
void ShowRows(const qzbase::CTable& pTable, std::int32_t pCount);
