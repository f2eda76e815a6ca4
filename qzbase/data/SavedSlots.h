// The elements of a list in a buffer, each in a record of its own.
//
// What cannot be added because the records of so many elements leave the buffer's 32 bits is refused before the first
// one is written; those that were never written are one record, repeated.
#pragma once

#include <concepts>
#include <cstdint>
#include <string>

#include "qzbase/data/BlockStorage.h"
#include "qzbase/persist/CBuffer.h"

namespace qzbase {

// A marker and the value, of a text its count.
template <class T>
inline constexpr std::int32_t kLeastRecord = 1 + sizeof(T);
template <>
inline constexpr std::int32_t kLeastRecord<std::u16string> = 1 + sizeof(std::int32_t);

// `pAdd(value)` writes one element.
template <class T, class Add>
void SaveSlots(CBuffer& pBuffer, const BlockStorage<T>& pStorage, std::int32_t pLeastBytes, Add pAdd) {
  pBuffer.ExpectRecords(pStorage.Reached(pStorage.Size()), pLeastBytes);
  pStorage.Walk(pStorage.Size(), pAdd, [&](const T& pZero, std::int32_t pCount) {
    const std::int32_t before = pBuffer.Size();
    pAdd(pZero);
    pBuffer.RepeatRecord(pBuffer.Size() - before, pCount - 1);
  });
}

}  // namespace qzbase
