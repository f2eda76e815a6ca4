#include "qzbase/data/CDblVectors.h"

#include <utility>

#include "qzbase/persist/Record.h"
#include "qzbase/runtime/CheckedNarrow.h"

namespace qzbase {
namespace {

constexpr std::int32_t kLeastVectorRecord = 4;  // the size of an empty vector, in a buffer without markers

}  // namespace

CDblVector& CDblVectors::Stored(std::int32_t pIdx) const {
  const auto& vector = storage_.Slot(pIdx);
  if (!vector) runtime::Raise(runtime::RuntimeError::ObjectNotSet);
  return *vector;
}

void CDblVectors::LetSize(std::int32_t pSize) {
  storage_.Resize(pSize, [pSize] {
    auto vector = runtime::New<CDblVector>();
    vector->LetBlockSize(pSize);
    return vector;
  });
}

void CDblVectors::InsertVector(const CDblVector& pVector, std::int32_t pPos) {
  auto copy = pVector.GetCopy();
  LetSize(runtime::CheckedNarrow<std::int32_t>(std::int64_t{Size()} + 1));
  storage_.Insert(pPos, std::move(copy));
}

void CDblVectors::DeleteVector(std::int32_t pIdx) {
  if (Size() > 0) storage_.Delete(pIdx);
}

void CDblVectors::CopyFrom(const CDblVectors& pSource) {
  LetSize(pSource.Size());
  for (std::int32_t i = 0; i < Size(); ++i) Stored(i + 1).CopyFrom(pSource.Stored(i + 1));
}

runtime::Ref<CDblVectors> CDblVectors::GetCopy() const {
  auto copy = runtime::New<CDblVectors>();
  copy->CopyFrom(*this);
  return copy;
}

bool CDblVectors::IsEqual(const CDblVectors& pCompare) const {
  if (Size() != pCompare.Size()) return false;
  for (std::int32_t i = 0; i < Size(); ++i)
    if (!Stored(i + 1).IsEqual(pCompare.Stored(i + 1))) return false;
  return true;
}

void CDblVectors::LetBlockSize(std::int32_t pBlockSize) {
  for (std::int32_t i = 0; i < Size(); ++i) Stored(i + 1).LetBlockSize(pBlockSize);
}

void CDblVectors::SaveToBuffer(CBuffer* pBuffer, bool pAppend) const {
  SaveRecord(pBuffer, pAppend, u"DblVectors#1", [this](CBuffer& pTo) {
    pTo.AddLong(Size());
    for (std::int32_t i = 0; i < Size(); ++i) Stored(i + 1).SaveToBuffer(&pTo, true);
  });
}

void CDblVectors::LoadFromBuffer(CBuffer* pBuffer, bool pAppend) {
  LoadRecord(pBuffer, pAppend, [this](CBuffer& pFrom) {
    LetSize(pFrom.NextCount(kLeastVectorRecord));
    for (std::int32_t i = 0; i < Size(); ++i) {
      auto vector = runtime::New<CDblVector>();
      vector->LoadFromBuffer(&pFrom, true);
      storage_.Store(i + 1, std::move(vector));
    }
  });
}

}  // namespace qzbase
