// Makes descriptors and vectors in one call, and answers for the system: identifiers, users, clock and waits, debug
// output, displays, fonts.
//
//   auto entry = GCBase::NewEntryDesc(u"Temp", EVTDouble, u"Temperature", u"degC");
//   auto weights = GCBase::StrVector(u"(0.5;0.25)");
//
//   GCBase::WaitSecs(2.5);  // a Stop button calls LetStopFlag(true)
//   if (const auto code = GCBase::CheckStopFlag()) GCError::Throw(code);
//
// Settings exist once per thread.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "qzbase/core/ErrorRecords.h"
#include "qzbase/data/CDblVector.h"
#include "qzbase/data/CLngVector.h"
#include "qzbase/data/CStrVector.h"
#include "qzbase/data/CVector.h"
#include "qzbase/desc/TCtrlDesc.h"
#include "qzbase/desc/TEntryDesc.h"
#include "qzbase/desc/TVarDesc.h"
#include "qzbase/layout/TLabelStyle.h"
#include "qzbase/platform/TFontStyle.h"
#include "qzbase/platform/TGuid.h"
#include "qzbase/platform/TTimeStamp.h"
#include "qzbase/runtime/Array.h"
#include "qzbase/runtime/Object.h"
#include "qzbase/runtime/Variant.h"

namespace qzbase {

class GCBase : public runtime::Object {
 public:
  // ---- Factories: every result is a new object, which shares nothing with the arguments.

  static runtime::Ref<TVarDesc> NewVarDesc(std::u16string_view pID, QZVarType pVarType, std::u16string_view PName = u"",
                                           std::u16string_view pUnit = u"", std::u16string_view pOutFormat = u"");
  static runtime::Ref<TCtrlDesc> NewCtrlDesc(std::u16string_view pID, QZCtrlType pCtrlType);

  // Without a name, the entry is named by its identifier. A vector's entry has one dimension, the other has none.
  static runtime::Ref<TEntryDesc> NewEntryDesc(std::u16string_view pID, QZVarType pVarType,
                                               std::u16string_view PName = u"", std::u16string_view pUnit = u"",
                                               QZCtrlType pCtrlType = ECTEdit, std::u16string_view pFormat = u"",
                                               std::u16string_view pRange = u"", std::u16string_view pInterval = u"",
                                               bool pSaveMask = true, bool pUserDefined = false,
                                               bool pRemovable = false);
  static runtime::Ref<TEntryDesc> NewVectorDesc(std::u16string_view pID, QZVarType pVarType,
                                                std::u16string_view PName = u"", std::u16string_view pUnit = u"",
                                                QZCtrlType pCtrlType = ECTEdit, std::u16string_view pFormat = u"",
                                                std::u16string_view pRange = u"", std::u16string_view pInterval = u"",
                                                bool pSaveMask = true, bool pUserDefined = false,
                                                bool pRemovable = false);

  // An entry that the user made and may remove. The formula is kept in the description; there is no mask to save.
  static runtime::Ref<TEntryDesc> NewFormulaDesc(std::u16string_view pID, std::u16string_view PName, QZVarType pVarType,
                                                 std::u16string_view pFormula, std::u16string_view pUnit = u"",
                                                 std::u16string_view pFormat = u"");

  // Of copies; a part that is not given is a new one, with an empty identifier.
  static runtime::Ref<TEntryDesc> EntryDesc(const TVarDesc* VarDesc, const TCtrlDesc* CtrlDesc = nullptr);

  // One element each, but for `StrVector`, which takes a list of texts (CStrVector::SetFromString).
  static runtime::Ref<CVector> Vector(const runtime::Variant& Value);
  static runtime::Ref<CLngVector> LngVector(std::int32_t Value);
  static runtime::Ref<CDblVector> DblVector(double Value);
  static runtime::Ref<CStrVector> StrVector(std::u16string_view Value);

  // ---- Bytes and identifiers.

  // Whether both arrays have the same bounds and bytes. An unallocated array equals none.
  static bool IsBinaryEqual(const runtime::Array<std::uint8_t>& pBin1, const runtime::Array<std::uint8_t>& pBin2);

