// Settings in the registry store (os/RegistryStore.h): whole buffers, numbers and texts.
//
//   ModRegistry::SaveBuffer(HKEY_CURRENT_USER, u"Software\\App", u"Layout", buffer)
//   ModRegistry::GetBuffer(HKEY_CURRENT_USER, u"Software\\App", u"Layout")
//
// A section is a path of names with "\" between them, a key a name in it; both ignore case, and characters outside the
// system's 8-bit code page become "?". Results are the platform's: 0 for success, 2 for what is not there, 5 for no
// right, 6 for a root that cannot be used, 1015 for a damaged store.
//
// What is stored is:
//
//   a buffer        kind 3    its bytes, header included
//   a number        kind 4    32 bits
//   a text          kind 1    8-bit text with a final zero
//
// Reading drops the last character of a text that has more than one, as its final zero: a text that another program has
// stored without one loses a character of its own, and so does one whose own last character is a zero.
#pragma once

#include <cstdint>
#include <string_view>

#include "qzbase/persist/CBuffer.h"
#include "qzbase/persist/TRegKey.h"

namespace qzbase::ModRegistry {

std::int32_t CreateNewSection(TRegKey pRoot, std::u16string_view pSection);

// Makes the section where it is missing. Returns 0; raises the platform's result as an error of that number, with the
// additional information that was set before. Trims the buffer's capacity.
std::int32_t SaveBuffer(TRegKey pRoot, std::u16string_view pSection, std::u16string_view pKey, const CBuffer& pBuffer);

// An empty buffer where there is no such value, or one of another kind. Raises error 7 where memory does not suffice.
Ref<CBuffer> GetBuffer(TRegKey pRoot, std::u16string_view pSection, std::u16string_view pKey);

// Makes the section where it is missing. Values other than 16-bit and 32-bit integers and texts are not written, which
// is no failure.
std::int32_t SaveValue(TRegKey pRoot, std::u16string_view pSection, std::u16string_view pKey,
                       const runtime::Variant& pValue);

// A 32-bit integer or a text; empty where there is no such value, or one of another kind.
runtime::Variant GetValue(TRegKey pRoot, std::u16string_view pSection, std::u16string_view pKey);

// Returns 0; raises as `SaveBuffer`.
std::int32_t DeleteValue(TRegKey pRoot, std::u16string_view pSection, std::u16string_view pKey);

// Fails for every root, and deletes nothing: the platform is given the number of the root as it is, which is no root.
// Hosts know it so. Sections are removed by the platform's own means.
std::int32_t DeleteSection(TRegKey pRoot, std::u16string_view pSection);

}  // namespace qzbase::ModRegistry
