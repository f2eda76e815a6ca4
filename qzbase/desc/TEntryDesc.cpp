#include "qzbase/desc/TEntryDesc.h"

#include "qzbase/persist/Record.h"
#include "qzbase/runtime/AutomationError.h"

namespace qzbase {
namespace {

template <class Part>
Part& Needed(const runtime::Ref<Part>& pPart) {
  if (!pPart) runtime::Raise(runtime::RuntimeError::ObjectNotSet);
  return *pPart;
}

}  // namespace

TVarDesc& TEntryDesc::Var() const {
  return Needed(varDesc_);
}

TCtrlDesc& TEntryDesc::Ctrl() const {
  return Needed(ctrlDesc_);
}

// The text may be a piece of what the first part held.
void TEntryDesc::LetID(std::u16string_view pID) {
  Var().LetID(pID);
  Ctrl().LetID(Var().ID());
}

std::u16string TEntryDesc::GetString() const {
  return Ctrl().GetString() + Var().GetString();
}

void TEntryDesc::CopyFrom(const TEntryDesc& pSource) {
  Var().CopyFrom(pSource.Var());
  Ctrl().CopyFrom(pSource.Ctrl());
}

runtime::Ref<TEntryDesc> TEntryDesc::GetCopy() const {
  auto copy = runtime::New<TEntryDesc>();
  copy->CopyFrom(*this);
  return copy;
}

bool TEntryDesc::IsEqual(const TEntryDesc& pCompare) const {
  return Var().IsEqual(pCompare.Var()) && Ctrl().IsEqual(pCompare.Ctrl());
}

void TEntryDesc::SaveToBuffer(CBuffer* pBuffer, bool pAppend) {
  SaveRecord(pBuffer, pAppend, u"ED#1", [this](CBuffer& buffer) {
    Var().SaveToBuffer(&buffer, true);
    Ctrl().SaveToBuffer(&buffer, true);
  });
}

void TEntryDesc::LoadFromBuffer(CBuffer* pBuffer, bool pAppend) {
  LoadRecord(pBuffer, pAppend, [this](CBuffer& buffer) {
    Var().LoadFromBuffer(&buffer, true);
    Ctrl().LoadFromBuffer(&buffer, true);
    if (!Ctrl().UserDefined()) return;
    Var().LetUserDefined(true);
    Var().LetName(u"");
  });
}

}  // namespace qzbase
