// How a table is to be shown: its border, the colour of its caption row, the descriptors of its columns, and generic
// infos, values with names that hosts attach.
//
//   CLayoutTable layout;
//   layout.AddGenericInfo(u"7", EVTLong, 42);     // 1, its position
//   layout.GetGenericInfoValue(7, 0);             // 42: infos are addressed by numbers whose decimal text is their ID
//
// An info whose ID is no number's text cannot be reached by `GenericInfoValue` and `GetGenericInfoValue`. Two infos may
// share an ID: the first is found.
//
// Record: tag "LayoutTable" (without a version), border, caption colour, the records of the column descriptors and of
// the infos, tag "\LayoutTable". Raises what those raise.
#pragma once

#include <cstdint>
#include <string_view>

#include "qzbase/core/QZColor.h"
#include "qzbase/desc/CEntryDescs.h"
#include "qzbase/desc/CTypedInfo.h"
#include "qzbase/layout/BorderType.h"
#include "qzbase/runtime/Object.h"
#include "qzbase/runtime/Variant.h"

namespace qzbase {

class CLayoutTable final : public runtime::Object {
 public:
  BorderType Border() const noexcept { return border_; }
  void LetBorder(BorderType pBorder) noexcept { border_ = pBorder; }
  std::int32_t CaptionColour() const noexcept { return captionColour_; }
  void LetCaptionColour(std::int32_t pCaptionColour) noexcept { captionColour_ = pCaptionColour; }

  // Takes copies; returns 0.
  std::int32_t SetColDescs(const CEntryDescs& pDesc);
  // The list itself: changes in it are changes here.
  const runtime::Ref<CEntryDescs>& ColDescsRef() const noexcept { return colDescs_; }

  std::int32_t NrGenericInfos() const noexcept { return genericInfos_->NrInfos(); }
  void ClearGenericInfos() { genericInfos_->LetNrInfos(0); }
  // Gives the position of the new info.
  runtime::Variant AddGenericInfo(std::u16string_view pID, QZVarType pType, runtime::Variant pInfo);
  // Error 9 where there is no such info.
  void LetGenericInfoValue(std::int32_t pID, runtime::Variant pValue);
  // The default where there is no such info.
  runtime::Variant GetGenericInfoValue(std::int32_t pID, const runtime::Variant& pDefault) const;

  void CopyFrom(const CLayoutTable& pSource);
  runtime::Ref<CLayoutTable> GetCopy() const;
  bool IsEqual(const CLayoutTable& pCompare) const;
  void SaveToBuffer(CBuffer* pBuffer, bool pAppend = false);
  void LoadFromBuffer(CBuffer* pBuffer, bool pAppend = false);

  // The infos themselves; for the library's own classes.
  const runtime::Ref<CTypedInfo>& GenericInfosRef() const noexcept { return genericInfos_; }

 private:
  struct Lists;

  BorderType border_ = BorderNone;
  std::int32_t captionColour_ = qzLightGrey;
  runtime::Ref<CEntryDescs> colDescs_ = runtime::New<CEntryDescs>();
  runtime::Ref<CTypedInfo> genericInfos_ = runtime::New<CTypedInfo>();
};

}  // namespace qzbase
