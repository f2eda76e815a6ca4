// The members of the tagged buffer and of the registry store, and the roots of the store.
#pragma once

#include "qzbase/automation/Identities.h"
#include "qzbase/automation/Members.h"
#include "qzbase/automation/members/ObjectRows.h"
#include "qzbase/persist/CBuffer.h"
#include "qzbase/persist/GCRegistry.h"
#include "qzbase/persist/TRegKey.h"

namespace qzbase::automation {

template <>
inline constexpr auto members<CBuffer> =
    table(method<&CBuffer::AddTag>("AddTag", {"Arg"}, "Appends a tag."),
          method<&CBuffer::AddData>("AddData", {byRef("Arg")}, "Appends a block of bytes."),
          method<&CBuffer::AddString>("AddString", {"Arg"}, "Appends a text."),
          method<&CBuffer::AddDouble>("AddDouble", {"Arg"}, "Appends a double."),
          method<&CBuffer::AddDate>("AddDate", {"Arg"}, "Appends a date."),
          method<&CBuffer::AddBoolean>("AddBoolean", {"Arg"}, "Appends a boolean."),
          method<&CBuffer::AddLong>("AddLong", {"Arg"}, "Appends a 32-bit integer."),
          method<&CBuffer::AddByte>("AddByte", {"Arg"}, "Appends a byte."),
          method<&CBuffer::AddColor>("AddColor", {"Arg"}, "Appends a colour."),
          method<&CBuffer::AddObject>("AddObject", {"Value", opt("VarType", EVTInvalid)},
                                      "Appends a value in the record of a value type, or of its own."),
          method<&CBuffer::NextTag>("NextTag", "Reads a tag; nothing when the next record is none."),
          method<&CBuffer::NextData>("NextData", "Reads a block of bytes."),
          method<&CBuffer::NextString>("NextString", "Reads a text."),
          method<&CBuffer::NextDouble>("NextDouble", "Reads a double."),
          method<&CBuffer::NextDate>("NextDate", "Reads a date."),
          method<&CBuffer::NextLong>("NextLong", "Reads a 32-bit integer."),
          method<&CBuffer::NextBoolean>("NextBoolean", "Reads a boolean."),
          method<&CBuffer::NextByte>("NextByte", "Reads a byte."),
          method<&CBuffer::NextColor>("NextColor", "Reads a colour."),
          method<&CBuffer::NextObject>("NextObject", {opt("VarType", EVTInvalid)}, "Reads a value of a value type."),
          method<&CBuffer::ResetPos>("ResetPos", "Moves to the first record."),
          method<&CBuffer::Clear>("Clear", "Empties the buffer."),
          get<&CBuffer::Size>("Size", "The number of bytes in use, header included."),
          method<&CBuffer::Trim>("Trim", "Gives back the memory behind the data."),
          method<&CBuffer::GetString>("GetString", "All records as text, for people."),
          get<&CBuffer::ByteArray>("ByteArray", "All bytes, and one more."),
          let<&CBuffer::LetByteArray>("ByteArray").valueByRef(), CopyRows<CBuffer>(),
          get<&CBuffer::CheckSum>("CheckSum", "A checksum of all bytes."),
          method<&CBuffer::BinaryEqual>("BinaryEqual", {"pBuffer"},
                                        "Whether two buffers hold the same bytes behind the first."));

template <>
inline constexpr auto members<GCRegistry> = table(
    method<&GCRegistry::REGCreateNewSection>("REGCreateNewSection", {"HKEY", "Section"},
                                             "Makes a section; the platform's result."),
    method<&GCRegistry::REGSaveBuffer>("REGSaveBuffer", {"HKEY", "Section", "Key", "Buffer"},
                                       "Writes a buffer into a section."),
    method<&GCRegistry::REGGetBuffer>("REGGetBuffer", {"HKEY", "Section", "Key"},
                                      "Reads a buffer; a new empty one where there is none."),
    method<&GCRegistry::REGSaveValue>("REGSaveValue", {"HKEY", "Section", "Key", "Value"},
                                      "Writes an integer or a text, nothing else; the platform's result."),
    method<&GCRegistry::REGGetValue>("REGGetValue", {"HKEY", "Section", "Key"},
                                     "Reads a 32-bit integer or a text; empty where there is neither."),
    method<&GCRegistry::REGDeleteValue>("REGDeleteValue", {"HKEY", "Section", "Key"}, "Deletes a value of a section."),
    method<&GCRegistry::REGDeleteSection>("REGDeleteSection", {"HKEY", "Section"},
                                          "Fails with the platform's result, and deletes nothing."));

// Numbers, since the system's headers have macros of these names.
template <>
inline constexpr auto items<TRegKey> = enumeration<TRegKey>({
    {"HKEY_CLASSES_ROOT", TRegKey(0)},
    {"HKEY_CURRENT_USER", TRegKey(1)},
    {"HKEY_LOCAL_MACHINE", TRegKey(2)},
    {"HKEY_USERS", TRegKey(3)},
    {"HKEY_PERFORMANCE_DATA", TRegKey(4)},
    {"HKEY_CURRENT_CONFIG", TRegKey(5)},
    {"HKEY_DYN_DATA", TRegKey(6)},
});

}  // namespace qzbase::automation
