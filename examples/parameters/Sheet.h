// The parameter sheet of a climate chamber: what a dialog would be generated from, and what a user types into it.
#pragma once

#include <string_view>
#include <vector>

#include "qzbase/desc/CEntryDescs.h"

// Number with unit, range and step; whole number; choice; date; yes or no; text and number with special values.
qzbase::Ref<qzbase::CEntryDescs> ChamberSheet();

struct TypedText {
  std::u16string_view id;
  std::u16string_view text;
};

// In the order in which they are typed, good and bad ones, as a user does whose locale has a decimal comma.
std::vector<TypedText> TypedTexts();
