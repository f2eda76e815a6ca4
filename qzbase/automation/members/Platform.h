// The records of the platform services.
#pragma once

#include "qzbase/automation/Identities.h"
#include "qzbase/automation/Members.h"
#include "qzbase/platform/TFontStyle.h"
#include "qzbase/platform/TGuid.h"
#include "qzbase/platform/TTimeStamp.h"

namespace qzbase::automation {

template <>
inline constexpr auto fields<TTimeStamp> = record(field<&TTimeStamp::UniversalTime>("UniversalTime",
                                                                                    "The universal time."),
                                                  field<&TTimeStamp::LocalTime>("LocalTime", "The local time."));

template <>
inline constexpr auto fields<TGuid> = record(field<&TGuid::Data1>("Data1", "The first 8 digits."),
                                             field<&TGuid::Data2>("Data2", "The next 4 digits."),
                                             field<&TGuid::Data3>("Data3", "The next 4 digits."),
                                             field<&TGuid::Data4>("Data4", "The last 16 digits."));

template <>
inline constexpr auto fields<TFontStyle> = record(
    field<&TFontStyle::Name>("Name", "The name of the font."), field<&TFontStyle::Size>("Size", "The size, in points."),
    field<&TFontStyle::Style>("Style", "Bits: 1 bold, 2 italic, 4 underlined, 8 struck through."),
    field<&TFontStyle::Color>("Color", "The colour."));

}  // namespace qzbase::automation
