#include "qzbase/layout/CLayoutGraph.h"

namespace qzbase {

// Every field, in the order of the record, in which they are copied too.
struct CLayoutGraph::Lists {
  static constexpr auto kFields =
      Fields(&CLayoutGraph::title_, &CLayoutGraph::border_, &CLayoutGraph::legendPos_, &CLayoutGraph::backColor_,
             &CLayoutGraph::gridColor_, &CLayoutGraph::axes_, &CLayoutGraph::curveStyles_, &CLayoutGraph::cursorMode_,
             &CLayoutGraph::cursorFormat_, &CLayoutGraph::labelMode_, &CLayoutGraph::labelStyles_);
};

void CLayoutGraph::CopyFrom(const CLayoutGraph& pSource) {
  CopyFields(*this, pSource, Lists::kFields);
}

runtime::Ref<CLayoutGraph> CLayoutGraph::GetCopy() const {
  auto copy = runtime::New<CLayoutGraph>();
  copy->CopyFrom(*this);
  return copy;
}

bool CLayoutGraph::IsEqual(const CLayoutGraph& pCompare) const {
  return EqualFields(*this, pCompare, Lists::kFields);
}

void CLayoutGraph::SaveToBuffer(CBuffer* pBuffer, bool pAppend) const {
  SaveRecord(pBuffer, pAppend, u"GraphLayout#1", [this](CBuffer& pInto) { SaveFields(pInto, *this, Lists::kFields); });
}

void CLayoutGraph::LoadFromBuffer(CBuffer* pBuffer, bool pAppend) {
  LoadRecord(pBuffer, pAppend, [this](CBuffer& pFrom) { LoadFields(pFrom, *this, Lists::kFields); });
}

}  // namespace qzbase
