// The settings of the window that shows a table, in the layouts of two versions of a program.
#pragma once

#include <string_view>

#include "qzbase/desc/CTypedInfo.h"

// Version 1: the column to sort by, whether upwards, the height of a line.
qzbase::Ref<qzbase::CTypedInfo> OldSettings(std::u16string_view pSortColumn);

// Version 2 knows no height, but how many rows are shown and whether units are, with their default values.
qzbase::Ref<qzbase::CTypedInfo> NewSettings();
