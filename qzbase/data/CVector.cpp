#include "qzbase/data/CVector.h"

#include "qzbase/data/SavedSlots.h"

namespace qzbase {
namespace {

using runtime::Variant;
using Slots = BlockStorage<Variant>;

// How all elements are written and read by one declared type.
struct RecordRow {
  QZVarType type;
  void (*save)(CBuffer&, const Slots&);
  void (*load)(CBuffer&, Slots&);
  std::int32_t leastBytes = 1;  // that an element takes
};

template <class T, auto kAdd, T (*kConvert)(const Variant&, const runtime::LocaleRules&)>
void SaveAs(CBuffer& pBuffer, const Slots& pSlots) {
  const runtime::LocaleRules& rules = runtime::ThreadLocale();
  SaveSlots(pBuffer, pSlots, kLeastRecord<T>, [&](const Variant& pValue) {
    if (const T* same = pValue.If<T>())
      (pBuffer.*kAdd)(*same);
    else
      (pBuffer.*kAdd)(kConvert(pValue, rules));
  });
}

template <auto kNext>
void LoadAs(CBuffer& pBuffer, Slots& pSlots) {
  pSlots.MakeElements([&] { return Variant((pBuffer.*kNext)()); });
}

void SaveAny(CBuffer& pBuffer, const Slots& pSlots) {
  SaveSlots(pBuffer, pSlots, 0, [&](const Variant& pValue) { pBuffer.AddObject(pValue); });
}

void LoadAny(CBuffer& pBuffer, Slots& pSlots) {
  for (std::int32_t i = 0; i < pSlots.Size(); ++i) pSlots.Store(i + 1, pBuffer.NextObject());
}

void SaveNothing(CBuffer&, const Slots&) {}
void LoadNothing(CBuffer&, Slots&) {}

constexpr RecordRow kRecords[] = {
    {EVTInvalid, SaveAny, LoadAny},
    {EVTBoolean, SaveAs<bool, &CBuffer::AddBoolean, runtime::ToBoolean>, LoadAs<&CBuffer::NextBoolean>},
    {EVTDouble, SaveAs<double, &CBuffer::AddDouble, runtime::ToDouble>, LoadAs<&CBuffer::NextDouble>},
    {EVTLong, SaveAs<std::int32_t, &CBuffer::AddLong, runtime::ToLong>, LoadAs<&CBuffer::NextLong>},
    {EVTString, SaveAs<std::u16string, &CBuffer::AddString, runtime::ToText>, LoadAs<&CBuffer::NextString>},
    {EVTDate, SaveAs<runtime::Date, &CBuffer::AddDate, runtime::ToDate>, LoadAs<&CBuffer::NextDate>},
    {EVTColor, SaveAs<std::int32_t, &CBuffer::AddColor, runtime::ToLong>, LoadAs<&CBuffer::NextLong>},
    {EVTObject, SaveNothing, LoadNothing, 0},
    {EVTEnum, SaveAs<std::int32_t, &CBuffer::AddLong, runtime::ToLong>, LoadAs<&CBuffer::NextLong>},
};
constexpr RecordRow kNoRecord{EVTObject, SaveNothing, LoadNothing, 0};

const RecordRow& RecordOf(QZVarType pVarType) noexcept {
  for (const RecordRow& row : kRecords)
    if (row.type == pVarType) return row;
  return kNoRecord;
}

}  // namespace

void CVector::CopyFrom(const CVector& pSource) {
  varType_ = pSource.varType_;
  Base::CopyFrom(pSource);
}

bool CVector::IsEqual(const CVector& pCompare) const {
  return varType_ == pCompare.varType_ && Base::IsEqual(pCompare);
}

void CVector::SaveElements(CBuffer& pBuffer) const {
  RecordOf(varType_).save(pBuffer, storage_);
}

std::int32_t CVector::LeastBytes() const {
  return RecordOf(varType_).leastBytes;
}

void CVector::LoadElements(CBuffer& pBuffer) {
  RecordOf(varType_).load(pBuffer, storage_);
}

}  // namespace qzbase
