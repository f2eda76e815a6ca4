#include "qzbase/desc/TVarDesc.h"

#include "qzbase/desc/DescText.h"
#include "qzbase/persist/Record.h"

namespace qzbase {
namespace {

constexpr std::int32_t kFirstVersionWithUserDefined = 2;

}  // namespace

// What stands between the name and the user-defined flag. Those two have rules of their own.
struct TVarDesc::FieldLists {
  static constexpr auto kPlain =
      Fields(&TVarDesc::unit_, &TVarDesc::varType_, &TVarDesc::outFormat_, &TVarDesc::isFormula_,
             &TVarDesc::description_, AsByte(&TVarDesc::nrDims_), &TVarDesc::tag_);
};

// A name of nothing but characters without weight is no name either.
const std::u16string& TVarDesc::Name() const {
  return runtime::EqualText(name_, u"") ? id_ : name_;
}

std::u16string TVarDesc::GetString() const {
  return DescText()
      .Add(u"ID", id_)
      .Add(u"Name", name_)
      .Add(u"Unit", unit_)
      .Add(u"Type", varType_)
      .Add(u"Format", outFormat_)
      .Add(u"IsFormula", isFormula_)
      .Add(u"Description", description_)
      .Add(u"NrDims", nrDims_)
      .Add(u"Tag", tag_)
      .Add(u"UserDefined", userDefined_)
      .Text();
}

void TVarDesc::CopyFrom(const TVarDesc& pSource) {
  id_ = pSource.id_;
  name_ = pSource.Name();
  CopyFields(*this, pSource, FieldLists::kPlain);
  userDefined_ = pSource.userDefined_;
}

runtime::Ref<TVarDesc> TVarDesc::GetCopy() const {
  auto copy = runtime::New<TVarDesc>();
  copy->CopyFrom(*this);
  return copy;
}

bool TVarDesc::IsEqual(const TVarDesc& pCompare) const {
  return EqualField(id_, pCompare.id_) && (!userDefined_ || EqualField(name_, pCompare.Name())) &&
         EqualFields(*this, pCompare, FieldLists::kPlain) && userDefined_ == pCompare.userDefined_;
}

void TVarDesc::SaveToBuffer(CBuffer* pBuffer, bool pAppend) {
  SaveRecord(pBuffer, pAppend, u"VD#2", [this](CBuffer& buffer) {
    if (!userDefined_) name_.clear();
    SaveField(buffer, id_);
    SaveField(buffer, name_);
    SaveFields(buffer, *this, FieldLists::kPlain);
    SaveField(buffer, userDefined_);
  });
}

void TVarDesc::LoadFromBuffer(CBuffer* pBuffer, bool pAppend) {
  LoadRecord(pBuffer, pAppend, [this](CBuffer& buffer, std::u16string_view pTag) {
    LoadField(buffer, id_);
    LoadField(buffer, name_);
    LoadFields(buffer, *this, FieldLists::kPlain);
    if (TagVersion(pTag) >= kFirstVersionWithUserDefined) LoadField(buffer, userDefined_);
  });
}

}  // namespace qzbase
