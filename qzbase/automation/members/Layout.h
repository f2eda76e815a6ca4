// The records and enumerations of the layouts.
#pragma once

#include "qzbase/automation/Identities.h"
#include "qzbase/automation/Members.h"
#include "qzbase/layout/BorderType.h"
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

}  // namespace qzbase::automation
