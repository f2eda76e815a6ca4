// A small record that describes itself: named, typed values, each with its TEntryDesc. Applications keep settings and
// property sets in it, edit them through generated controls, save them and carry them over into newer layouts.
//
//   CTypedInfo settings;
//   settings.AddInfo(*desc, 20);         // desc->ID() is "Width"
//   settings.GetValue(u"width");         // 20
//   settings.SetValue(u"Width", 25);
//   newer.SetupFrom(*layout);            // the descriptors of the newer version, all values empty
//   newer.UpdateFrom(settings);          // takes over the values whose IDs it knows
//
// Descriptors and values have positions from 1 on. The number of infos is the size of the descriptors, also after a
// caller has changed that through `DescsRef`; values that then have no slot raise error 9. There is always a value slot
// 1. A value is stored as it is and converted to its descriptor's type when it is saved.
//
// Record: tag "TypedInfo#1", the record of the descriptors, each value in the record of its descriptor's type (none for
// EVTObject and numbers that are no type; EVTInvalid as what the value is, which cannot be read back), tag
// "\TypedInfo".
//
// Raises what the list of descriptors raises (DescList.h), error 9 outside the value slots, and on saving those of the
// conversion. What was reached before an error stays.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "qzbase/desc/CEntryDescs.h"
#include "qzbase/runtime/Array.h"
#include "qzbase/runtime/Object.h"
#include "qzbase/runtime/Variant.h"

namespace qzbase {

class CTypedInfo final : public runtime::Object {
 public:
  void Clear();

  std::int32_t NrInfos() const noexcept { return descs_->Size(); }
  void LetNrInfos(std::int32_t pNrInfos);

  // A copy, the stored object itself, its contents: as in DescList.h.
  runtime::Ref<TEntryDesc> Desc(std::int32_t pIndex) const { return descs_->Desc(pIndex); }
  void SetDesc(std::int32_t pIndex, runtime::Ref<TEntryDesc> pDesc) { descs_->SetDesc(pIndex, std::move(pDesc)); }
  void LetDesc(std::int32_t pIndex, const TEntryDesc& pDesc) { descs_->LetDesc(pIndex, pDesc); }
  const runtime::Ref<TEntryDesc>& DescRef(std::int32_t pIndex) const { return descs_->DescRef(pIndex); }

  void AddInfo(const TEntryDesc& pDesc, runtime::Variant pValue);
  // A position past the end drops the last info.
  void DeleteInfo(std::int32_t pIndex);

  const runtime::Variant& Value(std::int32_t pIndex) const { return values_[pIndex]; }
  void LetValue(std::int32_t pIndex, runtime::Variant pValue) { values_[pIndex] = std::move(pValue); }

  // The first info with this ID, ignoring case; -1 where there is none.
  std::int32_t Index(std::u16string_view pID) const { return descs_->Index(pID); }
  runtime::Variant GetValue(std::u16string_view pID) const;          // "" where there is no such ID
  void SetValue(std::u16string_view pID, runtime::Variant pValue) {  // error 9 where there is no such ID
    LetValue(Index(pID), std::move(pValue));
  }

  // The list itself: changes in it are changes here.
  const runtime::Ref<CEntryDescs>& DescsRef() const noexcept { return descs_; }

  std::u16string GetString() const;  // "ID;ID;", a line feed, "value;value;"

  // Takes copies of the descriptors; all values become empty.
  void SetupFrom(const CEntryDescs& pDesc);
  // Takes over the values whose IDs are here too, in their order: of two with one ID, the later wins.
  void UpdateFrom(const CTypedInfo& pSource);

  void CopyFrom(const CTypedInfo& pSource);
  runtime::Ref<CTypedInfo> GetCopy() const;
  // Values by the equality of variants (runtime/Compare.h).
  bool IsEqual(const CTypedInfo& pCompare) const;
  void SaveToBuffer(CBuffer* pBuffer, bool pAppend = false);
  void LoadFromBuffer(CBuffer* pBuffer, bool pAppend = false);

 private:
  void ResizeValues();

  runtime::Ref<CEntryDescs> descs_ = runtime::New<CEntryDescs>();
  runtime::Array<runtime::Variant> values_{1, 1};  // to the number of infos, and 1 at least
};

}  // namespace qzbase
