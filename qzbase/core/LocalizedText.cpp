#include "qzbase/core/LocalizedText.h"

namespace qzbase {

std::u16string LocalizedText(std::u16string_view pKey, std::u16string_view pDefault) {
  return std::u16string(pDefault.empty() ? pKey : pDefault);
}

}  // namespace qzbase