  // A new identifier, all zero where the system's generator fails, and its text
  // "{0A1B2C3D-0001-00FF-0A0B-0C0D0E0F1011}".
  static TGuid GetGUID();
  static std::u16string GetGUIDString();
  static std::u16string GUIDString(const TGuid& GUID);

  // ---- The system and its users (platform/SystemInfo.h).

  static std::int32_t OperatingSystem();
  static void FullOSInfo(std::u16string& OSId, std::u16string& Version, std::u16string& Service);
  // Empty where the system does not know the name.
  static std::u16string WindowsUserName();
  static std::u16string WindowsServerName();
  static runtime::Ref<CStrVector> WindowsLocalGroups();
  // 0, or the number of the error System.InvWinPasswd; nothing is raised. `Domain` is not looked at.
  static std::int32_t WindowsCheckUser(std::u16string_view Domain, std::u16string_view UserName,
                                       std::u16string_view Password);

  // ---- Clock, waits and the flag that ends them (platform/Waits.h).

  static std::int32_t TimeInCentiSecs();
  static void WaitUntil(std::int32_t pTimeInCentiSecs);
  static void SleepSecs(double pTime);
  static void WaitSecs(double pTimeout);
  // The machine must not fall asleep yet; nothing where there is no such service.
  static void SignalWindowsAppBusy();

  // The number of characters of the value's text, 4 more for a text. What converting to a text raises.
  static std::int32_t SizeOf(const runtime::Variant& Arg);

  static std::int32_t DebugMode();
  static void LetDebugMode(std::int32_t pNewValue);
  static bool StopFlag();
  static void LetStopFlag(bool pNewValue);
  static std::int32_t CheckStopFlag();
  static TErrIndex ErrStop();
  static bool SystemWaiting();
  static void LetSystemWaiting(bool pNewValue);

  // ---- Debug output (platform/DebugOutput.h) and the places where errors and messages are shown (DisplayHooks.h).

  static void SetDbgWindow(runtime::Ref<runtime::Object> pDbgWnd, std::int32_t pMaxLines = 0);
  static void SetDbgFileHdl(std::int32_t pHdl);
  static void ShowDebugLine(std::u16string_view pDbgLine);
  static void SetErrorDisplay(runtime::Ref<runtime::Object> pErrDisplay, std::int32_t pType);
  static void DisplayError(std::u16string_view pErrorMessage);
  static void SetMsgDisplay(runtime::Ref<runtime::Object> pMsgDisplay, std::int32_t pType);
  static void DisplayMessage(std::u16string_view pMessage);

  // ---- Fonts (platform/FontStyles.h). A font is any object with the properties of the system's standard font. The
  // tests of one bit give a boolean.

  static std::int32_t SetFontStyle(bool pIsBold, bool pIsItalic, bool pIsUnderlined, bool pIsStriked);
  static runtime::Variant IsBold(std::int32_t pStyle);
  static runtime::Variant IsItalic(std::int32_t pStyle);
  static runtime::Variant IsUnderlined(std::int32_t pStyle);
  static runtime::Variant IsStriked(std::int32_t pStyle);
  static void SetFontFromFontStyle(runtime::Object& pFont, const TFontStyle& pStyle);
  static TFontStyle FontStyle(runtime::Object& pFont, std::int32_t pColor = 0);
  // The font's part of a label's style; the rest of it is not looked at. Error 6 for a size outside 32 bits.
  static void SetFontFromLabelStyle(runtime::Object& pFont, const TLabelStyle& pStyle);
  static TLabelStyle LabelStyle(runtime::Object& pFont, std::int32_t pColor = 0, std::int32_t pBorderWidth = 1,
                                std::int32_t pOrientation = 0, std::int32_t pRotation = 0,
                                std::int32_t pBackColor = 0xFFFFFF);

  // This moment; its universal time is day 0 where the system does not know its time zone.
  static TTimeStamp NewTimeStamp();
};

}  // namespace qzbase
