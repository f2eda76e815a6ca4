// How a surface or contour graph is to be drawn: kind, options, mesh, view angles, title, colours, border and axes. It
// follows CLayoutGraph, with fields, defaults and a record of its own.
//
// Values are stored as they are given. Indices that are not there raise error 9: axes 1 to 3; of the mesh, XAxis and
// YAxis alone.
//
// The border takes no part in the comparison. The back colour is copied and compared, but not saved: a layout that is
// loaded keeps the one it had.
//
// Record: tag "GraphLayout3D#1"; kind, show colour, contour, solid, number of levels, rotation, elevation; spacing and
// visibility of the mesh along X and Y; title, border; three axes; tag "\GraphLayout3D". What was read before an error
// stays.
#pragma once

#include <array>
#include <cstdint>

#include "qzbase/layout/GraphType3D.h"
#include "qzbase/layout/LayoutFrame.h"

namespace qzbase {

class CLayoutGraph3D final : public LayoutFrame<AxisBlock3D> {
 public:
  GraphType3D GraphType() const noexcept { return graphType_; }
  void LetGraphType(GraphType3D pGraphType) noexcept { graphType_ = pGraphType; }
  bool ShowContour() const noexcept { return showContour_; }
  void LetShowContour(bool pShowContour) noexcept { showContour_ = pShowContour; }
  bool ShowColour() const noexcept { return showColour_; }
  void LetShowColour(bool pShowColour) noexcept { showColour_ = pShowColour; }
  bool ShowSolid() const noexcept { return showSolid_; }
  void LetShowSolid(bool pShowSolid) noexcept { showSolid_ = pShowSolid; }
  // Of the contours.
  std::int32_t NrLevels() const noexcept { return nrLevels_; }
  void LetNrLevels(std::int32_t pNrLevels) noexcept { nrLevels_ = pNrLevels; }
  std::int32_t MeshSpace(GraphAxis pAxis) const { return At(mesh_, pAxis).space; }
  void LetMeshSpace(GraphAxis pAxis, std::int32_t pMeshSpace) { At(mesh_, pAxis).space = pMeshSpace; }
  bool MeshShow(GraphAxis pAxis) const { return At(mesh_, pAxis).show; }
  void LetMeshShow(GraphAxis pAxis, bool pMeshShow) { At(mesh_, pAxis).show = pMeshShow; }
  // In degrees.
  double RotationAngle() const noexcept { return rotationAngle_; }
  void LetRotationAngle(double pRotationAngle) noexcept { rotationAngle_ = pRotationAngle; }
  double ElevationAngle() const noexcept { return elevationAngle_; }
  void LetElevationAngle(double pElevationAngle) noexcept { elevationAngle_ = pElevationAngle; }

  void CopyFrom(const CLayoutGraph3D& pSource);
  runtime::Ref<CLayoutGraph3D> GetCopy() const;
  bool IsEqual(const CLayoutGraph3D& pCompare) const;
  void SaveToBuffer(CBuffer* pBuffer, bool pAppend = false) const;
  void LoadFromBuffer(CBuffer* pBuffer, bool pAppend = false);

 private:
  struct Lists;

  GraphType3D graphType_ = GTSurface;
  bool showContour_ = false;
  bool showColour_ = true;
  bool showSolid_ = false;
  std::int32_t nrLevels_ = 40;
  double rotationAngle_ = -35;
  double elevationAngle_ = 25;
  std::array<MeshBlock, 2> mesh_;
};

}  // namespace qzbase
