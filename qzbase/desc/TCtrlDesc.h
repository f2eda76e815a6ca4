// How the control that edits a value behaves: its kind, the allowed range, the step, width, visibility, locking.
//
// Setters store what they are given.
//
// Record: tag "CD#2"; ID, kind (long), save-mask; with a save-mask range and interval; width, visible, removable,
// locked; tag "\CD". Version 1 has a user-defined flag in the last place.
//
// Loading raises InvVarType where the buffer holds another record; the fields read before it keep their new values.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "qzbase/desc/QZCtrlType.h"
#include "qzbase/persist/CBuffer.h"
#include "qzbase/runtime/Object.h"

namespace qzbase {

class TCtrlDesc final : public runtime::Object {
 public:
  const std::u16string& ID() const noexcept { return id_; }
  void LetID(std::u16string_view pID) { id_ = pID; }
  QZCtrlType CtrlType() const noexcept { return ctrlType_; }
  void LetCtrlType(QZCtrlType pCtrlType) noexcept { ctrlType_ = pCtrlType; }
  // A range string (text/RangeString.h) and the step in it.
  const std::u16string& Range() const noexcept { return range_; }
  void LetRange(std::u16string_view pRange) { range_ = pRange; }
  const std::u16string& Interval() const noexcept { return interval_; }
  void LetInterval(std::u16string_view pInterval) { interval_ = pInterval; }
  std::int32_t Width() const noexcept { return width_; }
  void LetWidth(std::int32_t pWidth) noexcept { width_ = pWidth; }
  // Whether range and interval are saved and compared.
  bool SaveMask() const noexcept { return saveMask_; }
  void LetSaveMask(bool pSaveMask) noexcept { saveMask_ = pSaveMask; }
  // Whether the user may remove the entry.
  bool Removable() const noexcept { return removable_; }
  void LetRemovable(bool pRemovable) noexcept { removable_ = pRemovable; }
  bool Visible() const noexcept { return visible_; }
  void LetVisible(bool pVisible) noexcept { visible_ = pVisible; }
  // Not copied, not compared and, since version 2 of the record, not saved.
  bool UserDefined() const noexcept { return userDefined_; }
  void LetUserDefined(bool pUserDefined) noexcept { userDefined_ = pUserDefined; }
  bool Locked() const noexcept { return locked_; }
  void LetLocked(bool pLocked) noexcept { locked_ = pLocked; }

  // "ID:...|Type:...|": every field but `UserDefined`, for people.
  std::u16string GetString() const;

  void CopyFrom(const TCtrlDesc& pSource);
  runtime::Ref<TCtrlDesc> GetCopy() const;
  bool IsEqual(const TCtrlDesc& pCompare) const;
  void SaveToBuffer(CBuffer* pBuffer, bool pAppend = false) const;
  // A record without range and interval leaves those as they are.
  void LoadFromBuffer(CBuffer* pBuffer, bool pAppend = false);

 private:
  struct FieldLists;

  std::u16string id_;
  std::u16string range_;
  std::u16string interval_;
  QZCtrlType ctrlType_ = ECTEdit;
  std::int32_t width_ = 1000;
  bool saveMask_ = true;
  bool removable_ = false;
  bool visible_ = true;
  bool userDefined_ = false;
  bool locked_ = false;
};

}  // namespace qzbase
