// A one-based list of vectors of doubles.
//
//   CDblVectors list;
//   list.AddVector(*vector);             // a copy
//   list.SetVector(1, vector);           // the vector itself
//   list.LetVector(1, *other);           // `vector` takes over the elements of `other`
//   list.Vector(1);                      // a copy of `vector`
//
// There are as many slots as vectors, at least one; outside them error 9 is raised. Every slot holds a vector, but
// where `SetVector` has stored none: that raises 91 where the vector is needed, until the next change of size, which
// fills it.
//
// Record: tag "DblVectors#1", the size as a long, each vector's record, tag "\DblVectors".
//
// Raises what the vectors raise (ElementVector.h). What was reached before an error stays; a size for whose vectors
// there is no memory changes nothing.
#pragma once

#include <cstdint>
#include <utility>

#include "qzbase/data/CDblVector.h"
#include "qzbase/data/ObjectStorage.h"
#include "qzbase/persist/CBuffer.h"
#include "qzbase/runtime/Object.h"

namespace qzbase {

class CDblVectors final : public runtime::Object {
 public:
  // Slots without a vector get a new one, whose block size is the new number of vectors.
  std::int32_t Size() const noexcept { return storage_.Size(); }
  void LetSize(std::int32_t pSize);

  // A copy of the stored vector; copies into it; stores the vector itself, or none.
  runtime::Ref<CDblVector> Vector(std::int32_t pIdx) const { return Stored(pIdx).GetCopy(); }
  void LetVector(std::int32_t pIdx, const CDblVector& pVector) { Stored(pIdx).CopyFrom(pVector); }
  void SetVector(std::int32_t pIdx, runtime::Ref<CDblVector> pVector) { storage_.Store(pIdx, std::move(pVector)); }

  // Both store a copy. A position below 1 or past the end appends.
  void InsertVector(const CDblVector& pVector, std::int32_t pPos);
  void AddVector(const CDblVector& pVector) { InsertVector(pVector, 0); }

  // Nothing in an empty list. The index is not checked against the size: one past it drops the last vector.
  void DeleteVector(std::int32_t pIdx);

  // The stored vector itself, or none.
  runtime::Ref<CDblVector> VectorRef(std::int32_t pIdx) const { return storage_.Slot(pIdx); }

  // Copies into the stored vectors.
  void CopyFrom(const CDblVectors& pSource);
  runtime::Ref<CDblVectors> GetCopy() const;
  bool IsEqual(const CDblVectors& pCompare) const;

  // That of every stored vector.
  void LetBlockSize(std::int32_t pBlockSize);

  // Without a buffer both do nothing. Loading stores new vectors.
  void SaveToBuffer(CBuffer* pBuffer, bool pAppend = false) const;
  void LoadFromBuffer(CBuffer* pBuffer, bool pAppend = false);

 private:
  CDblVector& Stored(std::int32_t pIdx) const;

  ObjectStorage<CDblVector> storage_;
};

}  // namespace qzbase
