#include "qzbase/desc/TCtrlDesc.h"

#include "qzbase/desc/DescText.h"
#include "qzbase/persist/Record.h"

namespace qzbase {
namespace {

constexpr std::int32_t kFirstVersionWithoutUserDefined = 2;

}  // namespace

// In the order of the record. The mask is saved and compared where the descriptor says so, and always copied.
struct TCtrlDesc::FieldLists {
  static constexpr auto kHead = Fields(&TCtrlDesc::id_, &TCtrlDesc::ctrlType_, &TCtrlDesc::saveMask_);
  static constexpr auto kMask = Fields(&TCtrlDesc::range_, &TCtrlDesc::interval_);
  static constexpr auto kTail =
      Fields(&TCtrlDesc::width_, &TCtrlDesc::visible_, &TCtrlDesc::removable_, &TCtrlDesc::locked_);
};

std::u16string TCtrlDesc::GetString() const {
  return DescText()
      .Add(u"ID", id_)
      .Add(u"Type", ctrlType_)
      .Add(u"SaveMask", saveMask_)
      .Add(u"Range", range_)
      .Add(u"Interval", interval_)
      .Add(u"Width", width_)
      .Add(u"Visible", visible_)
      .Add(u"Removable", removable_)
      .Add(u"Locked", locked_)
      .Text();
}

// Who made the entry is not copied: it belongs to the one object.
void TCtrlDesc::CopyFrom(const TCtrlDesc& pSource) {
  CopyFields(*this, pSource, FieldLists::kHead);
  CopyFields(*this, pSource, FieldLists::kMask);
  CopyFields(*this, pSource, FieldLists::kTail);
}

runtime::Ref<TCtrlDesc> TCtrlDesc::GetCopy() const {
  auto copy = runtime::New<TCtrlDesc>();
  copy->CopyFrom(*this);
  return copy;
}

bool TCtrlDesc::IsEqual(const TCtrlDesc& pCompare) const {
  return EqualFields(*this, pCompare, FieldLists::kHead) &&
         (!saveMask_ || EqualFields(*this, pCompare, FieldLists::kMask)) &&
         EqualFields(*this, pCompare, FieldLists::kTail);
}

void TCtrlDesc::SaveToBuffer(CBuffer* pBuffer, bool pAppend) const {
  SaveRecord(pBuffer, pAppend, u"CD#2", [this](CBuffer& buffer) {
    SaveFields(buffer, *this, FieldLists::kHead);
    if (saveMask_) SaveFields(buffer, *this, FieldLists::kMask);
    SaveFields(buffer, *this, FieldLists::kTail);
  });
}

void TCtrlDesc::LoadFromBuffer(CBuffer* pBuffer, bool pAppend) {
  LoadRecord(pBuffer, pAppend, [this](CBuffer& buffer, std::u16string_view pTag) {
    LoadFields(buffer, *this, FieldLists::kHead);
    if (saveMask_) LoadFields(buffer, *this, FieldLists::kMask);
    LoadFields(buffer, *this, FieldLists::kTail);
    userDefined_ = TagVersion(pTag) < kFirstVersionWithoutUserDefined && buffer.NextBoolean();
  });
}

}  // namespace qzbase
