#include "qzbase/data/CDblVectors.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "qzbase/persist/Record.h"
#include "qzbase/runtime/CheckedNarrow.h"
#include "qzbase/runtime/Memory.h"

namespace qzbase {
namespace {

constexpr std::int32_t kLeastRecord = 4;  // the size of an empty vector, in a buffer without markers

runtime::Ref<CDblVector> NewVector(std::int32_t pBlockSize) {
  return runtime::WithMemory([&] {
    auto vector = runtime::New<CDblVector>();
    vector->LetBlockSize(pBlockSize);
    return vector;
  });
}

}  // namespace

CDblVector& CDblVectors::Stored(std::int32_t pIdx) const {
  const auto& vector = storage_.Slot(pIdx);
  if (!vector) runtime::Raise(runtime::RuntimeError::ObjectNotSet);
  return *vector;
}

void CDblVectors::LetSize(std::int32_t pSize) {
  filled_ = std::clamp(pSize, 0, filled_);
  storage_.LetSize(pSize);
  for (auto& vector : storage_.Elements().subspan(static_cast<std::size_t>(filled_))) {
    if (!vector) vector = NewVector(pSize);
    ++filled_;
  }
}

void CDblVectors::SetVector(std::int32_t pIdx, runtime::Ref<CDblVector> pVector) {
  const bool isSet = pVector != nullptr;
  storage_.Store(pIdx, std::move(pVector));
  if (!isSet) filled_ = std::min(filled_, pIdx - 1);
}

void CDblVectors::InsertVector(const CDblVector& pVector, std::int32_t pPos) {
  auto copy = pVector.GetCopy();
  LetSize(runtime::CheckedNarrow<std::int32_t>(std::int64_t{Size()} + 1));
  storage_.Insert(pPos, std::move(copy));
}

void CDblVectors::DeleteVector(std::int32_t pIdx) {
  if (Size() < 1) return;
  storage_.Delete(pIdx);
  filled_ = std::max(filled_ - 1, 0);
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
    LetSize(pFrom.NextCount(kLeastRecord));
    for (std::int32_t i = 0; i < Size(); ++i) {
      auto vector = runtime::New<CDblVector>();
      vector->LoadFromBuffer(&pFrom, true);
      storage_.Store(i + 1, std::move(vector));
    }
  });
}

}  // namespace qzbase
