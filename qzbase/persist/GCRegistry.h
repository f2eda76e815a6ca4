// The public face of the settings in the registry store. See ModRegistry.h for sections, keys, results and what is
// stored; an object of this class has no state of its own.
//
//   GCRegistry::REGSaveBuffer(HKEY_CURRENT_USER, u"Software\\App", u"Layout", buffer);
//   const Ref<CBuffer> layout = GCRegistry::REGGetBuffer(HKEY_CURRENT_USER, u"Software\\App", u"Layout");
#pragma once

#include <cstdint>
#include <string_view>

#include "qzbase/persist/CBuffer.h"
#include "qzbase/persist/TRegKey.h"
#include "qzbase/runtime/Object.h"

namespace qzbase {

class GCRegistry : public runtime::Object {
 public:
  // Makes a section and those above it. The platform's result.
  static std::int32_t REGCreateNewSection(TRegKey HKEY, std::u16string_view Section);

  // Raises the platform's result.
  static std::int32_t REGSaveBuffer(TRegKey HKEY, std::u16string_view Section, std::u16string_view Key,
                                    const CBuffer& Buffer);

  // A new empty buffer for what is missing or no buffer.
  static Ref<CBuffer> REGGetBuffer(TRegKey HKEY, std::u16string_view Section, std::u16string_view Key);

  // An integer or a text; nothing else is written. The platform's result.
  static std::int32_t REGSaveValue(TRegKey HKEY, std::u16string_view Section, std::u16string_view Key,
                                   const runtime::Variant& Value);

  // Empty for what is missing or neither number nor text. A text comes back without its last character.
  static runtime::Variant REGGetValue(TRegKey HKEY, std::u16string_view Section, std::u16string_view Key);

  // Raises the platform's result, 2 for a value that is not there.
  static std::int32_t REGDeleteValue(TRegKey HKEY, std::u16string_view Section, std::u16string_view Key);

  // Always fails, with the platform's result.
  static std::int32_t REGDeleteSection(TRegKey HKEY, std::u16string_view Section);
};

}  // namespace qzbase
