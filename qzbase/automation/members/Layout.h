// The records and enumerations of the layouts.
#pragma once

#include "qzbase/automation/Identities.h"
#include "qzbase/automation/Members.h"
#include "qzbase/automation/members/ObjectRows.h"
#include "qzbase/layout/BorderType.h"
#include "qzbase/layout/CLayoutGraph.h"
#include "qzbase/layout/CLayoutGraph3D.h"
#include "qzbase/layout/CLayoutTable.h"
#include "qzbase/layout/GraphAxis.h"
#include "qzbase/layout/GraphLabel.h"
#include "qzbase/layout/GraphType3D.h"
#include "qzbase/layout/TCurveStyle.h"
#include "qzbase/layout/TLabelStyle.h"

namespace qzbase::automation {

template <>
inline constexpr auto fields<TCurveStyle> = record(field<&TCurveStyle::Pattern>("Pattern", "The line pattern."),
                                                   field<&TCurveStyle::Width>("Width", "The line width."),
                                                   field<&TCurveStyle::Color>("Color", "The colour."),
                                                   field<&TCurveStyle::Symbol>("Symbol", "The symbol of a point."),
                                                   field<&TCurveStyle::SymbolSize>("SymbolSize",
                                                                                   "The size of a symbol."));

template <>
inline constexpr auto fields<TLabelStyle> =
    record(field<&TLabelStyle::FontName>("FontName", "The name of the font."),
           field<&TLabelStyle::FontSize>("FontSize", "The size of the font, in points."),
           field<&TLabelStyle::FontStyle>("FontStyle", "Bits: 1 bold, 2 italic, 4 underlined, 8 struck through."),
           field<&TLabelStyle::ForeColor>("ForeColor", "The colour of the text."),
           field<&TLabelStyle::BackColor>("BackColor", "The colour behind the text."),
           field<&TLabelStyle::BorderWidth>("BorderWidth", "The width of the border."),
           field<&TLabelStyle::Orientation>("Orientation", "The orientation."),
           field<&TLabelStyle::Rotation>("Rotation", "The rotation."));

template <>
inline constexpr auto items<GraphLabel> = enumeration<GraphLabel>({
    {"GLUndefined", GLUndefined},
    {"GraphTitle", GraphTitle},
    {"Legend", Legend},
    {"FreeLabel", FreeLabel},
    {"BoundLabel", BoundLabel},
    {"AxisTitle", AxisTitle},
    {"AxisLabel", AxisLabel},
});

template <>
inline constexpr auto items<GraphAxis> = enumeration<GraphAxis>({
    {"GAUndefined", GAUndefined},
    {"XAxis", XAxis},
    {"YAxis", YAxis},
    {"ZAxis", ZAxis},
});

template <>
inline constexpr auto items<BorderType> = enumeration<BorderType>({
    {"GBUndefined", GBUndefined},
    {"BorderNone", BorderNone},
    {"Border2D", Border2D},
    {"Border3D", Border3D},
});

template <>
inline constexpr auto items<GraphType3D> = enumeration<GraphType3D>({
    {"GTUndefined", GTUndefined},
    {"GTSurface", GTSurface},
    {"GTContour", GTContour},
    {"GTBoth", GTBoth},
});

// ---- Properties: the get of each, then its let.

template <auto kGet, auto kLet>
constexpr auto property(const char* pName, const char* pHelp) {
  return rows(get<kGet>(pName, pHelp), let<kLet>(pName));
}

template <auto kGet, auto kLet>
constexpr auto propertyOfAxis(const char* pName, const char* pHelp) {
  return rows(get<kGet>(pName, {"pAxis"}, pHelp), let<kLet>(pName, {"pAxis"}));
}

template <auto kGet, auto kLet>
constexpr auto propertyOfLabel(const char* pName, const char* pHelp) {
  return rows(get<kGet>(pName, {"pGraphLabel"}, pHelp), let<kLet>(pName, {"pGraphLabel"}));
}

template <class L>
constexpr auto AxisRows() {
  return rows(propertyOfAxis<&L::AxisType, &L::LetAxisType>("AxisType", "The value type of an axis."),
              propertyOfAxis<&L::AxisFormat, &L::LetAxisFormat>("AxisFormat",
                                                                "The format of the labels at the ticks of an axis."),
              propertyOfAxis<&L::AxisCaption, &L::LetAxisCaption>("AxisCaption", "The caption of an axis."),
              propertyOfAxis<&L::AxisUnit, &L::LetAxisUnit>("AxisUnit", "The unit of an axis."),
              propertyOfAxis<&L::AxisMin, &L::LetAxisMin>("AxisMin", "The lower end of an axis."),
              propertyOfAxis<&L::AxisMax, &L::LetAxisMax>("AxisMax", "The upper end of an axis."));
}

template <class L>
constexpr auto AxisEndRows() {
  return rows(
      propertyOfAxis<&L::AutoMax, &L::LetAutoMax>("AutoMax",
                                                  "Whether the upper end of an axis is chosen by the graph."),
      propertyOfAxis<&L::AutoMin, &L::LetAutoMin>("AutoMin",
                                                  "Whether the lower end of an axis is chosen by the graph."),
      propertyOfAxis<&L::TickSpacing, &L::LetTickSpacing>("TickSpacing", "The distance of the ticks of an axis."),
      propertyOfAxis<&L::AutoSpacing, &L::LetAutoSpacing>("AutoSpacing",
                                                          "Whether the distance of the ticks is chosen by the graph."));
}

template <class L>
constexpr auto GraphTable() {
  return table(
      method<&L::DefaultColor>("DefaultColor", {"pIndex"}, "The colour of a curve: ten that repeat."),
      property<&L::Title, &L::LetTitle>("Title", "The title."),
      property<&L::BackColor, &L::LetBackColor>("BackColor", "The colour of the background."),
      property<&L::GridColor, &L::LetGridColor>("GridColor", "The colour of the grid."),
      property<&L::Border, &L::LetBorder>("Border", "The kind of border; -1 where none was chosen."),
      property<&L::LegendPos, &L::LetLegendPos>("LegendPos", "The position of the legend, as the host numbers it."),
      property<&L::CursorMode, &L::LetCursorMode>("CursorMode", "The mode of the cursor, as the host numbers it."),
      propertyOfAxis<&L::CursorFormat, &L::LetCursorFormat>("CursorFormat", "The format of the values at the cursor."),
      propertyOfLabel<&L::LabelMode, &L::LetLabelMode>(
          "LabelMode", "The mode of title, legend or free labels, as the host numbers it."),
      AxisRows<L>(), propertyOfAxis<&L::AxisIsLog, &L::LetAxisIsLog>("AxisIsLog", "Whether an axis is logarithmic."),
      propertyOfAxis<&L::AxisIsReversed, &L::LetAxisIsReversed>("AxisIsReversed", "Whether an axis runs backwards."),
      AxisEndRows<L>(),
      propertyOfAxis<&L::ShowGrid, &L::LetShowGrid>("ShowGrid", "Whether the grid of an axis is shown."),
      property<&L::NrCurveStyles, &L::LetNrCurveStyles>("NrCurveStyles", "The number of curve styles."),
      get<&L::CurveStyle>("CurveStyle", {"pIndex"}, "The style of a curve; a default one beyond the number of styles."),
      let<&L::LetCurveStyle>("CurveStyle", {"pIndex"}).valueByRef(),
      get<&L::DefaultCurveStyle>("DefaultCurveStyle", {"pIndex"}, "The style that a curve has when none was given."),
      get<&L::LabelStyle>("LabelStyle", {"pGraphLabel"}, "The style of a kind of label."),
      let<&L::LetLabelStyle>("LabelStyle", {"pGraphLabel"}).valueByRef(), ObjectRows<L>());
}

template <>
inline constexpr auto members<CLayoutGraph> = GraphTable<CLayoutGraph>();

template <class L>
constexpr auto Graph3DTable() {
  return table(
      property<&L::GraphType, &L::LetGraphType>("GraphType", "The kind of graph."),
      property<&L::ShowContour, &L::LetShowContour>("ShowContour", "Whether contours are shown."),
      property<&L::ShowColour, &L::LetShowColour>("ShowColour", "Whether the surface is coloured."),
      property<&L::ShowSolid, &L::LetShowSolid>("ShowSolid", "Whether the surface is solid."),
      property<&L::NrLevels, &L::LetNrLevels>("NrLevels", "The number of contour levels."),
      propertyOfAxis<&L::MeshSpace, &L::LetMeshSpace>("MeshSpace", "The spacing of the mesh along X or Y."),
      propertyOfAxis<&L::MeshShow, &L::LetMeshShow>("MeshShow", "Whether the mesh along X or Y is shown."),
      property<&L::RotationAngle, &L::LetRotationAngle>("RotationAngle", "The angle of rotation, in degrees."),
      property<&L::ElevationAngle, &L::LetElevationAngle>("ElevationAngle", "The angle of elevation, in degrees."),
      property<&L::Title, &L::LetTitle>("Title", "The title."),
      property<&L::BackColor, &L::LetBackColor>("BackColor", "The colour of the background."),
      property<&L::Border, &L::LetBorder>("Border", "The kind of border; -1 where none was chosen."), AxisRows<L>(),
      AxisEndRows<L>(), ObjectRows<L>());
}

template <>
inline constexpr auto members<CLayoutGraph3D> = Graph3DTable<CLayoutGraph3D>();

template <class L>
constexpr auto TableLayoutTable() {
  return table(property<&L::Border, &L::LetBorder>("Border", "The kind of border."),
               property<&L::CaptionColour, &L::LetCaptionColour>("CaptionColour", "The colour of the caption row."),
               method<&L::SetColDescs>("SetColDescs", {"pDesc"}, "Takes copies of the descriptors of the columns."),
               get<&L::ColDescsRef>("ColDescsRef", "The descriptors of the columns themselves."),
               get<&L::NrGenericInfos>("NrGenericInfos", "The number of generic infos."),
               method<&L::ClearGenericInfos>("ClearGenericInfos", "Removes all generic infos."),
               method<&L::AddGenericInfo>("AddGenericInfo", {"pID", "pType", "pInfo"},
                                          "Appends a generic info and gives its position."),
               let<&L::LetGenericInfoValue>("GenericInfoValue", {"pID"}, "The value of the info with a number."),
               method<&L::GetGenericInfoValue>("GetGenericInfoValue", {"pID", "pDefault"},
                                               "The value of the info with a number, or a default."),
               ObjectRows<L>());
}

template <>
inline constexpr auto members<CLayoutTable> = TableLayoutTable<CLayoutTable>();

}  // namespace qzbase::automation
