// The members of GCBase that answer for the system; the factories are in GCBase.cpp.
#include <utility>

#include "qzbase/os/BusySignal.h"
#include "qzbase/os/Users.h"
#include "qzbase/platform/DebugOutput.h"
#include "qzbase/platform/DisplayHooks.h"
#include "qzbase/platform/FontStyles.h"
#include "qzbase/platform/GCBase.h"
#include "qzbase/platform/Guids.h"
#include "qzbase/platform/SystemInfo.h"
#include "qzbase/platform/TimeStamps.h"
#include "qzbase/platform/Waits.h"
#include "qzbase/runtime/Convert.h"

namespace qzbase {

bool GCBase::IsBinaryEqual(const runtime::Array<std::uint8_t>& pBin1, const runtime::Array<std::uint8_t>& pBin2) {
  return pBin1.IsAllocated() && pBin1 == pBin2;
}

TGuid GCBase::GetGUID() {
  return ModBase::GetGUID();
}

std::u16string GCBase::GetGUIDString() {
  return GUIDString(GetGUID());
}

std::u16string GCBase::GUIDString(const TGuid& GUID) {
  return ModBase::GUIDString(GUID);
}

std::int32_t GCBase::OperatingSystem() {
  return ModBase::OperatingSystem();
}

void GCBase::FullOSInfo(std::u16string& OSId, std::u16string& Version, std::u16string& Service) {
  ModBase::FullOSInfo(OSId, Version, Service);
}

std::u16string GCBase::WindowsUserName() {
  return os::UserName();
}

std::u16string GCBase::WindowsServerName() {
  return os::ComputerName();
}

runtime::Ref<CStrVector> GCBase::WindowsLocalGroups() {
  return ModBase::WindowsLocalGroups();
}

std::int32_t GCBase::WindowsCheckUser(std::u16string_view Domain, std::u16string_view UserName,
                                      std::u16string_view Password) {
  return ModBase::WindowsCheckUser(Domain, UserName, Password);
}

std::int32_t GCBase::TimeInCentiSecs() {
  return ModBase::TimeInCentiSecs();
}

void GCBase::WaitUntil(std::int32_t pTimeInCentiSecs) {
  ModBase::WaitUntil(pTimeInCentiSecs);
}

void GCBase::SleepSecs(double pTime) {
  ModBase::SleepSecs(pTime);
}

void GCBase::WaitSecs(double pTimeout) {
  ModBase::WaitSecs(pTimeout);
}

void GCBase::SignalWindowsAppBusy() {
  os::SignalBusy();
}

std::int32_t GCBase::SizeOf(const runtime::Variant& Arg) {
  constexpr std::size_t kTextCost = 4;
  const auto* text = Arg.If<std::u16string>();
  return static_cast<std::int32_t>(text ? text->size() + kTextCost : runtime::ToText(Arg).size());
}

std::int32_t GCBase::DebugMode() {
  return ModBase::DebugMode();
}

void GCBase::LetDebugMode(std::int32_t pNewValue) {
  ModBase::LetDebugMode(pNewValue);
}

bool GCBase::StopFlag() {
  return ModBase::StopFlag();
}

void GCBase::LetStopFlag(bool pNewValue) {
  ModBase::LetStopFlag(pNewValue);
}

std::int32_t GCBase::CheckStopFlag() {
  return ModBase::CheckStopFlag();
}

TErrIndex GCBase::ErrStop() {
  return ModBase::ErrStop();
}

bool GCBase::SystemWaiting() {
  return ModBase::SystemWaiting();
}

void GCBase::LetSystemWaiting(bool pNewValue) {
  ModBase::LetSystemWaiting(pNewValue);
}

void GCBase::SetDbgWindow(runtime::Ref<runtime::Object> pDbgWnd, std::int32_t pMaxLines) {
  ModBase::SetDbgWindow(std::move(pDbgWnd), pMaxLines);
}

void GCBase::SetDbgFileHdl(std::int32_t pHdl) {
  ModBase::SetDbgFileHdl(pHdl);
}

void GCBase::ShowDebugLine(std::u16string_view pDbgLine) {
  ModBase::ShowDebugLine(pDbgLine);
}

void GCBase::SetErrorDisplay(runtime::Ref<runtime::Object> pErrDisplay, std::int32_t pType) {
  ModBase::SetErrorDisplay(std::move(pErrDisplay), pType);
}

void GCBase::DisplayError(std::u16string_view pErrorMessage) {
  ModBase::DisplayError(pErrorMessage);
}

void GCBase::SetMsgDisplay(runtime::Ref<runtime::Object> pMsgDisplay, std::int32_t pType) {
  ModBase::SetMsgDisplay(std::move(pMsgDisplay), pType);
}

void GCBase::DisplayMessage(std::u16string_view pMessage) {
  ModBase::DisplayMessage(pMessage);
}

std::int32_t GCBase::SetFontStyle(bool pIsBold, bool pIsItalic, bool pIsUnderlined, bool pIsStriked) {
  return ModBase::SetFontStyle(pIsBold, pIsItalic, pIsUnderlined, pIsStriked);
}

runtime::Variant GCBase::IsBold(std::int32_t pStyle) {
  return ModBase::HasFontStyle(pStyle, ModBase::kBold);
}

runtime::Variant GCBase::IsItalic(std::int32_t pStyle) {
  return ModBase::HasFontStyle(pStyle, ModBase::kItalic);
}

runtime::Variant GCBase::IsUnderlined(std::int32_t pStyle) {
  return ModBase::HasFontStyle(pStyle, ModBase::kUnderlined);
}

runtime::Variant GCBase::IsStriked(std::int32_t pStyle) {
  return ModBase::HasFontStyle(pStyle, ModBase::kStriked);
}

void GCBase::SetFontFromFontStyle(runtime::Object& pFont, const TFontStyle& pStyle) {
  ModBase::SetFontFromFontStyle(pFont, pStyle);
}

TFontStyle GCBase::FontStyle(runtime::Object& pFont, std::int32_t pColor) {
  return ModBase::FontStyle(pFont, pColor);
}

void GCBase::SetFontFromLabelStyle(runtime::Object& pFont, const TLabelStyle& pStyle) {
  SetFontFromFontStyle(pFont, {pStyle.FontName, runtime::RoundToLong(pStyle.FontSize), pStyle.FontStyle, 0});
}

TLabelStyle GCBase::LabelStyle(runtime::Object& pFont, std::int32_t pColor, std::int32_t pBorderWidth,
                               std::int32_t pOrientation, std::int32_t pRotation, std::int32_t pBackColor) {
  const TFontStyle font = FontStyle(pFont, pColor);
  TLabelStyle style;
  style.FontName = font.Name;
  style.FontSize = font.Size;
  style.FontStyle = font.Style;
  style.ForeColor = pColor;
  style.BackColor = pBackColor;
  style.BorderWidth = pBorderWidth;
  style.Orientation = pOrientation;
  style.Rotation = pRotation;
  return style;
}

TTimeStamp GCBase::NewTimeStamp() {
  return ModBase::NewTimeStamp();
}

}  // namespace qzbase
