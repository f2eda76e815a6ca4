#include "qzbase/layout/CLayoutGraph3D.h"

#include <tuple>

namespace qzbase {

struct CLayoutGraph3D::Lists {
  // What is saved, copied and compared, in the order of the record; around the border, which is not compared.
  static constexpr auto kView =
      Fields(&CLayoutGraph3D::graphType_, &CLayoutGraph3D::showColour_, &CLayoutGraph3D::showContour_,
             &CLayoutGraph3D::showSolid_, &CLayoutGraph3D::nrLevels_, &CLayoutGraph3D::rotationAngle_,
             &CLayoutGraph3D::elevationAngle_, &CLayoutGraph3D::mesh_, &CLayoutGraph3D::title_);
  static constexpr auto kBorder = Fields(&CLayoutGraph3D::border_);
  static constexpr auto kAxes = Fields(&CLayoutGraph3D::axes_);
  static constexpr auto kBackColor = Fields(&CLayoutGraph3D::backColor_);

  static constexpr auto kSaved = std::tuple_cat(kView, kBorder, kAxes);
  static constexpr auto kCopied = std::tuple_cat(kSaved, kBackColor);
  static constexpr auto kCompared = std::tuple_cat(kView, kAxes, kBackColor);
};

void CLayoutGraph3D::CopyFrom(const CLayoutGraph3D& pSource) {
  CopyFields(*this, pSource, Lists::kCopied);
}

runtime::Ref<CLayoutGraph3D> CLayoutGraph3D::GetCopy() const {
  auto copy = runtime::New<CLayoutGraph3D>();
  copy->CopyFrom(*this);
  return copy;
}

bool CLayoutGraph3D::IsEqual(const CLayoutGraph3D& pCompare) const {
  return EqualFields(*this, pCompare, Lists::kCompared);
}

void CLayoutGraph3D::SaveToBuffer(CBuffer* pBuffer, bool pAppend) const {
  SaveRecord(pBuffer, pAppend, u"GraphLayout3D#1", [this](CBuffer& pInto) { SaveFields(pInto, *this, Lists::kSaved); });
}

void CLayoutGraph3D::LoadFromBuffer(CBuffer* pBuffer, bool pAppend) {
  LoadRecord(pBuffer, pAppend, [this](CBuffer& pFrom) { LoadFields(pFrom, *this, Lists::kSaved); });
}

}  // namespace qzbase
