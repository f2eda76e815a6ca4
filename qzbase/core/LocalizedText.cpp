#include "qzbase/core/LocalizedText.h"

#include "qzbase/core/StringTable.h"

namespace qzbase {

std::u16string LocalizedText(std::u16string_view pKey, std::u16string_view pDefault) {
  if (const std::u16string* text = ThreadStrings().Find(pKey)) return *text;
  return std::u16string(pDefault.empty() ? pKey : pDefault);
}

}  // namespace qzbase
